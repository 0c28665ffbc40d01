// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "base/color.h"
#include "base/texts.h"
#include "pages/page_scale.h"
#include "pages/page_setup.h"
#include "pages/text_fit.h"
#include "platform/main_window_controls.h"

namespace campora {

/// What a printed page says beside the map.
struct PageContent {
    std::string title;
    std::string path;
    /// Name and version.
    std::string program;
    std::string printedOn;
    LegendContent legend;
    std::vector<SummaryRow> summary;
    /// Lines ended by LF; long ones are wrapped.
    std::string description;
};

enum class PageAlign { Left, Centre, Right };
enum class PageInk { Black, Grey };

struct PageText {
    PageRect place;
    /// One line that fits into the place.
    std::string text;
    PageFont font;
    PageAlign align = PageAlign::Left;
    PageInk ink = PageInk::Black;
};

struct PageSwatch {
    PageRect place;
    Color color;
};

/// A page as it is to be drawn: everything within the margins, and nothing on anything else.
struct PageLayout {
    PageRect sheet;
    PageRect frame;
    PageRect map;
    /// n of the scale 1:n of the map.
    double scale = 0;
    std::vector<PageText> texts;
    std::vector<PageSwatch> swatches;
    PageRect bar;
    int barParts = 0;
    PageRect northArrow;
    /// A line across the frame at this height, below the title.
    double titleLine = 0;
};

/// In which a page is written.
struct PageWords {
    const Texts& texts;
    char decimalSymbol = '.';
};

/// Title at the top; in landscape the map on the left and the rest in a panel on the right, upright
/// the map above and the rest in columns below. The map gets what the texts leave, never less than
/// half of the room below the title in the direction they share.
[[nodiscard]] PageLayout layOutPage(const PageSetup& setup, const PageContent& content,
                                    const MapExtent& extent, const PageWords& words,
                                    const TextWidth& textWidth);

}  // namespace campora
