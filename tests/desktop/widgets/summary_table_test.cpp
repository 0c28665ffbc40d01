// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/summary_table.h"

#include <gtest/gtest.h>

namespace campora {
namespace {

TEST(SummaryTable, BringsRowsThatAreAddedIntoView) {
    SummaryTable table;
    table.resize(300, 120);
    table.show();
    const auto topRow = [&table] { return table.indexOfTopLevelItem(table.itemAt(5, 5)); };
    std::vector<SummaryRow> rows(20, {"Dosis", "80"});
    table.setRows(rows);
    EXPECT_EQ(topRow(), 0);
    rows.resize(40, {"Cobertura", "12 ha"});
    table.setRows(rows);
    EXPECT_EQ(topRow(), 20);
    table.scrollToTop();
    table.setRows(rows);
    EXPECT_EQ(topRow(), 0) << "nothing was added";
    rows.insert(rows.begin(), {"Archivo", "otro.rpt"});
    table.setRows(rows);
    EXPECT_EQ(topRow(), 0) << "another summary";
}

}  // namespace
}  // namespace campora
