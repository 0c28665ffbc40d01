// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <string>
#include <vector>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/temp_folder.h"
#include "support/work_files.h"
#include "support/work_reading.h"

namespace campora {
namespace {

using testing::ElementsAre;

const TrackDataNBR& loggerRecordOf(const LoadedWork& work, std::size_t n, std::int32_t i) {
    return dynamic_cast<const TrackDataNBR&>(trackOf(work, n).pointInfo(i));
}

TEST(LoadTrackFile, ReadsOffsetsFlowAndSpeedByVersion) {
    // West and south in millionths of a degree, both -1 when the line is skipped.
    const std::tuple<const char*, const char*, const char*, double, double, float, float> rows[] = {
        {"before 1.3 no speed", "1.2", "00C2001D9B030FFF", 0xC20, 0x01D9B, 0x030, 0},
        {"from 1.3 on a speed", "1.3", "001F400D0F07A009", 500, 0xD0F, 0x07A, 9},
        {"12 characters", "1.3", "001F400D0F07", -1, -1, 0, 0},
        {"short speed, lower case", "1.3", "001f400d0f07a1f", 500, 0xD0F, 0x07A, 0x1F},
        {"largest offsets", "1.3", "FFFFFFFFFFFFFFFF", 0xFFFFF, 0xFFFFF, 4095, 4095},
        {"pairs are read on their own", "1.3", "x1FG4x0D0F0xAx09", 0x1F00, 0xD0F, 0, 0},
        {"wide offsets from 2 on", "2.0", "00001F80002C15071008", 504, 0x2C15, 0x071, 8},
        {"17 characters", "2.0", "00001F80002C15071", -1, -1, 0, 0},
    };
    for (const auto& [name, version, line, west, south, flow, speed] : rows) {
        SCOPED_TRACE(name);
        TrackText track;
        track.version = version;
        track.add(line);
        track.add(track.version < "2" ? "000010000100A00A" : "0000001000000100A00A");
        const LoadedWork work = WorkReading().track(track.bytes()).value();
        const auto& points = trackOf(work, 0).points();
        if (west < 0) {
            EXPECT_EQ(points.front(), (LonLat{-60.5 - 1e-6, -31.5 - 1e-6}));
            continue;
        }
        EXPECT_DOUBLE_EQ(points.front().x, -60.5 - west / 1e6);
        EXPECT_DOUBLE_EQ(points.front().y, -31.5 - south / 1e6);
        EXPECT_EQ(loggerRecordOf(work, 0, 0).caudal(), flow);
        EXPECT_EQ(loggerRecordOf(work, 0, 0).velocidad(), speed);
    }
}

TEST(LoadTrackFile, BlankLinesAndLeapsEndPasses) {
    // Millionths of a degree, -1 for a blank line, and the points of each pass.
    const std::tuple<const char*, std::vector<int>, std::vector<std::size_t>> rows[] = {
        {"blank line", {0, 10, -1, 20, 30}, {2, 2}},
        {"499.95 metres", {0, 4491}, {2}},
        {"500.05 metres", {0, 4492}, {1, 1}},
        {"a leap to a blank line", {0, 10, -1, 9000, 9010}, {2, 2}},
    };
    for (const auto& [name, souths, points] : rows) {
        SCOPED_TRACE(name);
        TrackText track;
        for (const int south : souths) {
            if (south < 0) {
                track.add("  ");
            } else {
                track.addPoint(100, static_cast<std::uint32_t>(south), 20, 12);
            }
        }
        const LoadedWork work = WorkReading().track(track.bytes()).value();
        EXPECT_EQ(pointCounts(work), points);
    }
}

TEST(LoadTrackFile, ForeignFilesAreRefused) {
    for (const char* text : {"", "archivo borrado\r\n", "*TRACKER LOG FILE*\r\n0\r\n",
                             "*TRACKER LOG FILE* Vx\r\n", "*tracker log file* V1.3\r\n"}) {
        SCOPED_TRACE(text);
        WorkReading reading;
        EXPECT_FALSE(reading.track(text));
        EXPECT_THAT(reading.dialogs.messages,
                    ElementsAre("Error|Formato de Archivo incorrecto|El archivo no es compatible: "
                                "C:\\Datos\\Track12.nbr"));
    }
}

TEST(LoadTrackFile, AReferenceThatIsNoNumberIsRefusedWithItsLine) {
    const std::tuple<std::string TrackText::*, const char*, const char*> rows[] = {
        {&TrackText::west, "oeste", "7"},
        {&TrackText::south, "", "8"},
        {&TrackText::swath, "1e300", "9"}};
    const TempFolder folder;
    for (const auto& [field, value, line] : rows) {
        TrackText track;
        track.*field = value;
        track.addPoint(0, 0, 20, 12);
        const std::string path = folder.write("log1.nbr", track.bytes());
        WorkReading reading;
        EXPECT_FALSE(loadTrackFile(path, reading.context()));
        EXPECT_THAT(reading.dialogs.messages,
                    ElementsAre("Error|Campora|No se puede leer el archivo " + path +
                                ": en el renglón " + line + " debe haber un número"));
    }
}

}  // namespace
}  // namespace campora
