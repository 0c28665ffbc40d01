// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <vector>

namespace campora {

/// A picture of opaque pixels, rows from the top, each from the left, as 0xFFRRGGBB.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;
};

/// How a picture is kept in a file.
enum class PictureForm { Bmp, Png };

}  // namespace campora
