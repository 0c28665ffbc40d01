// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/track_data_rpt.h"

#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/scripted_platform.h"
#include "support/work_records.h"

namespace campora {
namespace {

constexpr Date kDay{2018, 2, 28};

TrackDataRPT::Fields twoChannels() {
    TrackDataRPT::Fields fields;
    fields.channels = 2;
    fields.real = {120, 40};
    fields.spec = {100, 50};
    fields.swath = 12.34F;
    fields.speed = 6.5F;
    fields.alarms = 0x80000100U;
    fields.time = {7, 5, 9};
    fields.date = kDay;
    return fields;
}

std::string infoOf(const TrackDataRPT& record, const MapStyle& style,
                   Language language = Language::Spanish, char decimalSymbol = '.') {
    const Texts texts(language);
    const FixedLocale locale(decimalSymbol);
    return record.resumen({texts, locale, style});
}

TEST(TrackDataRPT, ErrorIsThePercentageOffTheSpecifiedDose) {
    using Doses = std::vector<std::int32_t>;
    const std::tuple<const char*, Doses, Doses, int, float> rows[] = {
        {"above", {108}, {100}, 0, 8},
        {"nothing specified", {3}, {0}, 0, 0},
        {"no such channel", {95}, {100}, 1, 0},
        {"second channel", {95, 60}, {100, 50}, 1, 20},
        {"total", {80, 80}, {100, 50}, -1, 20.0F / 3},
        {"total of nothing specified", {80, 80}, {50, -50}, -1, 0},
        {"doses whose difference passes 32 bits", {-2147483647 - 1}, {2147483647}, 0, 200},
    };
    for (const auto& [name, real, spec, channel, error] : rows) {
        TrackDataRPT record{TrackDataRPT::Fields()};
        record.setCaudal(real);
        record.setDosis(spec);
        EXPECT_FLOAT_EQ(record.getError(channel), error) << name;
    }
}

TEST(TrackDataRPT, TotalsOfLargeDosesDoNotWrap) {
    const std::vector<std::int32_t> doses(5, 2'000'000'000);
    TrackDataRPT record{TrackDataRPT::Fields()};
    record.setCaudal(doses);
    record.setDosis(doses);
    EXPECT_EQ(record.caudal(), 1e10F);
    EXPECT_EQ(record.dosisTotal(), 1e10F);
}

TEST(TrackDataRPT, TellsItsTimeAndHowLongAfterAnotherItIs) {
    TrackDataRPT::Fields later = twoChannels();
    later.time = {6, 0, 0};
    EXPECT_EQ(TrackDataRPT(later).fechaHora(kDay), dayNumber(kDay) + 0.25);
    const TrackDataRPT first(twoChannels());
    EXPECT_EQ(TrackDataRPT(later).getTimeDifStr(first, Texts()), "1375");
    later.date = Date{2018, 3, 2};
    EXPECT_EQ(TrackDataRPT(later).getTimeDifStr(first, Texts()), "2 Días1375");
    later.date.reset();
    EXPECT_EQ(TrackDataRPT(later).getTimeDifStr(first, Texts()), "1375");
}

TEST(TrackDataRPT, TakesItsColourFromTheMode) {
    ColorScale scale;
    scale.calcRanges(0, 240, false);
    const MapColors colors;
    const TrackDataRPT::Fields full = twoChannels();
    TrackDataRPT::Fields undated = full;
    undated.date.reset();
    TrackDataRPT::Fields empty = full;
    empty.real = {0, 40};
    const auto dayColor = scale.getColor(dayNumber(kDay));

    using Fields = TrackDataRPT::Fields;
    const std::tuple<const char*, const Fields&, ColorMode, bool, int, Color> rows[] = {
        {"alarm", full, ColorMode::Alarm, true, 0, colors.alarm},
        {"date", full, ColorMode::Date, true, 0, dayColor},
        {"no date", undated, ColorMode::Date, true, 0, colors.noDraw},
        {"total dose", full, ColorMode::Dose, true, -1, scale.getColor(160)},
        {"at the error limit", full, ColorMode::Error, false, 1, Color{0x123456}},
        {"below the error limit", full, ColorMode::Error, false, -1, scale.getColor(160)},
        {"plain", full, ColorMode::Dose, false, 0, colors.draw},
        {"plain, nothing in the first channel", empty, ColorMode::Dose, false, 1, colors.noDraw},
    };
    for (const auto& [name, fields, mode, graduated, channel, expected] : rows) {
        SCOPED_TRACE(name);
        MapStyle style;
        style.scale = &scale;
        style.mode = mode;
        style.graduated = graduated;
        style.selectedChannel = channel;
        style.errorLimit = 20;
        style.errorSample = Color{0x123456};
        EXPECT_EQ(TrackDataRPT(fields).color(style), expected);
    }
}

TEST(TrackDataRPT, DescribesItselfInEveryLanguage) {
    const TrackDataRPT record(twoChannels());
    MapStyle style;
    EXPECT_EQ(infoOf(record, style, Language::Spanish, ','), "Velocidad = 6,5 km/h\r\n"
                                                             "Ancho de labor = 12,3 mts\r\n"
                                                             "Fecha = 28/02/2018\r\n"
                                                             "Hora = 07:05:09\r\n"
                                                             "Canal 1\r\n"
                                                             "  Dosis especificada = 100\r\n"
                                                             "  Dosis real = 120\r\n"
                                                             "  Error = 20%\r\n"
                                                             "Canal 2\r\n"
                                                             "  Dosis especificada = 50\r\n"
                                                             "  Dosis real = 40\r\n"
                                                             "  Error = 20%\r\n");
    style.mode = ColorMode::Alarm;
    style.alarmSelection = {};  // the list shows what is not selected too
    EXPECT_TRUE(infoOf(record, style, Language::English)
                    .ends_with("  Error = 20%\r\nAlarms:\r\n  Speed alarm\r\n"))
        << infoOf(record, style, Language::English);
    EXPECT_TRUE(infoOf(reportRecord(100), style).ends_with("Error = 0%\r\nSin alarmas\r\n"));
}

}  // namespace
}  // namespace campora
