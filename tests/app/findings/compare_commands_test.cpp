// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/compare_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/session_desk.h"
#include "support/zone_map.h"

namespace campora {
namespace {

using testing::Contains;
using testing::HasSubstr;

struct CompareCommandsTest : testing::Test, SessionDesk {
    CompareCommandsTest() { session.start(); }

    [[nodiscard]] std::vector<std::string> legend() const {
        std::vector<std::string> rows;
        for (const LegendRow& row : window.legend.classes) {
            rows.push_back(row.text);
        }
        for (const LegendRow& row : window.legend.reference) {
            rows.push_back(row.text);
        }
        return rows;
    }
    /// Zones where the reports are: 100 under their first two points, 50 far to the east.
    [[nodiscard]] std::string zonesAt(LonLat corner, const std::string& name) const {
        return rowOfZones({"100", "50"}, corner).write(folder, name);
    }

    CompareCommands& commands = session.findings().comparison;
};

TEST_F(CompareCommandsTest, SaysWhatIsMissing) {
    EXPECT_EQ(commands.whyNot(), TextId::WhyNoJob);
    ASSERT_TRUE(open({report("a.rpt")}, true));
    EXPECT_EQ(commands.whyNot(), TextId::WhyNoPrescription);
    commands.toggleMap();
    EXPECT_FALSE(commands.isMapOn());
    ASSERT_TRUE(open({zonesAt({0, 0}, "zonas")}));
    EXPECT_EQ(commands.whyNot(), std::nullopt);
}

TEST_F(CompareCommandsTest, TheMapShowsHowFarOffEachStepIs) {
    ASSERT_TRUE(open({report("a.rpt", 1090), zonesAt({0, 0}, "zonas")}));
    session.map().files().setCurrentFile(&session.map().files().file(0));
    commands.toggleMap();
    EXPECT_TRUE(commands.isMapOn());
    EXPECT_EQ(window.legend.unit, "Desvío de lo prescripto");
    // Two steps of 10 m by 20 m: 109 and 110 where 100 was prescribed.
    EXPECT_THAT(legend(), Contains("de +5 a +10 %: 0.04 ha"));
    EXPECT_THAT(legend(), Contains("Fuera de la prescripción: 0.00 ha"));
    commands.toggleMap();
    EXPECT_EQ(session.map().style().mode, ColorMode::Dose);
}

TEST_F(CompareCommandsTest, NetGroundIsCountedAgainOnlyWhenTheWorkIsAnother) {
    ASSERT_TRUE(open({report("a.rpt")}, true));
    const LoadedFileList& files = session.map().files();
    NetWorks works;
    const auto ofJob = [&] { return works.of(workLayers(files.file(0)), files); };
    const std::shared_ptr<const NetWork> counted = ofJob();
    EXPECT_EQ(ofJob(), counted);
    for (Gph* layer : session.map().getGphList()) {
        dynamic_cast<WorkLayer&>(*layer).trocha(30);
    }
    const std::shared_ptr<const NetWork> wider = ofJob();
    ASSERT_NE(wider, counted);
    EXPECT_NEAR(wider->hectares()[0], counted->hectares()[0] * 1.5, 1e-6);
}

TEST_F(CompareCommandsTest, GuessesByGroundUntilTheUserChooses) {
    ASSERT_TRUE(open({report("a.rpt"), zonesAt({-60, -33}, "lejos")}));
    const File& job = *commands.jobs().at(0);
    EXPECT_FALSE(commands.choices(job).current);
    EXPECT_FALSE(commands.compare(job));
    commands.choose(job, commands.choices(job).all.at(0).key);
    ASSERT_TRUE(commands.compare(job));
    EXPECT_TRUE(commands.compare(job)->rows.empty());

    ASSERT_TRUE(open({zonesAt({0, 0}, "zonas")}));
    commands.choose(job, "");
    const CompareCommands::Choices choices = commands.choices(job);
    ASSERT_EQ(choices.current, std::optional<std::size_t>(1));
    EXPECT_THAT(choices.all[1].caption, HasSubstr("zonas.shp: DOSIS (por el terreno: 100 %"));
    const std::optional<ComparisonTexts> shown = commands.compare(job);
    ASSERT_TRUE(shown);
    using Row = std::vector<std::string>;
    EXPECT_EQ(shown->rows,
              (std::vector<Row>{{"1", "100", "0.04", "4.0", "4.0", "100.5", "100.0"}}));
}

}  // namespace
}  // namespace campora
