// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/legend_view.h"

#include <QApplication>
#include <QContextMenuEvent>
#include <QMenu>
#include <gmock/gmock.h>

#include "desktop/color_list.h"
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
    [[nodiscard]] ColorScale& scale() const { return window->session().shownScale(); }
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
    void rightClick(int row) const {
        const QPoint at = middleOf(row);
        QTest::mouseClick(&viewport(), Qt::RightButton, {}, at);
        QContextMenuEvent event(QContextMenuEvent::Mouse, at, viewport().mapToGlobal(at));
        QApplication::sendEvent(&viewport(), &event);
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

TEST_F(LegendViewTest, TheMenuChangesTheClasses) {
    const int before = classes().count();
    rightClick(2);
    choose(TextId::MoreClasses);
    EXPECT_EQ(classes().count(), before + 1);

    dialogs.colorAnswers = {Color{0x123456}};
    rightClick(2);
    choose(TextId::ClassColor);
    EXPECT_EQ(scale().getClass(2).color, Color{0x123456});
    EXPECT_EQ(classes().item(2)->data(Qt::AccessibleDescriptionRole).toString(), "Color #563412");
    EXPECT_EQ(classes().currentRow(), 2) << "the row stays in use";

    rightClick(0);
    choose(TextId::RampGreys);
    EXPECT_EQ(scale().getClass(0).color, Color::rgb(224, 224, 224));
    EXPECT_TRUE(dialogs.messages.empty());
}

TEST_F(LegendViewTest, EveryReadyRampHasItsPicture) {
    rightClick(0);
    ASSERT_NE(menu(), nullptr);
    QMenu* const ramps = menu()->actions().back()->menu();
    ASSERT_NE(ramps, nullptr);
    ASSERT_EQ(ramps->actions().size(), static_cast<qsizetype>(readyRamps().size()));
    for (std::size_t i = 0; i < readyRamps().size(); ++i) {
        const QImage picture =
            ramps->actions()[static_cast<int>(i)]->icon().pixmap(16, 16).toImage();
        const Color start = readyRamps()[i].start;
        const QColor left = picture.pixelColor(0, 8);
        EXPECT_NEAR(left.red(), start.red(), 20);
        EXPECT_NEAR(left.green(), start.green(), 20);
        EXPECT_NEAR(left.blue(), start.blue(), 20);
    }
    closeMenu();
}

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
    press(Qt::Key_F10);
    EXPECT_EQ(menu(), nullptr);
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

    rightClick(1);
    ASSERT_NE(menu(), nullptr);
    std::vector<std::string> refused;
    for (const QAction* entry : menu()->actions()) {
        if (!entry->isEnabled() && !entry->isSeparator()) {
            refused.push_back(toUtf8(entry->text()));
        }
    }
    EXPECT_THAT(refused, ElementsAre("&Más clases", "M&enos clases", "Ca&ntidad de clases...",
                                     "E&xtremos..."));
    dialogs.inputAnswers = {"170"};
    choose(TextId::ChangeValue);
    EXPECT_EQ(classes().item(1)->text(), "170");
}

TEST_F(LegendViewTest, AScreenReaderSaysBoundsUnitAndColour) {
    window->session().setLanguage(Language::English);
    const QListWidgetItem& first = *classes().item(0);
    EXPECT_EQ(first.data(Qt::AccessibleTextRole).toString(), first.text() + " L/ha");
    EXPECT_EQ(first.data(Qt::AccessibleDescriptionRole).toString(), "Colour #FFFF00");
    EXPECT_EQ(legend().reference().item(0)->data(Qt::AccessibleTextRole).toString(), "Sprayed");
    EXPECT_FALSE(classes().accessibleName().isEmpty());
    EXPECT_THAT(toUtf8(classes().accessibleDescription()), HasSubstr("Menu key"));
}

TEST_F(LegendViewTest, WithoutAScaleThereIsNoMenu) {
    window->session().reset();
    press(Qt::Key_Menu);
    EXPECT_EQ(menu(), nullptr);
}

}  // namespace
}  // namespace campora
