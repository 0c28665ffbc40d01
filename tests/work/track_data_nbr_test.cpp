// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/track_data_nbr.h"

#include <array>

#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/work_records.h"

namespace campora {
namespace {

TEST(TrackDataNBR, LitresPerHectareTakeTheSpeedInWholeKmH) {
    const std::array<float, 4> rows[] = {
        {20, 200, 20, 3},  {20, 12.5F, 20, 50}, {20, 13.5F, 20, 42.857143F},
        {20, 0.4F, 20, 0}, {20, 200, 0, 0},     {144, 18, 20.95F, 229.11695F}};
    for (const auto& [flow, speed, swath, litres] : rows) {
        EXPECT_FLOAT_EQ(loggerRecord(flow, speed, swath).litrosH(), litres) << speed;
    }
}

TEST(TrackDataNBR, TakesTheScaleWhileItIsShown) {
    const ColorScale scale;
    const TrackDataNBR record = loggerRecord(60, 200, 20);  // 9 litres per hectare
    MapStyle style;
    EXPECT_EQ(record.color(style), style.colors.draw);
    EXPECT_EQ(loggerRecord(0).color(style), style.colors.noDraw);
    style.scale = &scale;
    EXPECT_EQ(record.color(style), scale.getColor(9));
    style.by = GraduatedBy::Minute;
    EXPECT_EQ(record.color(style), scale.getColor(60));
}

TEST(TrackDataNBR, DescribesItself) {
    const Texts texts;
    const FixedLocale locale(',');
    const MapStyle style;
    const TrackDataNBR record = loggerRecord(25.5F, 200, 20, {"6001", "log0001.nbr", "LV-XYZ"});
    EXPECT_EQ(record.serie() + record.path(), "6001log0001.nbr");
    EXPECT_EQ(record.resumen({texts, locale, style}),
              "Velocidad: 200 km/h\r\nCaudal: 25,5 lts/min\r\nAncho de labor: 20 mts\r\n"
              "Lt/Hect: 3,8\r\nAvion: LV-XYZ\r\n");
}

}  // namespace
}  // namespace campora
