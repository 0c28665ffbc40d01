// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/time_strip.h"

#include <utility>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/session_desk.h"

namespace campora {
namespace {

using Key = TimeStrip::Key;
using Stretch = std::optional<std::pair<double, double>>;

/// A job of 101 records, two seconds and 10 metres apart, with 100 litres over 20 metres, in a
/// strip with a column a second.
struct StripDesk : SessionDesk {
    StripDesk() {
        RptBytes bytes(1, 0x6001);
        for (int i = 0; i <= 100; ++i) {
            RptBytes::Record record;
            record.position = fixAt(10.0 * i, 0);
            record.time.time = {23, 58 + i / 30, i % 30 * 2};
            if (i >= 60) {
                record.time = {{2018, 3, 6}, {0, i / 30 - 2, i % 30 * 2}};
            }
            record.alarms = i == 7 ? 0x80000001U : 0;
            bytes.add(record);
        }
        open({folder.write("lote.rpt", bytes.bytes())});
        strip.setShown(true);
        strip.setWidth(201);
        strip.onGo = [this](const WorkPlace& place) { gone = place.record; };
        strip.onPlay = [this](const WorkPlace& place) { played = place.record; };
    }
    [[nodiscard]] StripPicture shown() const { return strip.picture(60); }

    std::optional<std::size_t> gone;
    std::optional<std::size_t> played;
    TimeStrip& strip = session.findings().timeStrip;
};

struct TimeStripTest : testing::Test, StripDesk {};

TEST_F(TimeStripTest, ABrushIsShownOnTheMapWithItsTotals) {
    EXPECT_EQ(window.laid<HaloLine>(), std::nullopt);
    strip.brush(60.5, 19.5);
    EXPECT_EQ(shown().stretch, (Stretch{{20, 60}}));
    EXPECT_EQ(shown().totals, "Tramo: 0.4 ha  ·  40 lts  ·  100 lt/hect  ·  0:00:40");
    const auto halo = window.laid<HaloLine>();
    ASSERT_TRUE(halo);
    const ViewTransform view = session.display().view().transform();
    const auto at = [&](double east) {
        const LonLat place = fixAt(east, 0);
        return view.mapToScreen(place.x, place.y);
    };
    EXPECT_NEAR(halo->points.front().x, at(100).x, 2);
    EXPECT_NEAR(halo->points.back().x, at(300).x, 2);
    EXPECT_EQ(strip.stretch()->record, 10U);

    strip.point(14);
    EXPECT_TRUE(shown().value.starts_with("05/03/2018 23:58:14  ·  100 lt/hect")) << shown().value;
    EXPECT_EQ(strip.spoken(), shown().value + ". " + shown().totals);
    EXPECT_NE(shown().columns[14].alarms & 1U, 0U);
    EXPECT_EQ(shown().columns[14].alarms & 0x80000000U, 0U) << "one without a meaning";

    strip.go(100.4);
    EXPECT_EQ(gone, 50U);
    session.display().view().zoomIn();
    EXPECT_NE(window.laid<HaloLine>(), halo) << "it lies elsewhere now";
    strip.setShown(false);
    EXPECT_EQ(window.laid<HaloLine>(), std::nullopt);
}

TEST_F(TimeStripTest, ZoomsAboutAPointAndStaysOnItsAxis) {
    EXPECT_THAT(shown().ticks,
                testing::ElementsAre(StripTick{0, "23:58"}, StripTick{60, "23:59"},
                                     StripTick{120, "06/03/2018"}, StripTick{180, "00:01"}));
    strip.go(100);
    strip.zoomAt(100, 2);
    EXPECT_NEAR(*shown().cursor, 100, 1e-6);
    strip.zoomTo(90, 110);
    strip.zoomTo(150, 100);
    const StripPicture close = shown();
    ASSERT_GE(close.ticks.size(), 2U);
    EXPECT_EQ(close.ticks[0].text.size(), 8U) << "seconds: " << close.ticks[0].text;
    EXPECT_GE(close.ticks[1].column - close.ticks[0].column, 60);
    strip.scroll(1e6);
    strip.scroll(-1e6);
    strip.zoomAt(0, -100);
    EXPECT_EQ(shown().ticks.size(), 4U) << "all of it again";
}

TEST_F(TimeStripTest, KeysMoveBrushAndGo) {
    struct Step {
        Key key;
        bool brushes;
        double cursor;
        Stretch stretch;
    };
    const Step steps[] = {
        {Key::Right, false, 2, {}},         {Key::End, false, 200, {}},
        {Key::Left, false, 198, {}},        {Key::PageLeft, false, 96, {}},
        {Key::Right, true, 98, {{96, 98}}}, {Key::Right, true, 100, {{96, 100}}},
        {Key::Home, true, 0, {{0, 96}}},    {Key::Right, false, 2, {{0, 96}}},
        {Key::Clear, false, 2, {}},         {Key::Left, false, 0, {}},
        {Key::Left, false, 0, {}},
    };
    for (const Step& step : steps) {
        EXPECT_TRUE(strip.press(step.key, step.brushes));
        EXPECT_EQ(shown().cursor, step.cursor);
        EXPECT_EQ(shown().stretch, step.stretch);
    }
    strip.press(Key::End, false);
    strip.press(Key::Go, false);
    EXPECT_EQ(gone, 100U);
    strip.press(Key::ZoomIn, false);
    EXPECT_NEAR(*shown().cursor, 200, 1e-6) << "it stays where it is";
    strip.brush(100, 150);
    const std::size_t first = strip.stretch()->record;
    strip.press(Key::Play, false);
    EXPECT_EQ(std::exchange(played, std::nullopt), first);
    strip.onPause = [] { return true; };
    strip.press(Key::Play, false);
    EXPECT_FALSE(played) << "it played, and pauses";
}

TEST_F(TimeStripTest, TellsMissingRecordsFromPauses) {
    // Records two seconds and 10 metres apart; 40 seconds and 200 metres are missing after the
    // tenth, the machine stands for 100 seconds after the twentieth, and goes on elsewhere in the
    // morning.
    RptBytes bytes(1, 0x6002);
    for (int i = 0; i < 40; ++i) {
        const int second = 2 * i + (i > 9 ? 40 : 0) + (i > 19 ? 100 : 0);
        RptBytes::Record record;
        record.position = fixAt(10.0 * i + (i > 9 ? 200 : 0), i > 29 ? 500 : 0);
        record.time = {{2018, 3, i > 29 ? 6 : 5}, {i > 29 ? 8 : 10, second / 60, second % 60}};
        bytes.add(record);
    }
    open({folder.write("huecos.rpt", bytes.bytes())}, true);
    strip.refresh();
    strip.setWidth(337);  // a column a second, 120 for the night
    struct Row {
        double second;
        const char* value;
    };
    const Row rows[] = {{18, "luego, faltan registros: 0:00:42"},
                        {38, "10:00:38  ·  faltan registros: 0:00:42"},
                        {120, "05/03/2018 10:02:00  ·  pausa sin registros: 0:01:42"},
                        {18 + 42 + 18 + 102 + 18 + 60, "pausa sin registros: 22:00:02"}};
    const StripPicture picture = shown();
    for (const Row& row : rows) {
        strip.point(row.second);
        EXPECT_THAT(strip.spoken(), testing::HasSubstr(row.value));
    }
    EXPECT_THAT(picture.missing, testing::ElementsAre(StripHoles::Span{18, 60}));
    ASSERT_EQ(picture.folds.size(), 1U);
    EXPECT_THAT(picture.ticks, testing::Contains(testing::Field(&StripTick::text, "06/03/2018")));
}

TEST_F(TimeStripTest, FollowsTheCurrentFileAndSaysWhyItIsEmpty) {
    NamedFile& other = add("lote virtual");
    strip.brush(20, 60);
    session.map().files().setCurrentFile(&other);
    strip.refresh();
    EXPECT_EQ(shown().reason, "El archivo elegido no tiene registros de trabajo");
    EXPECT_FALSE(strip.stretch());
    EXPECT_FALSE(strip.press(Key::Right, false));
    EXPECT_TRUE(strip.hasWork());

    open({track("log.nbr", 40)}, true);
    strip.refresh();
    EXPECT_EQ(shown().axisRemark, "Por número de registro: sin reloj");
    EXPECT_EQ(shown().ticks.front().text, "1");
    session.map().reset();
    EXPECT_FALSE(strip.hasWork());
    EXPECT_EQ(window.overlay, MapOverlay{});
}

}  // namespace
}  // namespace campora
