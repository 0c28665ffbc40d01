// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

namespace campora {

/// Letters on a page.
struct PageFont {
    /// Height of the letters' em square, in millimetres.
    double emMm = 0;
    bool bold = false;

    bool operator==(const PageFont&) const = default;
};

/// Width of a line of UTF-8 text, in millimetres.
using TextWidth = std::function<double(std::string_view text, PageFont font)>;

/// The text, or as much of its beginning as fits with "…" behind it.
[[nodiscard]] std::string elidedEnd(std::string_view text, PageFont font, double widthMm,
                                    const TextWidth& textWidth);
/// The same with the end kept, for paths.
[[nodiscard]] std::string elidedStart(std::string_view text, PageFont font, double widthMm,
                                      const TextWidth& textWidth);
/// The lines of the text, each broken at its blanks so that it fits; a word wider than a line is
/// broken anywhere. Blank lines stay, but for those at the end.
[[nodiscard]] std::vector<std::string> wrapped(std::string_view text, PageFont font, double widthMm,
                                               const TextWidth& textWidth);

}  // namespace campora
