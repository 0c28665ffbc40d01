// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/rpt_view.h"

#include <span>
#include <string>

#include <gtest/gtest.h>

#include "support/work_files.h"

namespace campora {
namespace {

RptBytes::Record record(std::int32_t realTenths, std::int32_t speedTenths = 120) {
    RptBytes::Record result;
    result.position = fixAt(0, 0);
    result.realTenths[0] = realTenths;
    result.speedTenths = speedTenths;
    return result;
}

/// The bytes outlive the view.
RptView viewOf(const std::string& bytes) {
    return RptView(std::as_bytes(std::span(bytes)));
}

TEST(RptView, ReadsHeaderAndRecordsOfTheCurrentForm) {
    RptBytes report(3, 0x6203, 0xC0FFEE, 0x10041121);
    RptBytes::Record written = record(985);
    written.realTenths = {985, 80, 19, 7777};
    written.spec = {100, 8, 2, 7777};
    written.alarms = 0x80000001;
    written.swathCm = 3705;
    written.time = {{2018, 1, 15}, {18, 3, 32}};
    report.add(written);

    const RptView view = viewOf(report.bytes());
    EXPECT_EQ(view.form(), RptView::Form::Current);
    EXPECT_EQ(view.workKind(), WorkKind::Sprayer);
    EXPECT_EQ(view.serial(), "6203-00C0FFEE");
    EXPECT_EQ(view.version(), 0x10041121U);
    ASSERT_EQ(view.recordCount(), 1U);
    const auto [position, fields] = view.record(0);
    EXPECT_EQ(position.y, static_cast<float>(written.position.y));
    EXPECT_EQ(position.x, static_cast<float>(written.position.x));
    EXPECT_EQ(fields.channels, 3);
    EXPECT_EQ(fields.real, (TrackDataRPT::Doses{98, 8, 2, 0, 0})) << "98.5 is halfway, to even";
    EXPECT_EQ(fields.spec, (TrackDataRPT::Doses{100, 8, 2, 0, 0}));
    EXPECT_FLOAT_EQ(fields.speed, 12);
    EXPECT_FLOAT_EQ(fields.swath, 37.05F);
    EXPECT_EQ(fields.alarms, 0x80000001U);
    EXPECT_EQ(fields.date, (Date{2018, 1, 15}));
    EXPECT_EQ(fields.time, (TimeOfDay{18, 3, 32}));
}

TEST(RptView, TheFifthFieldTellsTheOlderFormsApart) {
    using Form = RptView::Form;
    const std::tuple<std::int32_t, Form, std::size_t> rows[] = {{0, Form::EightFields, 1},
                                                                {999, Form::EightFields, 1},
                                                                {1000, Form::FourFields, 2},
                                                                {-1, Form::FourFields, 2}};
    for (const auto& [speedTenths, form, records] : rows) {
        SCOPED_TRACE(speedTenths);
        RptBytes report;
        report.add(record(1000, speedTenths));
        const RptView view = viewOf(report.bytes());
        EXPECT_EQ(view.form(), form);
        EXPECT_EQ(view.recordCount(), records);
    }
}

}  // namespace
}  // namespace campora
