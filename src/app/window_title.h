// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace campora {

/// "Campora - [path]"; of a path with folders no more than its last 50 characters are shown, from
/// the first separator among them, after "...".
[[nodiscard]] std::string fileTitle(std::string_view path);
[[nodiscard]] std::string untitledTitle();
/// The program's name and version, for a window without files.
[[nodiscard]] std::string versionTitle();

}  // namespace campora
