// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

namespace campora::sample {

struct SampleFile {
    std::string name;
    std::string bytes;
};

/// All sample files, the same on every machine.
[[nodiscard]] std::vector<SampleFile> sampleFiles();

}  // namespace campora::sample
