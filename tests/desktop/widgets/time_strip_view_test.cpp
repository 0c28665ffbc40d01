// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/time_strip_view.h"

#include <QLabel>
#include <QMenu>
#include <QSlider>

#include "app/settings.h"
#include "desktop/window_fixture.h"

namespace campora {
namespace {

TEST_F(WindowTest, TheTimeStripComesUnderTheMap) {
    QAction* const command = window->findChild<QAction*>("showTimeStrip");
    auto* const strip = window->findChild<TimeStripView*>();
    EXPECT_FALSE(command->isEnabled());
    EXPECT_TRUE(command->toolTip().contains("No hay ningún trabajo abierto"));
    open({writeReport("lote.rpt")});
    ASSERT_TRUE(command->isEnabled());
    action(TextId::ActionZoomIn)->trigger();
    const auto middle = [this] {
        const CanvasSize size = map().canvas().size();
        return view().transform().screenToMap(static_cast<float>(size.width) / 2,
                                              static_cast<float>(size.height) / 2);
    };
    const LonLat before = middle();
    command->trigger();
    ASSERT_TRUE(strip->isVisible());
    EXPECT_TRUE(readSwitch(settings, SettingId::TimeStrip));
    EXPECT_NEAR(middle().x, before.x, 2e-5);
    EXPECT_NEAR(middle().y, before.y, 2e-5);

    const auto drag = [&](QPoint from, QPoint to) {
        QTest::mousePress(strip, Qt::LeftButton, {}, from);
        QTest::mouseMove(strip, (from + to) / 2);
        QTest::mouseMove(strip, to);
        QTest::mouseRelease(strip, Qt::LeftButton, {}, to);
    };
    QAction* const play = window->findChild<QAction*>("playStretch");
    EXPECT_FALSE(play->isEnabled());
    drag({300, 60}, {500, 60});
    EXPECT_TRUE(play->isEnabled());
    static_cast<void>(strip->grab());
    EXPECT_TRUE(strip->accessibleName().contains("Tramo: ")) << toUtf8(strip->accessibleName());
    QTest::keyClick(strip, Qt::Key_Escape);
    EXPECT_FALSE(play->isEnabled());
    QTest::mouseClick(strip, Qt::LeftButton, {}, {400, 60});
    EXPECT_EQ(window->session().replay().state(), Replay::State::Paused);
    EXPECT_GT(window->session().replay().shown().position, 10);
    command->trigger();
    EXPECT_FALSE(strip->isVisible());
}

TEST_F(WindowTest, TheReplayGoesWhereItsSliderIsClicked) {
    open({writeReport("lote.rpt")});
    auto* const slider = window->findChild<QSlider*>("animation");
    const auto* const moment = window->findChild<QLabel*>("replayClock");
    EXPECT_EQ(moment->text(), QString::fromUtf8("–   –"));
    QTest::mouseClick(slider, Qt::LeftButton, {}, slider->rect().center());
    EXPECT_NEAR(window->session().replay().shown().position, 50, 3);
    EXPECT_TRUE(
        QTest::qWaitFor([moment] { return moment->text().startsWith("05/03/2018 10:00:"); }));
    auto* const speed = window->findChild<QSlider*>("Speed");
    speed->setValue(speed->maximum());
    EXPECT_EQ(window->session().replay().speed(), 0) << "no pause at the right end";
    QTest::keyClick(speed, Qt::Key_Home);
    EXPECT_EQ(window->session().replay().speed(), Replay::kLongestPause);
}

}  // namespace
}  // namespace campora
