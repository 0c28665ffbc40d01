// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/work_orders_dialog.h"

#include <functional>

#include <QComboBox>
#include <QPushButton>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include "desktop/platform/qt_text.h"
#include "support/session_desk.h"

namespace campora {
namespace {

using Names = std::vector<std::string>;

class WorkOrdersDialogTest : public ::testing::Test {
protected:
    SessionDesk desk;
    std::string card = desk.folder.file("card");
    std::unique_ptr<WorkOrdersDialog> dialog;

    void SetUp() override {
        desk.session.start();
        for (const char* name : {"1", "2", "3"}) {
            TrackText track;
            track.order = name == std::string("3") ? "S/N" : "15";
            track.serial = name;
            track.addPoint(100, 0, 5, 20);
            track.addPoint(200, 0, 5, 20);
            desk.folder.write(std::string("card/log") + name + ".nbr", track.bytes());
        }
        dialog = std::make_unique<WorkOrdersDialog>(desk.session.map(), desk.session.display(),
                                                    desk.session.tools(), desk.session.services(),
                                                    nullptr);
    }
    [[nodiscard]] QTreeWidget& list() const { return *dialog->findChild<QTreeWidget*>("fileList"); }
    [[nodiscard]] QPushButton& button(const char* name) const {
        return *dialog->findChild<QPushButton*>(name);
    }
    void select(int row) const { list().setCurrentItem(list().topLevelItem(row)); }
    /// Shows the card, acts, and closes the dialog if it is still open.
    void run(const std::function<void()>& acting) {
        const auto act = [this, acting] {
            EXPECT_EQ(list().topLevelItemCount(), 2);
            if (list().topLevelItemCount() == 2) {
                acting();
            }
            dialog->reject();
        };
        // The dialog begins its own work in the turn between these two.
        QTimer::singleShot(0, dialog.get(),
                           [this, act] { QTimer::singleShot(0, dialog.get(), act); });
        dialog->showOpen(card);
    }
};

TEST_F(WorkOrdersDialogTest, AddingKeepsTheDialogAndCancelOnlyStopsIt) {
    run([this] {
        select(1);
        button("cmdAdd").click();
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_EQ(desk.session.map().plotCount(), 1);
        select(0);
        desk.clock.onEvents = [this](int) {
            EXPECT_FALSE(button("cmdOpen").isEnabled());
            button("CmdCancel").click();
        };
        button("cmdOpen").click();
        EXPECT_TRUE(dialog->isVisible());
        EXPECT_TRUE(button("cmdOpen").isEnabled());
    });
    EXPECT_EQ(desk.listed(), (Names{"S/N - log3.nbr", "15 - log1.nbr"}));
}

TEST_F(WorkOrdersDialogTest, CancelTakesThePreviewOffTheMap) {
    run([this] {
        QComboBox& preview = *dialog->findChild<QComboBox*>("comboPrev");
        EXPECT_EQ(preview.count(), 2) << "nothing is open to preview beside";
        const QTreeView& folders = *dialog->findChild<QTreeView*>("Dir1");
        EXPECT_TRUE(folders.isColumnHidden(1));
        EXPECT_GT(folders.height(), dialog->height() / 4);
        select(0);
        preview.setCurrentIndex(1);
        EXPECT_EQ(desk.session.map().plotCount(), 2);
    });
    EXPECT_EQ(desk.session.map().plotCount(), 0);
}

}  // namespace
}  // namespace campora
