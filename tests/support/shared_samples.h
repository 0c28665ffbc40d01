// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>

namespace campora {

/// The path of a file or folder, such as "samples/presc/zones.shp", in the optional folder of
/// shared samples: the one that the environment variable CAMPORA_SHARED names, else "shared" beside
/// the source folder. None when it is not there; the test then calls GTEST_SKIP.
[[nodiscard]] std::optional<std::string> sharedSample(std::string_view relative);

}  // namespace campora
