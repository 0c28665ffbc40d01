// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_layout.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "pages/page_columns.h"

namespace campora {

namespace {

// Millimetres on A4; larger and smaller paper has all of it larger and smaller.
constexpr double kTitleEm = 5.0;
constexpr double kHeadingEm = 3.0;
constexpr double kTextEm = 2.7;
constexpr double kSmallEm = 2.5;
constexpr double kPadding = 2.5;
constexpr double kGap = 4;
constexpr double kSwatchWidth = 5;
constexpr double kBarHeight = 1.6;
constexpr double kArrowWidth = 8;
constexpr double kLongestBar = 60;
constexpr double kColumnWidth = 56;
/// Height of a line of text, in ems.
constexpr double kLine = 1.4;
/// Parts of the room that the texts may take.
constexpr double kPanelPart = 0.27;
constexpr double kWidePanelPart = 0.45;
constexpr double kBandPart = 0.45;
/// Part of a column that the names of a summary may take.
constexpr double kNamePart = 0.55;
/// Part of the title line that is the title.
constexpr double kTitlePart = 0.72;
/// A bar that is shorter has no room for a number in its middle, in widths of that number.
constexpr double kMiddleRoom = 4;

/// How much larger than on A4 letters and gaps are: less than the paper is.
double sizeFactor(const PageRect& sheet) {
    constexpr double kA4Area = 210.0 * 297.0;
    return std::clamp(std::pow(sheet.width * sheet.height / kA4Area, 0.25), 0.8, 1.25);
}

PageRect shrunk(const PageRect& rect, double by) {
    return {rect.x + by, rect.y + by, rect.width - 2 * by, rect.height - 2 * by};
}

class Composer {
public:
    Composer(const PageSetup& setup, const PageContent& content, const MapExtent& extent,
             const PageWords& words, const TextWidth& textWidth)
        : setup_(setup),
          content_(content),
          extent_(extent),
          texts_(words.texts),
          decimalSymbol_(words.decimalSymbol),
          textWidth_(textWidth),
          factor_(sizeFactor(setup.sheet())) {}

    PageLayout compose() {
        page_.sheet = setup_.sheet();
        page_.frame = setup_.inside();
        const PageRect room = shrunk(page_.frame, mm(kPadding));
        const PageRect body = placeTitle(room);
        if (body.width > body.height) {
            composeBeside(body);
        } else {
            composeBelow(body);
        }
        return std::move(page_);
    }

private:
    [[nodiscard]] double mm(double onA4) const { return onA4 * factor_; }
    [[nodiscard]] double lineHeight() const { return mm(kTextEm * kLine); }
    [[nodiscard]] PageFont font(double em, bool bold = false) const { return {mm(em), bold}; }

    void addText(const PageRect& place, std::string text, PageFont font, PageAlign align,
                 PageInk ink = PageInk::Black) {
        if (!text.empty()) {
            page_.texts.push_back({place, std::move(text), font, align, ink});
        }
    }

    /// Two texts on a line: the second to the right edge, the first in what it leaves.
    void placeTitleLine(const PageRect& line, const std::string& left, const std::string& right,
                        PageFont leftFont, bool keepEnd) {
        const PageFont small = font(kSmallEm);
        const double leftWidth = line.width * kTitlePart - mm(kGap);
        const PageRect leftPlace{line.x, line.y, leftWidth, line.height};
        const PageRect rightPlace{line.x + line.width * kTitlePart, line.y,
                                  line.width * (1 - kTitlePart), line.height};
        const auto elided = keepEnd ? elidedStart : elidedEnd;
        addText(leftPlace, elided(left, leftFont, leftPlace.width, textWidth_), leftFont,
                PageAlign::Left, keepEnd ? PageInk::Grey : PageInk::Black);
        addText(rightPlace, elidedEnd(right, small, rightPlace.width, textWidth_), small,
                PageAlign::Right, PageInk::Grey);
    }

    /// What is left below the title.
    PageRect placeTitle(const PageRect& room) {
        const double first = mm(kTitleEm * kLine);
        const double second = mm(kSmallEm * kLine);
        placeTitleLine({room.x, room.y, room.width, first}, content_.title, content_.program,
                       font(kTitleEm, true), false);
        placeTitleLine({room.x, room.y + first, room.width, second}, content_.path,
                       content_.printedOn, font(kSmallEm), true);
        const double line = room.y + first + second + mm(kPadding) / 2;
        page_.titleLine = line;
        const double top = line + mm(kPadding);
        return {room.x, top, room.width, room.bottom() - top};
    }

    [[nodiscard]] PageBlock legendBlock(TextId heading, const std::string& unit,
                                        const std::vector<LegendRow>& rows) const {
        std::string title(texts_(heading));
        if (!unit.empty()) {
            title += " (" + unit + ")";
        }
        PageBlock block{{{PageRow::Kind::Heading, std::move(title)}}};
        for (const LegendRow& row : rows) {
            block.rows.push_back({PageRow::Kind::Swatch, row.text, {}, row.color});
        }
        return block;
    }

    /// `width`: of a column.
    [[nodiscard]] std::vector<PageBlock> blocks(double width) const {
        std::vector<PageBlock> all;
        if (setup_.legend) {
            all.push_back(
                legendBlock(TextId::ScaleHeading, content_.legend.unit, content_.legend.classes));
            all.push_back(legendBlock(TextId::ReferenceHeading, {}, content_.legend.reference));
            all.back().joinsPrevious = true;
        }
        if (setup_.summary) {
            PageBlock block{
                {{PageRow::Kind::Heading, std::string(texts_(TextId::SummaryHeading))}}};
            for (const SummaryRow& row : content_.summary) {
                if (!row.isRemark) {
                    block.rows.push_back({PageRow::Kind::Pair, row.property, row.value});
                    continue;
                }
                for (std::string& line :
                     wrapped(row.property + ": " + row.value, font(kTextEm), width, textWidth_)) {
                    block.rows.push_back({PageRow::Kind::Line, std::move(line)});
                }
            }
            all.push_back(std::move(block));
        }
        if (setup_.description) {
            PageBlock block{
                {{PageRow::Kind::Heading, std::string(texts_(TextId::PageDescription))}}};
            for (std::string& line :
                 wrapped(content_.description, font(kTextEm), width, textWidth_)) {
                block.rows.push_back({PageRow::Kind::Line, std::move(line)});
            }
            all.push_back(std::move(block));
        }
        return all;
    }

    [[nodiscard]] double columnWidth(double width, int columns) const {
        return (width - mm(kGap) * (columns - 1)) / columns;
    }

    [[nodiscard]] PlacedBlocks place(double width, int columns, double height) const {
        const int lines = static_cast<int>(height / lineHeight());
        return placeBlocks(blocks(columnWidth(width, columns)), columns, lines, [this](int left) {
            return texts_.format(TextId::MoreRows, {numberText(left)});
        });
    }

    /// Map on the left, panel on the right.
    void composeBeside(const PageRect& body) {
        const double height = body.height - scaleHeight() - mm(kPadding);
        double width = std::clamp(body.width * kPanelPart, mm(kColumnWidth) * 0.8,
                                  body.width * kWidePanelPart);
        int columns = 1;
        PlacedBlocks placed = place(width, columns, height);
        if (placed.cut) {
            const double wide = body.width * kWidePanelPart;
            columns = std::max(1, static_cast<int>(wide / mm(kColumnWidth * 0.8)));
            width = std::min(wide, columns * mm(kColumnWidth));
            placed = place(width, columns, height);
        }
        const double x = body.right() - width;
        setMap({body.x, body.y, x - mm(kGap) - body.x, body.height});
        placeScale({x, body.y, width, scaleHeight()});
        drawRows(placed, {x, body.y + scaleHeight() + mm(kPadding), width, height}, columns);
    }

    /// Map above, band below.
    void composeBelow(const PageRect& body) {
        const int columns = std::max(1, static_cast<int>(body.width / mm(kColumnWidth)));
        const double most = body.height * kBandPart - scaleHeight() - mm(kPadding);
        const PlacedBlocks placed = place(body.width, columns, most);
        const double rowsHeight = placed.lines * lineHeight();
        const double band = rowsHeight + scaleHeight() + (placed.lines > 0 ? mm(kPadding) : 0);
        setMap({body.x, body.y, body.width, body.height - band - mm(kPadding)});
        const double top = page_.map.bottom() + mm(kPadding);
        placeScale({body.x, top, body.width, scaleHeight()});
        drawRows(placed, {body.x, body.bottom() - rowsHeight, body.width, rowsHeight}, columns);
    }

    void setMap(const PageRect& map) {
        page_.map = map;
        page_.scale = scaleThatShows(extent_, map);
    }

    [[nodiscard]] double scaleHeight() const {
        return mm(kSmallEm * kLine) + mm(kBarHeight) + mm(kPadding) / 2 + lineHeight();
    }

    /// Numbers over a bar, 1:n under it, the arrow beside them.
    void placeScale(const PageRect& room) {
        const PageFont small = font(kSmallEm);
        placeNorth({room.right() - mm(kArrowWidth), room.y, mm(kArrowWidth), room.height});
        const double width = room.width - mm(kArrowWidth + kGap);
        const std::string widest = distanceText(8888, decimalSymbol_);
        const double endRoom = textWidth_(widest, small);
        const ScaleBar bar = roundBar(page_.scale, std::min(mm(kLongestBar), width - endRoom / 2));
        const double numbers = mm(kSmallEm * kLine);
        page_.bar = {room.x, room.y + numbers, bar.lengthMm, mm(kBarHeight)};
        page_.barParts = bar.parts;
        placeBarNumbers(bar, {room.x, room.y, width, numbers}, small);
        const PageRect text{room.x, room.bottom() - lineHeight(), width, lineHeight()};
        const PageFont plain = font(kTextEm);
        addText(text,
                elidedEnd(texts_.format(TextId::MapScale, {groupedNumber(page_.scale)}), plain,
                          width, textWidth_),
                plain, PageAlign::Left);
    }

    /// The arrow over its letter.
    void placeNorth(const PageRect& room) {
        const double letter = lineHeight();
        page_.northArrow = {room.x, room.y, room.width, room.height - letter};
        addText({room.x, room.bottom() - letter, room.width, letter},
                std::string(texts_(TextId::NorthLetter)), font(kHeadingEm, true),
                PageAlign::Centre);
    }

    void placeBarNumbers(const ScaleBar& bar, const PageRect& line, PageFont font) {
        const auto centred = [&](std::string text, double at) {
            const double width = textWidth_(text, font) * 1.02;
            addText({at - width / 2, line.y, width, line.height}, std::move(text), font,
                    PageAlign::Centre);
        };
        const double zero = textWidth_("0", font);
        addText({line.x, line.y, zero * 1.02, line.height}, "0", font, PageAlign::Left);
        const std::string end = distanceText(bar.metres, decimalSymbol_);
        centred(end, line.x + std::max(bar.lengthMm, zero + textWidth_(end, font)));
        // In the unit of the number at the end.
        const bool inKm = end.ends_with("km");
        const std::string middle = numberText(bar.metres / (inKm ? 2000 : 2), decimalSymbol_);
        if (bar.parts % 2 == 0 && bar.lengthMm > kMiddleRoom * textWidth_(end, font)) {
            centred(middle, line.x + bar.lengthMm / 2);
        }
    }

    void drawRows(const PlacedBlocks& placed, const PageRect& room, int columns) {
        const double width = columnWidth(room.width, columns);
        const double names = nameWidth(width);
        for (const auto& [row, column, line] : placed.rows) {
            const PageRect place{room.x + column * (width + mm(kGap)), room.y + line * lineHeight(),
                                 width, lineHeight()};
            drawRow(row, place, names);
        }
    }

    /// Room for the names of the summary, with a gap.
    [[nodiscard]] double nameWidth(double columnWidth) const {
        double widest = 0;
        for (const SummaryRow& row : content_.summary) {
            widest = std::max(widest, row.isRemark ? 0 : textWidth_(row.property, font(kTextEm)));
        }
        return std::min(widest + mm(kGap) / 2, columnWidth * kNamePart);
    }

    void drawRow(const PageRow& row, const PageRect& place, double names) {
        const PageFont plain = font(kTextEm);
        const auto fitted = [&](const std::string& text, double x, double width, PageFont font,
                                PageInk ink = PageInk::Black) {
            addText({x, place.y, width, place.height}, elidedEnd(text, font, width, textWidth_),
                    font, PageAlign::Left, ink);
        };
        switch (row.kind) {
        case PageRow::Kind::Heading:
            fitted(row.text, place.x, place.width, font(kHeadingEm, true));
            break;
        case PageRow::Kind::Swatch: {
            const double taken = mm(kSwatchWidth + kPadding / 2);
            page_.swatches.push_back(
                {{place.x, place.y + place.height * 0.18, mm(kSwatchWidth), place.height * 0.64},
                 row.color});
            fitted(row.text, place.x + taken, place.width - taken, plain);
            break;
        }
        case PageRow::Kind::Pair:
            fitted(row.text, place.x, names - mm(kGap) / 2, plain, PageInk::Grey);
            fitted(row.value, place.x + names, place.width - names, plain);
            break;
        case PageRow::Kind::Line:
            fitted(row.text, place.x, place.width, plain);
            break;
        }
    }

    const PageSetup& setup_;
    const PageContent& content_;
    const MapExtent& extent_;
    const Texts& texts_;
    char decimalSymbol_;
    const TextWidth& textWidth_;
    double factor_;
    PageLayout page_;
};

}  // namespace

PageLayout layOutPage(const PageSetup& setup, const PageContent& content, const MapExtent& extent,
                      const PageWords& words, const TextWidth& textWidth) {
    return Composer(setup, content, extent, words, textWidth).compose();
}

}  // namespace campora
