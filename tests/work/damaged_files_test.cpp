// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Every reader is given good files that are cut short or in which bits have flipped. Whatever comes
// of it, the user learns of a file that did not open, and what opened can be drawn.

#include <cmath>
#include <cstdint>
#include <optional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "support/work_files.h"
#include "support/work_reading.h"

namespace campora {
namespace {

using Reader = std::optional<LoadedWork> (WorkReading::*)(std::string_view);

struct Sample {
    const char* name;
    Reader read;
    std::string bytes;
    /// A swath width or a number of columns is asked for.
    bool asks;
};

/// Some passes with a turn, a break and a record without position between them.
std::string sampleReport(std::int32_t channels) {
    RptBytes report = channels == 0 ? RptBytes() : RptBytes(channels);
    for (int i = 0; i < 12; ++i) {
        RptBytes::Record record;
        record.position = i == 5 ? LonLat{} : fixAt(i < 8 ? 10 * i : 140 - 10 * i, i > 9 ? 300 : i);
        record.time.time.minute = i;
        report.add(record);
    }
    return report.bytes();
}

std::string sampleFourFields() {
    RptBytes report;
    for (int i = 0; i < 12; ++i) {
        report.addFourFields(fixAt(10 * i, i), 1000 + i);
    }
    return report.bytes();
}

std::string sampleTrack(const char* version) {
    TrackText track;
    track.version = version;
    for (std::uint32_t i = 0; i < 12; ++i) {
        track.addPoint(100 * i, 50 * i, 20 + i, 12);
        if (i == 6) {
            track.add("");
        }
    }
    return track.bytes();
}

std::string sampleTable() {
    std::string table = "Reporte\r\nLong\tLat\tReal\tEspec\tVel\tCod\tAncho\tHora\r\n";
    for (int i = 0; i < 12; ++i) {
        table += "-61.2\t-34.60" + std::to_string(10 + i) +
                 "\t138\t140\t15.6\t0\t3086\t10:20:" + std::to_string(10 + i) + "\r\n";
    }
    return table;
}

std::vector<Sample> samples() {
    return {
        {"one channel", &WorkReading::report, sampleReport(1), true},
        {"three channels", &WorkReading::report, sampleReport(3), true},
        {"eight fields", &WorkReading::report, sampleReport(0), true},
        {"four fields", &WorkReading::report, sampleFourFields(), true},
        {"track 1.3", &WorkReading::track, sampleTrack("1.3"), false},
        {"track 2.0", &WorkReading::track, sampleTrack("2.0"), false},
        {"table", &WorkReading::table, sampleTable(), true},
    };
}

void expectDrawable(const LoadedWork& work) {
    ASSERT_FALSE(work.group->File_gphList().empty());
    for (std::size_t n = 0; n < work.group->File_gphList().size(); ++n) {
        const GphTrack& track = trackOf(work, n);
        ASSERT_FALSE(track.empty());
        for (const LonLat& point : track.points()) {
            ASSERT_LE(std::abs(point.x), 180);
            ASSERT_LE(std::abs(point.y), 90);
        }
    }
    const BoundingBox& bound = work.group->File_bound();
    ASSERT_TRUE(bound.isSet);
    ASSERT_TRUE(std::isfinite(bound.widthM) && std::isfinite(bound.heightM));
}

/// Whether the copy opened.
bool expectAnOutcome(const Sample& sample, std::string_view bytes) {
    WorkReading reading;
    if (sample.asks) {
        reading.dialogs.inputAnswers = {"8", "16"};
    }
    std::optional<LoadedWork> work;
    try {
        work = (reading.*sample.read)(bytes);
    } catch (const FormatError& error) {
        EXPECT_NE(reading.texts.sentence(error.failure()), "");
        return false;
    }
    if (work) {
        expectDrawable(*work);
    } else {
        EXPECT_FALSE(reading.dialogs.messages.empty());
    }
    return work.has_value();
}

TEST(DamagedFiles, CutAnywhere) {
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.name);
        ASSERT_TRUE(expectAnOutcome(sample, sample.bytes));
        for (std::size_t size = 0; size < sample.bytes.size(); ++size) {
            SCOPED_TRACE(size);
            expectAnOutcome(sample, std::string_view(sample.bytes).substr(0, size));
        }
    }
}

TEST(DamagedFiles, FlippedBits) {
    std::mt19937 random(34061);
    for (const Sample& sample : samples()) {
        SCOPED_TRACE(sample.name);
        int opened = 0;
        constexpr int kCopies = 600;
        for (int copy = 0; copy < kCopies; ++copy) {
            SCOPED_TRACE(copy);
            std::string bytes = sample.bytes;
            for (int flips = 1 + copy % 8; flips > 0; --flips) {
                const std::size_t at = random() % bytes.size();
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
            }
            opened += expectAnOutcome(sample, bytes) ? 1 : 0;
        }
        EXPECT_GT(opened, kCopies / 4) << "most damage leaves something to see";
    }
}

}  // namespace
}  // namespace campora
