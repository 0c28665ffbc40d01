// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace campora {

/// Paths are UTF-8 texts as the user or a file gave them; "\" and "/" both separate.

/// What follows the last separator of either kind.
[[nodiscard]] std::string_view fileNamePart(std::string_view path);

/// Everything up to and including the last separator: after the last "\" or, when there is none,
/// the last "/"; empty when there is neither.
[[nodiscard]] std::string_view folderPart(std::string_view path);

/// Everything before `fileNamePart`: the folder with the separator behind it; empty when there is
/// none.
[[nodiscard]] std::string folderOf(std::string_view path);

/// `fileNamePart` without its last point and what follows it.
[[nodiscard]] std::string_view fileStem(std::string_view path);

/// The last four characters in lower case (".rpt"); all of a shorter path.
[[nodiscard]] std::string pathEnding(std::string_view path);

/// The path in the form that this system opens. A path written with "\" opens on systems that use
/// "/" unless a file of that very name exists.
[[nodiscard]] std::filesystem::path nativePath(std::string_view path);

/// Whether a file or folder stands there; not, when that cannot be told.
[[nodiscard]] bool isThere(std::string_view path);

[[nodiscard]] bool isFolder(std::string_view path);

/// Whether two paths name one file, through links too and whatever their spelling.
[[nodiscard]] bool isSameFile(std::string_view a, std::string_view b);

/// The UTF-8 text of a native path.
[[nodiscard]] std::string pathText(const std::filesystem::path& path);

/// The file that `path` names, or when none has that exact name, the one in the same folder whose
/// name differs only in case (the first in byte order); `path` itself when there is none. The
/// folder part stays as it was written. A folder is looked through only when the exact name is
/// missing.
[[nodiscard]] std::string findIgnoringCase(std::string_view path);

}  // namespace campora
