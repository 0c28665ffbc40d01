// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/finding_commands.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/session_desk.h"

namespace campora {
namespace {

using Kind = FindingTable::Kind;
using Words = std::vector<std::string>;

/// Metres east and north of (0, 0) at which positions of made files begin.
constexpr double kEast = 1000;

/// A pass of 60 records, 10 m and 2 s apart, from west to east: no dose at records 20 to 24, too
/// much at 40 to 49.
struct FindingCommandsTest : testing::Test, SessionDesk {
    FindingCommandsTest() {
        session.start();
        RptBytes bytes(1);
        for (int i = 0; i < 60; ++i) {
            RptBytes::Record record;
            record.position = fixAt(10.0 * i, 0);
            record.realTenths[0] = i >= 20 && i < 25 ? 0 : i >= 40 && i < 50 ? 1300 : 1000;
            record.time.time = {10, i * 2 / 60, i * 2 % 60};
            bytes.add(record);
        }
        path = folder.write("lote.rpt", bytes.bytes());
    }

    [[nodiscard]] Words column(Kind kind, std::size_t number) {
        Words cells;
        const FindingTable& table = commands.table(kind);
        for (std::size_t row = 0; row < table.rowCount(); ++row) {
            cells.push_back(table.cell(row, number));
        }
        return cells;
    }
    /// Where the halo begins and ends, in tens of metres; "" without one.
    [[nodiscard]] std::string halo() {
        const auto laid = window.laid<HaloLine>();
        if (!laid) {
            return "";
        }
        std::string text;
        for (const CanvasPoint& end : {laid->points.front(), laid->points.back()}) {
            const LonLat at = session.display().view().transform().screenToMap(
                static_cast<float>(end.x), static_cast<float>(end.y));
            text += " " + std::to_string(std::lround((at.x * METERS_PER_DEGREE - kEast) / 10));
        }
        return text;
    }

    std::string path;
    FindingCommands& commands = session.findings().tables;
};

TEST_F(FindingCommandsTest, NothingIsLookedForBeforeItIsAskedForNorTwice) {
    EXPECT_EQ(commands.whyNoProblem(), TextId::NoWorkOpen);
    ASSERT_TRUE(open({path}));
    EXPECT_FALSE(commands.isFound(Kind::Problems));
    EXPECT_EQ(commands.whyNoProblem(), std::nullopt) << "nobody has looked";
    EXPECT_EQ(column(Kind::Problems, 1), (Words{"Sin dosis", "Dosis fuera del límite"}));
    EXPECT_EQ(column(Kind::Passes, 4), Words{"590"});
    const FindingTable* const before = &commands.table(Kind::Problems);
    session.colours().drawing.mnuEditDoted();
    EXPECT_EQ(&commands.table(Kind::Problems), before);
    dialogs.inputAnswers = {"10"};
    session.colours().drawing.mnuEditTrocha();
    EXPECT_FALSE(commands.isFound(Kind::Problems)) << "other hectares";
    EXPECT_EQ(column(Kind::Problems, 5), (Words{"0.050", "0.100"}));
    session.map().style().errorLimit = 40;
    EXPECT_EQ(column(Kind::Problems, 1), Words{"Sin dosis"});
    session.fileCommands().reload();
    EXPECT_FALSE(commands.isFound(Kind::Passes));
    ASSERT_TRUE(open({report("corto.rpt", 1000)}, true));
    EXPECT_EQ(commands.whyEmpty(Kind::Problems), TextId::NoProblemsFound);
    EXPECT_EQ(commands.whyNoProblem(), TextId::NoProblemsFound);
}

TEST_F(FindingCommandsTest, AStretchIsPickedOutOnTheMap) {
    ASSERT_TRUE(open({path}));
    EXPECT_EQ(halo(), "");
    TimeStrip& strip = session.findings().timeStrip;
    strip.setShown(true);
    commands.stepProblem(true);
    EXPECT_EQ(halo(), " 20 25");
    EXPECT_EQ(strip.stretch()->record, 20U) << "the strip shows when it was";
    strip.setShown(false);
    EXPECT_EQ(session.findings().chosenStretch()->record, 20U) << "and can be played from there";
    commands.sortBy(Kind::Problems, 8, true);
    EXPECT_EQ(column(Kind::Problems, 8), (Words{"0.100", "0.060"})) << "by what was lost";
    commands.sortBy(Kind::Problems, 8, false);
    EXPECT_EQ(commands.selected(Kind::Problems), 1U) << "the same problem";
    commands.stepProblem(true);
    EXPECT_EQ(halo(), " 40 50");
    commands.stepProblem(true);
    EXPECT_EQ(halo(), " 20 25") << "from the last to the first";
    commands.stepProblem(false);
    EXPECT_EQ(halo(), " 40 50");
    const auto scale = [this] { return session.display().view().scaleX(); };
    const auto isInView = [this] {
        const auto laid = window.laid<HaloLine>();
        return laid && laid->points.front().x > 0 && laid->points.back().x < 1000;
    };
    const float whole = scale();
    commands.zoomTo(Kind::Problems, 1);
    const float close = scale();
    EXPECT_LT(close, whole / 2);
    commands.stepProblem(true);
    EXPECT_TRUE(isInView());
    EXPECT_GT(scale(), close) << "100 m are more than what was shown";
    const float coarser = scale();
    commands.stepProblem(false);
    EXPECT_TRUE(isInView()) << "at the scale at which 50 m fit";
    EXPECT_EQ(scale(), coarser);
    commands.select(Kind::Problems, std::nullopt);
    EXPECT_EQ(halo(), "");
    commands.select(Kind::Passes, 0);
    ASSERT_TRUE(open({report("otro.rpt")}, true));
    EXPECT_EQ(halo(), "") << "of a file that has gone";
}

TEST_F(FindingCommandsTest, WhatTheInformationToolIsAskedAboutIsSelected) {
    ASSERT_TRUE(open({path}));
    session.tools().setTool(ToolId::Info);
    std::vector<Kind> told;
    commands.onSelected = [&told](Kind kind) { told.push_back(kind); };
    const auto ask = [this](double metres) {
        const CanvasPoint at = session.display().view().transform().mapToScreen(
            (kEast + metres) / METERS_PER_DEGREE, kEast / METERS_PER_DEGREE);
        session.tools().press(MapTools::Button::Left, at);
        session.tools().release(MapTools::Button::Left, at);
    };
    ask(445);
    EXPECT_TRUE(told.empty()) << "no table was shown";
    static_cast<void>(commands.table(Kind::Problems));
    ask(445);
    EXPECT_EQ(commands.selected(Kind::Problems), 1U);
    EXPECT_EQ(halo(), " 40 50");
    ask(105);
    EXPECT_EQ(commands.selected(Kind::Problems), std::nullopt);
    EXPECT_EQ(told, (std::vector{Kind::Problems, Kind::Problems}));
}

TEST_F(FindingCommandsTest, ATableIsCopiedWithItsHeadings) {
    ASSERT_TRUE(open({path}));
    EXPECT_EQ(
        commands.table(Kind::Passes).asText(),
        "Archivo\tPasada\tInicio\tDuración\tLargo (m)\tHa aplicadas\tDosis/ha\t"
        "Desvío de la dosis\tVelocidad (km/h)\tRumbo (°)\tMayor error (%)\n"
        "lote.rpt\t1\t05/03/2018 10:00:00\t0:01:58\t590\t1.08\t105.6\t11.7\t12.0\t90\t30.0\n");
}

}  // namespace
}  // namespace campora
