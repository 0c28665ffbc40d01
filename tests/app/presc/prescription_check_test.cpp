// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/prescription_check.h"

#include <gtest/gtest.h>

#include "base/files.h"
#include "presc/dose_raster.h"
#include "presc/generation.h"
#include "presc/load_grid.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"
#include "support/zone_layers.h"

namespace campora {
namespace {

constexpr double kDegree = 111320;
constexpr double kNear = 1e-3;

/// A prescription of two zones 100 m square side by side, and one 8 m square, in cells of 20 m,
/// written to a folder and read back. The grid has 40 m around the zones.
struct CheckedFile : testing::Test {
    CheckedFile() {
        const auto add = [this](float dose, double west, double side) {
            zones.add(dose,
                      {rectangleRing(west / kDegree, 0, (west + side) / kDegree, side / kDegree)});
        };
        add(40, 0, 100);
        add(10.4F, 100, 100);
        add(-7, 0, 8);
        channel.push_back(zones.channel());
    }

    std::unique_ptr<GridLayer> write(GridKind kind) {
        const Desk desk{dialogs, texts, locale};
        path = folder.file(kind == GridKind::Pre ? "lote.pre" : "lote.vrt");
        dialogs.inputAnswers.clear();
        dialogs.inputAnswers.emplace_back("3");
        const auto written = kind == GridKind::Pre ? generatePRE(path, 20, channel, desk)
                                                   : generateVRT(path, 20, {}, channel, desk);
        rule = written.value_or(GridRule());
        return loadGrid(path, desk, Color{});
    }

    TempFolder folder;
    ScriptedDialogs dialogs;
    FixedLocale locale;
    Texts texts;
    ZoneLayer zones;
    std::vector<ChannelZones> channel;
    GridRule rule;
    std::string path;
};

TEST_F(CheckedFile, AgreesAndTellsZonesAndFallbackApart) {
    const std::unique_ptr<GridLayer> file = write(GridKind::Pre);
    ASSERT_NE(file, nullptr);
    const PrescriptionCheck check = checkGrid(*file, channel, rule);
    EXPECT_TRUE(check.agrees());
    EXPECT_EQ(check.different, std::optional<std::int64_t>(0));
    const ChannelCheck& sums = check.channels.at(0);
    ASSERT_TRUE(sums.zones && sums.fallback);
    const double cells = static_cast<double>(check.cells);
    EXPECT_NEAR(sums.zones->hectares + sums.fallback->hectares, cells * 0.04, kNear);
    // Five by five cells a zone, 3 units a hectare elsewhere.
    EXPECT_NEAR(sums.zones->hectares, 50 * 0.04, kNear);
    EXPECT_NEAR(sums.zones->product, (25 * 40 + 25 * 10) * 0.04, 2);
    EXPECT_NEAR(sums.fallback->product, (cells - 50) * 0.04 * 3, kNear);
    EXPECT_NEAR(sums.all.product, sums.zones->product + sums.fallback->product, kNear);
    // 10.4 becomes 10, which is 4 per cent less.
    ASSERT_EQ(sums.rounded.size(), 1U);
    EXPECT_EQ(sums.rounded[0].asked, 10.4F);
    EXPECT_EQ(sums.rounded[0].written, 10);
    EXPECT_NEAR(sums.smallestZone.value_or(0), 64, 1);
    EXPECT_EQ(cellsBeyond(*file, 0, {20, 39}), check.cells);
    EXPECT_EQ(cellsBeyond(*file, 0, {5, {}}), check.cells - 50);

    EXPECT_TRUE(checkGrid(*write(GridKind::Vrt), channel, rule).channels.at(0).rounded.empty());
    EXPECT_TRUE(checkGrid(*file).channels.at(0).all.product > 0);
    EXPECT_FALSE(checkGrid(*file).isSameGrid);
}

TEST_F(CheckedFile, OneCellThatDiffersIsNamed) {
    const std::unique_ptr<GridLayer> meant = write(GridKind::Pre);
    ASSERT_NE(meant, nullptr);
    std::string bytes(readFile(path)->text());
    bytes[bytes.size() - 1] = '\xFF';  // the last cell: -253
    folder.write("lote.pre", bytes);
    const std::unique_ptr<GridLayer> file = loadGrid(path, {dialogs, texts, locale}, Color{});
    for (const PrescriptionCheck& check :
         {checkGrid(*file, channel, rule), checkGrid(*file, *meant)}) {
        EXPECT_FALSE(check.agrees());
        EXPECT_EQ(check.different, std::optional<std::int64_t>(1));
        EXPECT_EQ(check.channels.at(0).negative, 1);
    }
    rule.metres = 10;
    EXPECT_EQ(checkGrid(*file, channel, rule).isSameGrid, std::optional(false));
}

}  // namespace
}  // namespace campora
