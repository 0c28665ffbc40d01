// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/legend_view.h"

#include <QApplication>
#include <QMenu>
#include <gmock/gmock.h>

#include "desktop/widgets/color_list.h"
#include "desktop/window_fixture.h"

namespace campora {
namespace {

using testing::ElementsAre;
using testing::HasSubstr;

class LegendViewTest : public WindowTest {
protected:
    void SetUp() override {
        WindowTest::SetUp();
        open({writeReport("lote.rpt")});
    }
    [[nodiscard]] const LegendView& legend() const { return window->sidePanel().legend(); }
    [[nodiscard]] const ColorList& classes() const { return legend().classes(); }
    [[nodiscard]] QWidget& viewport() const { return *classes().viewport(); }
    [[nodiscard]] ColorScale& scale() const { return window->session().map().scales().shown(); }
    [[nodiscard]] QPoint middleOf(int row) const {
        return classes().visualItemRect(classes().item(row)).center();
    }
    /// The menu that is open, or null.
    [[nodiscard]] QMenu* menu() const {
        return qobject_cast<QMenu*>(QApplication::activePopupWidget());
    }
    void closeMenu() const {
        while (QMenu* open = menu()) {
            open->close();
        }
        QCoreApplication::sendPostedEvents(nullptr, QEvent::DeferredDelete);
    }
    void press(Qt::Key key, Qt::KeyboardModifiers modifiers = {}) const {
        QTest::keyClick(const_cast<ColorList*>(&classes()), key, modifiers);
    }
    /// Triggers the entry of that text in the open menu or below it.
    void choose(TextId text) const {
        ASSERT_NE(menu(), nullptr);
        const QString shown = toQt(window->session().texts()(text));
        for (QAction* found : legend().findChildren<QAction*>()) {
            if (found->text() == shown) {
                EXPECT_TRUE(found->isEnabled());
                found->trigger();
                closeMenu();
                return;
            }
        }
        FAIL() << "no entry " << toUtf8(shown);
    }
};

TEST_F(LegendViewTest, TheKeyboardReachesEverything) {
    const_cast<ColorList&>(classes()).setFocus();
    press(Qt::Key_Home);
    press(Qt::Key_Down);
    ASSERT_EQ(classes().currentRow(), 1);
    dialogs.colorAnswers = {Color{0x000001}, Color{0x000002}, Color{0x000003}};
    press(Qt::Key_F10, Qt::ShiftModifier);
    choose(TextId::ClassColor);
    EXPECT_EQ(scale().getClass(1).color, Color{1});
    press(Qt::Key_Menu);
    choose(TextId::ClassColor);
    EXPECT_EQ(scale().getClass(1).color, Color{2});
    press(Qt::Key_Return);
    QApplication::processEvents();
    EXPECT_EQ(scale().getClass(1).color, Color{3});
}

TEST_F(LegendViewTest, ADoubleClickChangesWhatAClassMayChange) {
    const auto doubleClick = [this](int row) {
        QTest::mouseClick(&viewport(), Qt::LeftButton, {}, middleOf(row));
        QTest::mouseDClick(&viewport(), Qt::LeftButton, {}, middleOf(row));
        QApplication::processEvents();
    };
    dialogs.colorAnswers = {Color{0x000009}};
    doubleClick(1);
    EXPECT_EQ(scale().getClass(1).color, Color{9});

    SetList doses;
    doses.addDosis(100);
    doses.addDosis(150);
    scale().allowClassEdit = false;
    scale().allowValueChange = true;
    scale().loadFromSetList(doses, 0);
    dialogs.inputAnswers = {"160"};
    doubleClick(1);
    EXPECT_EQ(classes().item(1)->text(), "160");
    EXPECT_THAT(dialogs.inputs, ElementsAre(HasSubstr("|Cambiar valor|150")));
}

}  // namespace
}  // namespace campora
