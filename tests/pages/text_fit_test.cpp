// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "pages/text_fit.h"

#include <gmock/gmock.h>

namespace campora {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr PageFont kFont{1};

/// Every character is one millimetre wide.
double oneEach(std::string_view text, PageFont /*font*/) {
    double width = 0;
    for (const char byte : text) {
        width += (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U ? 1 : 0;
    }
    return width;
}

TEST(TextFit, ElidesToWhatFitsWithoutCuttingACharacter) {
    const std::tuple<const char*, const char*, double, const char*, const char*> rows[] = {
        {"too long", "campo/lote.rpt", 8, "campo/l…", "…ote.rpt"},
        {"accents", "ñandúñandú", 4, "ñan…", "…ndú"},
        {"no blank before the dots", "lote norte", 6, "lote…", "…norte"},
        {"nothing fits", "lote", 0.5, "", ""},
    };
    for (const auto& [name, text, width, end, start] : rows) {
        SCOPED_TRACE(name);
        EXPECT_EQ(elidedEnd(text, kFont, width, oneEach), end);
        EXPECT_EQ(elidedStart(text, kFont, width, oneEach), start);
    }
}

TEST(TextFit, WrapsAtBlanksAndBreaksWhatIsTooLong) {
    const auto lines = [](std::string_view text, double width) {
        return wrapped(text, kFont, width, oneEach);
    };
    EXPECT_THAT(lines("viento del sur, 12 km/h", 10), ElementsAre("viento del", "sur, 12", "km/h"));
    EXPECT_THAT(lines("a\r\n\r\nb\n\n", 10), ElementsAre("a", "", "b"));
    EXPECT_THAT(lines("ñandúñandú si", 4), ElementsAre("ñand", "úñan", "dú", "si"));
    EXPECT_THAT(lines("ab", 0.5), ElementsAre("a", "b"));
    EXPECT_THAT(lines(" \n\n", 10), IsEmpty());
}

}  // namespace
}  // namespace campora
