// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_presc_vex.h"

#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/zone_map.h"

namespace campora {
namespace {

struct PrescVexTest : testing::Test {
    GphPresc& add(const std::string& name, const std::vector<std::string>& doses, LonLat corner) {
        auto presc = std::make_unique<GphPresc>();
        EXPECT_TRUE(presc->loadFromFile(rowOfZones(doses, corner).write(folder, name),
                                        {dialogs, Texts(), FixedLocale()}));
        presc->setColumnaDosis(1);
        GphPresc& added = *presc;
        vex.addChannel(std::move(presc));
        return added;
    }

    TempFolder folder;
    ScriptedDialogs dialogs;
    GphPrescVex vex{"Prescripción", ','};
};

TEST_F(PrescVexTest, SumsUpItsChannelsByTheDosesOfNow) {
    GphPresc& first = add("uno", {"10"}, {0, 0});
    add("dos", {"20", "30"}, {0, 0});
    const auto entries = [this] { return vex.File_resumen().entries(); };
    // 0.01 degrees squared at the equator: 111 x 111 cells of 10 m, or 11 x 11 of 100 m.
    EXPECT_EQ(entries(), (std::vector<SummaryEntry>{{"Archivo (C 1)", "uno.shp", ""},
                                                    {"Columna (C 1)", "DOSIS", ""},
                                                    {"Archivo (C 2)", "dos.shp", ""},
                                                    {"Columna (C 2)", "DOSIS", ""},
                                                    {"Superficie (C 1)", "123,21", "Has"},
                                                    {"Producto total (C 1)", "1232,1", "unid"},
                                                    {"Superficie (C 2)", "247,53", "Has"},
                                                    {"Producto total (C 2)", "6193,8", "unid"}}));
    first.setDosis(0, 100.5F);
    EXPECT_EQ(entries()[5].value, "12321") << "as the grid rounds";
    vex.setRule({GridKind::Vrt, 100, {}});
    EXPECT_EQ(entries()[7].value, "6050");
}

}  // namespace
}  // namespace campora
