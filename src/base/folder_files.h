// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// The paths of the ordinary files of a folder whose path is `wanted`, in the order of their names
/// without regard to case. Deeper folders are left out; a folder that cannot be read has no files.
[[nodiscard]] std::vector<std::string>
filesIn(std::string_view folder, const std::function<bool(const std::string& path)>& wanted);

}  // namespace campora
