// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A contractor's day in the real window.

#include <string>

#include <QMenu>
#include <QSlider>
#include <QToolButton>

#include "journeys/journey.h"

namespace campora {
namespace {

class WorkDay : public Journey {};

TEST_F(WorkDay, OpenZoomInformMeasureColourReplayAndStartAgain) {
    choose("mnuHelpLangEsp");
    openByDialog(CAMPORA_SOURCE_DIR "/samples/lote-demo.rpt");
    ASSERT_EQ(session().map().plotCount(), 1);
    EXPECT_TRUE(window().windowTitle().endsWith("lote-demo.rpt]"));

    const float wholeScale = session().display().view().scaleX();
    click("ZoomSelect");
    const QPoint middle = map().rect().center();
    drag(middle - QPoint(80, 60), middle + QPoint(80, 60));
    const float closeScale = session().display().view().scaleX();
    EXPECT_LT(closeScale, wholeScale / 3) << "the rectangle fills the map";

    click("info");
    QTest::mouseClick(&map(), Qt::LeftButton, {}, middle + QPoint(0, 120));
    const auto* info = window().findChild<QLabel*>("txtInfo");
    EXPECT_TRUE(info->isVisible());
    EXPECT_TRUE(info->text().contains("Ancho de labor = ")) << toUtf8(info->text());

    click("ruler");
    EXPECT_FALSE(info->isVisible()) << "another tool takes the box away";
    drag(middle, middle + QPoint(100, 0));
    EXPECT_TRUE(statusShows("Dist:"));
    QTest::mouseClick(&map(), Qt::RightButton, {}, middle);
    EXPECT_FALSE(window().findChild<QAction*>("mnuToolRuler")->isChecked());

    QTest::keyClick(&map(), Qt::Key_0, Qt::ControlModifier);
    EXPECT_EQ(session().display().view().scaleX(), wholeScale);
    session().colours().modes.mnuColorScaleSelCH(0);
    choose("mnuColorErrorMap");
    EXPECT_EQ(session().map().style().mode, ColorMode::Error);
    EXPECT_TRUE(window().findChild<QAction*>("mnuColorErrorMap")->isChecked());

    choose("mnuHelpLangPort");
    EXPECT_EQ(window().findChild<QMenu*>()->title(), "&Arquivo");
    EXPECT_EQ(window().findChild<QAction*>("mnuColorErrorMap")->text(), "Mapa de &erro");

    QTimer::singleShot(300, &window(), [this] { click("CmdPlay"); });
    click("CmdPlay");  // returns when the other click has paused it
    EXPECT_EQ(session().replay().state(), Replay::State::Paused);
    const int paused = window().findChild<QSlider*>("animation")->value();
    EXPECT_GT(paused, 0);
    click("CmdStop");
    EXPECT_EQ(session().replay().state(), Replay::State::Idle);

    choose("mnuEditDoted");
    choose("mnuEditCoordSex");
    window().resize(900, 700);
    ASSERT_TRUE(QTest::qWaitFor([this] { return window().size() == QSize(900, 700); }));
    QTest::keyClick(&map(), Qt::Key_Q, Qt::ControlModifier);
    EXPECT_FALSE(window().isVisible());

    start();
    EXPECT_EQ(session().texts().language(), Language::Portuguese);
    EXPECT_TRUE(session().map().style().drawDotted);
    EXPECT_EQ(session().tools().coordType(), CoordType::DegreesMinutesSeconds);
    EXPECT_EQ(window().size(), QSize(900, 700));
    EXPECT_EQ(session().fileCommands().recentFiles().size(), 1U);
}

}  // namespace
}  // namespace campora
