// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/coord_dialog.h"

#include <functional>

#include <QLabel>
#include <QLineEdit>
#include <QRadioButton>
#include <QTest>
#include <QTimer>
#include <gtest/gtest.h>

#include "desktop/platform/qt_text.h"
#include "support/scripted_platform.h"

namespace campora {
namespace {

class CoordDialogTest : public ::testing::Test {
protected:
    ScriptedDialogs dialogs;
    Texts texts{Language::Spanish};
    FixedLocale locale{','};
    CoordDialog dialog{nullptr, {dialogs, texts, locale}, CoordType::DegreesMinutesSeconds};

    [[nodiscard]] QLineEdit& box(const char* name) { return *dialog.findChild<QLineEdit*>(name); }
    void choose(const char* name) { dialog.findChild<QRadioButton*>(name)->click(); }
    void whenOpen(std::function<void()> act) { QTimer::singleShot(0, &dialog, std::move(act)); }
};

TEST_F(CoordDialogTest, TakesAPositionFromTheKeyboard) {
    whenOpen([this] {
        ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
        QTest::keyClicks(dialog.focusWidget(), "34");
        QTest::keyClick(&dialog, Qt::Key_Tab);
        QTest::keyClicks(dialog.focusWidget(), "15.5");
        choose("latSignN");
        EXPECT_EQ(box("txtLatM").text(), "15,5");
        EXPECT_TRUE(
            dialog.findChild<QLabel*>("lblShowLat")->text().startsWith(toQt("Lat:   -34º  15' ")));
        choose("format2");
        EXPECT_TRUE(box("txtLatM").isVisible());
        EXPECT_FALSE(box("txtLongS").isVisible());
        QTest::keyClick(&dialog, Qt::Key_Return);
    });
    const std::optional<LonLat> point = dialog.showInput();
    ASSERT_TRUE(point);
    EXPECT_EQ(point->x, 0);
    EXPECT_NEAR(point->y, -(34 + 15.5 / 60), 1e-12);
}

TEST_F(CoordDialogTest, AWrongBoxIsMarkedAndKeepsTheDialogOpen) {
    const auto background = [this] { return box("txtLongS").palette().color(QPalette::Base); };
    const QColor normal = background();
    whenOpen([&] {
        box("txtLongS").setText("12abc");
        EXPECT_NE(background(), normal);
        QTest::keyClick(&dialog, Qt::Key_Return);
        EXPECT_EQ(dialogs.messages,
                  std::vector<std::string>{"Exclamation|Error|Coordenada invalida"});
        EXPECT_TRUE(dialog.isVisible());
        EXPECT_EQ(dialog.focusWidget(), &box("txtLongS"));
        box("txtLongS").setText("12");
        EXPECT_EQ(background(), normal);
        QTest::keyClick(&dialog, Qt::Key_Escape);
    });
    EXPECT_EQ(dialog.showInput(), std::nullopt);
}

}  // namespace
}  // namespace campora
