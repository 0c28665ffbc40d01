// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/finding_view.h"

#include <QHeaderView>

#include "desktop/window_fixture.h"

namespace campora {
namespace {

using FindingViewTest = WindowTest;

TEST_F(FindingViewTest, ProblemsAreGoneThroughWithKeys) {
    QAction* const next = window->findChild<QAction*>("nextProblem");
    ASSERT_NE(next, nullptr);
    EXPECT_FALSE(next->isEnabled());
    EXPECT_TRUE(next->toolTip().contains("No hay ningún trabajo abierto"));
    open({writeReport("lote.rpt")});
    FindingView& problems = window->sidePanel().problems();
    EXPECT_FALSE(window->session().findings().tables.isFound(FindingTable::Kind::Problems))
        << "not while files are opened";
    ASSERT_TRUE(next->isEnabled());
    next->trigger();
    EXPECT_TRUE(problems.isVisible());
    ASSERT_GT(problems.model()->rowCount(), 0);
    EXPECT_EQ(problems.currentIndex().row(), 0);
    EXPECT_TRUE(problems.isColumnHidden(0)) << "of one file";

    problems.setFocus();
    const double before = view().scaleX();
    QTest::keyClick(&problems, Qt::Key_Return);
    EXPECT_LT(view().scaleX(), before);
    QTest::keyClick(&problems, Qt::Key_C, Qt::ControlModifier);
    EXPECT_EQ(clipboard.text.substr(0, 17), "Archivo\tProblema\t");
    problems.setCurrentIndex(problems.model()->index(0, 4));
    QTest::keyClick(&problems, Qt::Key_Space);
    EXPECT_EQ(problems.horizontalHeader()->sortIndicatorSection(), 4);

    window->session().listCommands().removeCurrentFile();
    EXPECT_EQ(problems.model()->rowCount(), 0);
    EXPECT_FALSE(next->isEnabled());
}

}  // namespace
}  // namespace campora
