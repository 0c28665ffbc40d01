// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/compare_dialog.h"

#include <QComboBox>
#include <QLabel>
#include <QSpinBox>
#include <QTest>
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "desktop/widgets/copied_table.h"
#include "support/session_desk.h"
#include "support/zone_map.h"

namespace campora {
namespace {

TEST(CompareDialog, ShowsTheGuessAndCopiesItsTablesByKey) {
    SessionDesk desk;
    desk.session.start();
    desk.open({desk.report("a.rpt")});
    desk.open({rowOfZones({"100", "50"}, {0, 0}).write(desk.folder, "zonas")});
    CompareDialog dialog(desk.session.findings().comparison, desk.session.texts(), desk.clipboard,
                         nullptr);
    auto* const plan = dialog.findChild<QComboBox*>("prescription");
    EXPECT_TRUE(plan->currentText().startsWith("zonas.shp: DOSIS"));
    auto* const doses = dialog.findChild<CopiedTable*>("doses");
    ASSERT_EQ(doses->rowCount(), 1);
    QTest::keyClick(doses, Qt::Key_C, Qt::ControlModifier);
    EXPECT_THAT(desk.clipboard.text, testing::HasSubstr("\n1\t100\t0.04\t4.0\t4.0\t"));
    auto* const limit = dialog.findChild<QSpinBox*>("limit");
    EXPECT_EQ(limit->value(), 10);
    limit->setValue(0);  // one step has 100 where 100 was prescribed, the other 101
    EXPECT_EQ(doses->horizontalHeaderItem(6)->text(), "Dentro de ±0 % (%)");
    EXPECT_EQ(doses->item(0, 6)->text(), "50.0");
    EXPECT_EQ(desk.session.findings().comparison.limit(), 0);
    for (const QWidget* named : {static_cast<QWidget*>(doses), static_cast<QWidget*>(plan),
                                 static_cast<QWidget*>(limit)}) {
        EXPECT_FALSE(named->accessibleName().isEmpty());
    }
}

}  // namespace
}  // namespace campora
