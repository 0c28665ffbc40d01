// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/summary_editor_dialog.h"

#include <filesystem>

#include <QLineEdit>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>
#include <gtest/gtest.h>

#include "base/files.h"
#include "base/paths.h"
#include "desktop/platform/qt_text.h"
#include "support/scripted_platform.h"
#include "support/temp_folder.h"

namespace campora {
namespace {

/// The widgets of a summary editor by their names.
struct EditorWidgets {
    QWidget& dialog;

    [[nodiscard]] QTreeWidget& list() const { return *dialog.findChild<QTreeWidget*>("DataList"); }
    [[nodiscard]] QPushButton& button(const char* name) const {
        return *dialog.findChild<QPushButton*>(name);
    }
    [[nodiscard]] QLineEdit& field(const char* name) const {
        return *dialog.findChild<QLineEdit*>(name);
    }
    [[nodiscard]] QString names() const {
        QStringList texts;
        for (int i = 0; i < list().topLevelItemCount(); ++i) {
            texts += list().topLevelItem(i)->text(0);
        }
        return texts.join(' ');
    }
};

class SummaryEditorDialogTest : public ::testing::Test {
protected:
    TempFolder folder;
    ScriptedDialogs dialogs;
    Texts texts;
    FixedLocale locale;
    Desk desk{dialogs, texts, locale};
    std::string path = folder.write("card/Wrk0001.txt", "A:,1,m\r\nB:,2,\r\nC:,3,\r\n");
    SummaryEditor editor{path, desk};
    SummaryEditorDialog dialog{editor, desk, nullptr};
    EditorWidgets widgets{dialog};
};

TEST_F(SummaryEditorDialogTest, RowsAreChangedWithTheButtons) {
    EXPECT_EQ(widgets.names(), "A B C");
    EXPECT_EQ(widgets.field("txtCampo3").text(), "m");
    EXPECT_FALSE(widgets.button("cmdQuit").isEnabled());
    widgets.list().setCurrentItem(widgets.list().topLevelItem(1));
    EXPECT_EQ(widgets.field("txtCampo1").text(), "B");
    widgets.button("cmdUp").click();
    EXPECT_EQ(widgets.names(), "B A C");
    EXPECT_EQ(widgets.list().indexOfTopLevelItem(widgets.list().currentItem()), 0);
    widgets.button("cmdDown").click();
    widgets.button("cmdDown").click();
    EXPECT_EQ(widgets.names(), "A C B");
    widgets.field("txtCampo1").setText("Ñ");
    widgets.button("cmdAdd").click();
    EXPECT_EQ(widgets.names(), "A C Ñ B");
    QTest::keyClick(&widgets.field("txtCampo1"), Qt::Key_Return);
    EXPECT_EQ(widgets.names(), "A C Ñ Ñ");
    dialogs.answers = {Answer::Yes};
    widgets.button("cmdQuit").click();
    EXPECT_EQ(widgets.names(), "A C Ñ");
    EXPECT_FALSE(widgets.button("cmdChange").isEnabled());
    widgets.button("cmdAcept").click();
    EXPECT_EQ(dialog.result(), QDialog::Accepted);
    EXPECT_EQ(readFile(path)->text(),
              "\"A:\",\"1\",\"m\"\r\n\"C:\",\"3\",\"\"\r\n\"\xD1:\",\"2\",\"\"\r\n")
        << "in the code page of consoles";
}

TEST_F(SummaryEditorDialogTest, StaysOpenWhenTheFileCannotBeWritten) {
    dialog.show();
    std::filesystem::remove_all(nativePath(folder.file("card")));
    widgets.button("cmdAcept").click();
    EXPECT_TRUE(dialog.isVisible());
    EXPECT_EQ(dialogs.messages.size(), 1U);
    widgets.button("CmdCancel").click();
    EXPECT_FALSE(dialog.isVisible());
}

}  // namespace
}  // namespace campora
