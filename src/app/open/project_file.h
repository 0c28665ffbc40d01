// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// The paths that a project file lists, in order; none when its first line is not a project's. A
/// project is a text: the first line holds the words "FurrowScope project file" in any case, every
/// further line is a path, blanks around it aside. A line that begins with "#" is a comment; one
/// that begins with "\" or "/" is appended to `beforeRelative(programFolder)`. An empty line is an
/// empty path.
[[nodiscard]] std::optional<std::vector<std::string>> decodeProject(std::string_view bytes,
                                                                    std::string_view programFolder);

/// What is put before the lines that begin with a separator: the folder, with a "\" appended
/// unless it ends in a separator.
[[nodiscard]] std::string beforeRelative(std::string_view programFolder);

/// Whether the first line of a file is a project's, whatever its ending. Only the beginning of the
/// file is read.
[[nodiscard]] bool isProject(std::string_view path);

}  // namespace campora
