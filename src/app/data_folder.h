// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace campora {

/// Where the registrations and other data files of the programs in `programFolder` are:
/// "../share/campora" where the programs are installed, else the folder itself.
[[nodiscard]] std::string dataFolderOf(std::string_view programFolder);

}  // namespace campora
