// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string_view>

#include "base/failure.h"
#include "platform/picture.h"

namespace campora {

/// Writes a picture to a file, whole or not at all.
[[nodiscard]] std::optional<Failure> savePicture(const Picture& picture, std::string_view path,
                                                 PictureForm form);

}  // namespace campora
