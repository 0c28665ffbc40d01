// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

namespace campora {

// Names of files and texts out of them may hold what steers a terminal or turns the reading
// direction of a line around. Whatever a person reads passes through here on its way out; what
// programs read (exports, and JSON with its escapes) keeps it exactly.

/// Whether a character steers the screen instead of showing there.
[[nodiscard]] bool steersScreen(char32_t character);

/// `text` with U+FFFD for each control character, direction mark, and byte that is not UTF-8. Line
/// ends and tabs stay.
[[nodiscard]] std::string plainText(std::string_view text);

/// As `plainText`, for what stands in one line: line ends and tabs go too.
[[nodiscard]] std::string plainLine(std::string_view text);

/// A question and, in a line of its own, the file that it is about; the question alone when `path`
/// is empty.
[[nodiscard]] std::string namingFile(std::string_view question, std::string_view path);

}  // namespace campora
