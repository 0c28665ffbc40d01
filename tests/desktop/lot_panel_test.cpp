// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/lot_panel.h"

#include <QAbstractButton>
#include <QLabel>
#include <QPlainTextEdit>
#include <QTableView>
#include <QTimer>

#include "desktop/dialogs/coord_dialog.h"
#include "desktop/window_fixture.h"
#include "support/lot_files.h"

namespace campora {
namespace {

struct LotPanelTest : WindowTest {
    void SetUp() override {
        WindowTest::SetUp();
        open({writeReport("a.rpt")});
        list().setCurrentRow(-1);
        action(TextId::ActionLot)->trigger();
    }
    [[nodiscard]] LotPanel& panel() const { return window->lotPanel(); }
    [[nodiscard]] LotEditor& editor() const { return window->session().lotEditor(); }
    template <typename Widget>
    [[nodiscard]] Widget& part(const char* name) const {
        return *panel().findChild<Widget*>(name);
    }
    void clickOnMap(QPoint at) { QTest::mouseClick(&map(), Qt::LeftButton, {}, at); }
    void drawTriangle() {
        clickOnMap({60, 60});
        clickOnMap({200, 60});
        clickOnMap({130, 200});
    }
};

TEST_F(LotPanelTest, KeysChangeTheLotAndNotTheListOfFiles) {
    drawTriangle();
    for (QWidget* focused :
         {static_cast<QWidget*>(&map()), static_cast<QWidget*>(&panel().vertices()),
          static_cast<QWidget*>(&part<QAbstractButton>("cmdLoteSave"))}) {
        focused->setFocus();
        QTest::keyClick(focused, Qt::Key_Insert);
        EXPECT_EQ(editor().draft().vertices().size(), 4U);
        QTest::keyClick(focused, Qt::Key_Delete);
        QTest::keyClick(focused, Qt::Key_Delete);
        EXPECT_EQ(editor().draft().vertices().size(), 2U);
        QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(focused, Qt::Key_Y, Qt::ControlModifier);
        EXPECT_EQ(editor().draft().vertices().size(), 3U);
        QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);
        QTest::keyClick(focused, Qt::Key_Z, Qt::ControlModifier);
        ASSERT_EQ(editor().draft().vertices().size(), 3U);
    }
    auto& description = part<QPlainTextEdit>("txtLoteDescription");
    description.setFocus();
    QTest::keyClicks(&description, "ab");
    QTest::keyClick(&description, Qt::Key_Backspace);
    QTest::keyClick(&description, Qt::Key_Insert);
    EXPECT_EQ(editor().draft().description(), "a");
    EXPECT_EQ(editor().draft().vertices().size(), 3U);
    EXPECT_EQ(rows().size(), 1U);
}

TEST_F(LotPanelTest, AVertexIsTyped) {
    // The box holds the last vertex or the middle of the map; it has the sign of that.
    const auto type = [this](const char* latitude) {
        QTimer::singleShot(0, window.get(), [this, latitude] {
            auto* const dialog = window->findChild<CoordDialog*>();
            ASSERT_NE(dialog, nullptr);
            dialog->findChild<QLineEdit*>("txtLatG")->setText(latitude);
            dialog->accept();
        });
    };
    type("12.5");
    part<QAbstractButton>("cmdLoteAdd").click();
    ASSERT_EQ(editor().draft().vertices().size(), 1U);
    EXPECT_EQ(editor().draft().vertices()[0].y, 12.5);
    EXPECT_NEAR(editor().draft().vertices()[0].x, under(map().rect().center()).x, 1e-4);
    editor().add({-58.25, -34.5});
    type("33");
    part<QAbstractButton>("cmdLoteMove").click();
    EXPECT_EQ(editor().draft().vertices()[1], (LonLat{-58.25, -33}));
    EXPECT_FALSE(panel().vertices().tabKeyNavigation()) << "Tab leads on to the next part";
}

TEST_F(LotPanelTest, MoreThanTenLinesAreTheUsersToCut) {
    auto& description = part<QPlainTextEdit>("txtLoteDescription");
    const QWidget& remark = part<QLabel>("lblLoteTooLong");
    const QString ten = "1\n2\n3\n4\n5\n6\n7\n8\n9\n10";
    description.insertPlainText(ten);
    EXPECT_FALSE(remark.isVisible());
    description.setFocus();
    description.moveCursor(QTextCursor::Start);
    QTest::keyClick(&description, Qt::Key_Return);
    QTest::keyClicks(&description, "x");
    EXPECT_EQ(description.toPlainText(), "\nx" + ten);
    EXPECT_EQ(description.textCursor().position(), 2);
    EXPECT_TRUE(remark.isVisible());
    QTest::keyClick(&description, Qt::Key_Z, Qt::ControlModifier);
    QTest::keyClick(&description, Qt::Key_Z, Qt::ControlModifier);
    EXPECT_EQ(description.toPlainText(), ten);
    EXPECT_FALSE(remark.isVisible());
    part<QAbstractButton>("cmdLoteClear").click();
    EXPECT_EQ(description.toPlainText(), "");
    part<QAbstractButton>("cmdLoteUndo").click();
    EXPECT_EQ(description.toPlainText(), ten);
}

TEST_F(LotPanelTest, TheWindowDoesNotCloseOverALotThatIsNotSaved) {
    drawTriangle();
    dialogs.yesNoAnswers = {false};
    EXPECT_FALSE(window->close());
    EXPECT_EQ(dialogs.questions.size(), 1U);
    dialogs.yesNoAnswers = {true};
    EXPECT_TRUE(window->close());
}

TEST_F(LotPanelTest, TheWindowDoesNotCloseOverAResultOfMergingThatIsNotSaved) {
    open({writeLot(folder, "a.lot", squareRing(-60, -34, 1)),
          writeLot(folder, "b.lot", squareRing(-59, -34, 1))});
    action(TextId::ActionLotMerge)->trigger();
    EXPECT_EQ(QGuiApplication::overrideCursor(), nullptr);
    dialogs.yesNoAnswers = {false};
    EXPECT_FALSE(window->close());
    EXPECT_TRUE(dialogs.questions.back().find("Fusionado") != std::string::npos);
    dialogs.yesNoAnswers = {true};
    EXPECT_TRUE(window->close());
}

}  // namespace
}  // namespace campora
