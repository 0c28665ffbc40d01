// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/summary_names.h"

#include <array>
#include <string>

#include <gtest/gtest.h>

#include "support/session_desk.h"

namespace campora {
namespace {

TEST(SummaryNames, AreReadInTheUsersLanguage) {
    // As stored, and in each language.
    const std::array<const char*, 4> rows[] = {
        {"Fecha:", "Fecha:", "Data:", "Date:"},
        {"Hect. Sembradas: ", "Hect. Sembradas:", "Hectares plantados:", "Hectares sown:"},
        {"DURACIÓN:", "Duración:", "Duração:", "Duration:"},
        {"Dosis Prom. (C 12):", "Dosis Prom. (C 12):", "Dose média (C 12):",
         "Average dose (C 12):"},
        {"Dosis Prom. (C x):", "Dosis Prom. (C x):", "Dosis Prom. (C x):", "Dosis Prom. (C x):"},
        {"Potrero: ", "Potrero: ", "Potrero: ", "Potrero: "},
    };
    for (const auto& [stored, spanish, portuguese, english] : rows) {
        EXPECT_EQ(shownSummaryName(stored, Texts(Language::Spanish)), spanish);
        EXPECT_EQ(shownSummaryName(stored, Texts(Language::Portuguese)), portuguese);
        EXPECT_EQ(shownSummaryName(stored, Texts(Language::English)), english);
    }
    EXPECT_EQ(shownUnit("unid/hect", Texts(Language::English)), "units/ha");
    EXPECT_EQ(shownUnit("lt/hect", Texts(Language::Portuguese)), "L/ha");
    EXPECT_EQ(shownUnit("km/h", Texts(Language::English)), "km/h");
}

TEST(SummaryNames, TheClipboardHoldsWhatIsShown) {
    SessionDesk desk(Language::English);
    desk.session.start();
    ASSERT_TRUE(desk.open({desk.report("lote.rpt")}, true));
    EXPECT_EQ(desk.window.summary.front(), (SummaryRow{"File name:", "lote.rpt "}));
    desk.session.summaryCommands().copyData(desk.clipboard);
    EXPECT_TRUE(desk.clipboard.text.starts_with("File name: lote.rpt \r\nSerial number: "));
    EXPECT_NE(desk.clipboard.text.find("Average dose: 152 L/ha\r\n"), std::string::npos)
        << desk.clipboard.text;
    EXPECT_EQ(desk.window.legend.unit, "L/ha");
    EXPECT_EQ(desk.session.map().files().file(0).File_resumen().property(0), "Nombre Archivo:");
}

}  // namespace
}  // namespace campora
