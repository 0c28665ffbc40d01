// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// The files to open for a path that the user dropped or named: a folder stands for the files in it
/// that a reader takes, in the order of their names without regard to case; any other path for
/// itself. What only goes with other files (the summaries of track files, the registrations, the
/// blank report beside a prescription) and deeper folders are left out.
[[nodiscard]] std::vector<std::string> filesBehind(std::string_view path);

}  // namespace campora
