// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <span>
#include <string>
#include <string_view>

#include "base/texts.h"

namespace campora {

/// A rectangle on a page in millimetres from its upper left corner; y grows downwards.
struct PageRect {
    double x = 0;
    double y = 0;
    double width = 0;
    double height = 0;

    [[nodiscard]] double right() const { return x + width; }
    [[nodiscard]] double bottom() const { return y + height; }
    bool operator==(const PageRect&) const = default;
};

/// A size of paper, upright. Sizes of the A series: ISO 216.
struct Paper {
    /// What the setting keeps.
    std::string_view key;
    /// A name that differs between languages; the key where it does not.
    TextId name{};
    double widthMm = 0;
    double heightMm = 0;
};

[[nodiscard]] std::span<const Paper> papers();
/// The one with that key, or A4.
[[nodiscard]] const Paper& paperOf(std::string_view key);
/// "A4 (210 × 297 mm)".
[[nodiscard]] std::string paperText(const Paper& paper, const Texts& texts);

/// Edges of the page that stay empty, in millimetres.
struct PageMargins {
    static constexpr std::int32_t kMost = 30;

    std::int32_t left = 10;
    std::int32_t top = 10;
    std::int32_t right = 10;
    std::int32_t bottom = 10;

    bool operator==(const PageMargins&) const = default;
};

/// How pages are printed, as the user wants it.
struct PageSetup {
    /// One of `papers()`.
    Paper paper;
    bool landscape = true;
    PageMargins margins;
    // What stands on the page beside the map.
    bool legend = true;
    bool summary = true;
    bool description = true;

    /// The whole sheet as it is held.
    [[nodiscard]] PageRect sheet() const;
    /// The sheet without its margins.
    [[nodiscard]] PageRect inside() const;
};

}  // namespace campora
