// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/page_layout.h"

#include <string>
#include <utility>
#include <vector>

#include <gmock/gmock.h>

namespace campora {
namespace {

using testing::Contains;
using testing::HasSubstr;

/// Characters are half as wide as they are high.
double halfEach(std::string_view text, PageFont font) {
    double width = 0;
    for (const char byte : text) {
        width += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? font.emMm / 2 : 0;
    }
    return width;
}

PageContent content(int classes, int figures, int lines) {
    PageContent made;
    made.title = "lote norte.rpt";
    made.path = "campo/2026/lote norte.rpt";
    made.program = "Campora 9.9.9";
    made.printedOn = "Impreso el 31/12/2026";
    made.legend.unit = "lt/hect";
    for (int i = 0; i < classes; ++i) {
        made.legend.classes.push_back({Color::rgb(i, 0, 0), "clase " + std::to_string(i)});
    }
    made.legend.reference = {{Color{}, "Fumigado"}, {Color{}, "No fumigado"}, {Color{}, "Fondo"}};
    for (int i = 0; i < figures; ++i) {
        made.summary.push_back({"Dato " + std::to_string(i) + ":", std::to_string(i) + " hect"});
    }
    for (int i = 0; i < lines; ++i) {
        made.description += "renglón " + std::to_string(i) + "\n";
    }
    return made;
}

PageSetup setupOf(std::string_view paper, bool landscape, PageMargins margins = {}) {
    PageSetup setup;
    for (const Paper& row : papers()) {
        setup.paper = row.key == paper ? row : setup.paper;
    }
    setup.landscape = landscape;
    setup.margins = margins;
    return setup;
}

constexpr MapExtent kExtent{{-60, -33}, 4000, 3000};

PageLayout layOut(const PageSetup& setup, const PageContent& content,
                  const MapExtent& extent = kExtent) {
    return layOutPage(setup, content, extent, {Texts(Language::English), '.'}, halfEach);
}

std::vector<PageRect> everything(const PageLayout& page) {
    std::vector<PageRect> rects{page.map, page.bar, page.northArrow};
    for (const PageText& text : page.texts) {
        rects.push_back(text.place);
    }
    for (const PageSwatch& swatch : page.swatches) {
        rects.push_back(swatch.place);
    }
    return rects;
}

constexpr double kHair = 1e-6;

bool overlap(const PageRect& a, const PageRect& b) {
    return a.x + kHair < b.right() && b.x + kHair < a.right() && a.y + kHair < b.bottom() &&
           b.y + kHair < a.bottom();
}

bool holds(const PageRect& outer, const PageRect& inner) {
    return inner.x >= outer.x - kHair && inner.y >= outer.y - kHair &&
           inner.right() <= outer.right() + kHair && inner.bottom() <= outer.bottom() + kHair;
}

void expectSound(const PageLayout& page) {
    const std::vector<PageRect> rects = everything(page);
    for (std::size_t i = 0; i < rects.size(); ++i) {
        EXPECT_TRUE(holds(page.frame, rects[i])) << i;
        EXPECT_TRUE(rects[i].width > 0 && rects[i].height > 0) << i;
        for (std::size_t k = i + 1; k < rects.size(); ++k) {
            EXPECT_FALSE(overlap(rects[i], rects[k])) << i << " and " << k;
        }
    }
    for (const PageText& text : page.texts) {
        EXPECT_LE(halfEach(text.text, text.font), text.place.width + kHair) << text.text;
    }
}

std::vector<std::string> textsOf(const PageLayout& page) {
    std::vector<std::string> texts;
    for (const PageText& text : page.texts) {
        texts.push_back(text.text);
    }
    return texts;
}

TEST(PageLayout, NothingLiesOnAnythingElseWhateverThePaper) {
    PageContent longNames = content(5, 9, 3);
    longNames.title.append(200, 'W');
    longNames.path.append(300, 'm');
    longNames.legend.classes[2].text.append(90, '8');
    longNames.summary[3].property.append(60, 'q');
    longNames.description.append(500, 'x');
    const PageContent contents[] = {content(0, 0, 0), content(40, 9, 10), content(200, 99, 300),
                                    longNames};
    for (const Paper& paper : papers()) {
        for (const bool landscape : {true, false}) {
            for (const std::int32_t margin : {0, PageMargins::kMost}) {
                for (const PageContent& said : contents) {
                    SCOPED_TRACE(std::string(paper.key) + (landscape ? " landscape " : " ") +
                                 std::to_string(margin) + " " + said.title);
                    const PageLayout page = layOut(
                        setupOf(paper.key, landscape, {margin, margin, margin, margin}), said);
                    expectSound(page);
                    EXPECT_GT(page.map.width * page.map.height,
                              page.frame.width * page.frame.height * 0.3);
                }
            }
        }
    }
}

TEST(PageLayout, SaysAllThatItIsGiven) {
    for (const bool landscape : {true, false}) {
        const std::vector<std::string> texts =
            textsOf(layOut(setupOf("A4", landscape), content(5, 9, 10)));
        for (const char* said :
             {"lote norte.rpt", "campo/2026/lote norte.rpt", "Campora 9.9.9",
              "Impreso el 31/12/2026", "Colour scale (lt/hect)", "clase 4", "Other colours",
              "Fondo", "Summary", "Dato 8:", "8 hect", "Description", "renglón 9", "N"}) {
            EXPECT_THAT(texts, Contains(said)) << landscape;
        }
    }
}

TEST(PageLayout, TellsHowMuchIsLeftOut) {
    const std::vector<std::string> texts = textsOf(layOut(setupOf("A5", true), content(5, 9, 200)));
    EXPECT_THAT(texts, Contains(HasSubstr(" more")));
    EXPECT_THAT(texts, Contains("Dato 8:"));
}

TEST(PageLayout, TheBarAndTheScaleSpeakOfTheSameMap) {
    for (const auto& [width, middle] : {std::pair(4000, "0.5"), {400, "50"}}) {
        const MapExtent extent{{-60, -33}, 1.0 * width, 0.75 * width};
        const PageLayout page = layOut(setupOf("A4", width > 1000), content(5, 9, 3), extent);
        EXPECT_DOUBLE_EQ(page.scale, scaleThatShows(extent, page.map));
        EXPECT_THAT(textsOf(page), Contains("Scale 1:" + groupedNumber(page.scale)));
        const double metres = page.bar.width * page.scale / 1000;
        EXPECT_THAT(textsOf(page), Contains(distanceText(std::round(metres), '.')));
        EXPECT_THAT(textsOf(page), Contains(middle));
        EXPECT_NEAR(metres, std::round(metres), 1e-6);
    }
}

}  // namespace
}  // namespace campora
