// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/coverage_commands.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/lot_files.h"
#include "support/session_desk.h"

namespace campora {
namespace {

struct CoverageMap : testing::Test, SessionDesk {
    CoverageMap() { session.start(); }

    [[nodiscard]] CoverageCommands& commands() { return session.findings().coverage; }
    /// "name value", of the figures and of the legend.
    [[nodiscard]] std::vector<std::string> shown() const {
        std::vector<std::string> rows;
        for (const SummaryRow& row : window.summary) {
            rows.push_back(row.property + " " + row.value);
        }
        for (const LegendRow& row : window.legend.classes) {
            rows.push_back(row.text);
        }
        return rows;
    }
};

TEST_F(CoverageMap, ShowsWhatWasCoveredUntilAnotherMapIsAsked) {
    // Two files of one pass of 20 metres, 20 wide.
    ASSERT_EQ(open({report("a.rpt"), report("b.rpt", 1000, 0x6002)}), 2U);
    const std::vector<std::string> before = shown();
    commands().toggleMap();
    EXPECT_TRUE(commands().isMapOn());
    EXPECT_THAT(shown(),
                testing::IsSupersetOf(
                    {"Cobertura: a.rpt", "Superficie recorrida: 0.04 ha",
                     "Cobertura neta: 0.04 ha (100.0 %)", "Cobertura: Todos los trabajos juntos",
                     "Superficie recorrida: 0.08 ha", "Cobertura neta: 0.04 ha (50.0 %)",
                     "Superposición: 0.04 ha (50.0 %)", "Dos veces: 0.04 ha (100.0 %)",
                     "Dos veces: 0.04 ha", "Una vez: 0.00 ha"}));
    EXPECT_FALSE(canvas.callsOf("rectangle").empty());
    session.map().removeFile(session.map().files().currentFile());
    session.display().showChange();
    EXPECT_THAT(shown(), testing::Contains("Una vez: 0.04 ha"));
    EXPECT_THAT(shown(), testing::Contains(testing::HasSubstr("Superficie recorrida")).Times(1));
    dialogs.inputAnswers = {"10"};
    session.colours().drawing.mnuEditTrocha();
    EXPECT_THAT(shown(), testing::Contains("Una vez: 0.02 ha"));
    session.colours().modes.mnuColorDateMap();
    EXPECT_FALSE(commands().isMapOn());
    EXPECT_THAT(shown(), testing::Not(testing::Contains(testing::HasSubstr("Cobertura"))));
    commands().toggleMap();
    commands().toggleMap();
    EXPECT_EQ(session.map().style().mode, ColorMode::Dose);
    EXPECT_THAT(shown(), testing::Not(testing::Contains(testing::HasSubstr("Cobertura"))));
}

TEST_F(CoverageMap, NeedsWorkWithProduct) {
    EXPECT_EQ(commands().whyNot(), TextId::NoAppliedWork);
    ASSERT_TRUE(open({track("log0002.nbr", 40, 1)}));
    EXPECT_EQ(commands().whyNot(), TextId::NoAppliedWork) << "a record covers no ground";
    ASSERT_TRUE(open({track("log0001.nbr", 0)}, true));
    commands().toggleMap();
    EXPECT_FALSE(commands().isMapOn());
    EXPECT_EQ(dialogs.messages.size(), 1U);
    ASSERT_TRUE(open({report("a.rpt")}));
    commands().toggleMap();
    session.map().removeFile(session.map().files().currentFile());
    session.map().removeFile(session.map().files().currentFile());
    EXPECT_EQ(session.map().style().mode, ColorMode::Dose);
}

}  // namespace
}  // namespace campora
