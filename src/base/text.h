// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// All texts inside the program are UTF-8.

/// Without blanks, tabs and line ends at either end.
[[nodiscard]] std::string_view trim(std::string_view text);

/// Pieces between separators: n separators give n + 1 pieces, empty ones included.
[[nodiscard]] std::vector<std::string_view> split(std::string_view text, char separator);

/// Lower case of the Latin letters, accented ones (U+00C0 to U+017F) included; other characters and
/// bytes that are not UTF-8 stay as they are.
[[nodiscard]] std::string lowerCase(std::string_view text);

[[nodiscard]] bool equalIgnoringCase(std::string_view a, std::string_view b);

/// Every occurrence of `from` (not empty) replaced by `to`.
[[nodiscard]] std::string replaceAll(std::string_view text, std::string_view from,
                                     std::string_view to);

}  // namespace campora
