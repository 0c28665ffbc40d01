// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Every reader is given good files that are cut short or in which bits have flipped. Whatever comes
// of it, the user learns of a file that did not open, and what opened can be drawn.

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <optional>
#include <random>
#include <string>

#include <gtest/gtest.h>

#include "support/failures.h"
#include "support/work_files.h"
#include "support/work_reading.h"

namespace campora {
namespace {

using Reader = std::optional<LoadedWork> (WorkReading::*)(std::string_view);

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

std::string sampleTable() {
    std::string table = "Reporte\r\nLong\tLat\tReal\tEspec\tVel\tCod\tAncho\tHora\r\n";
    for (int i = 0; i < 12; ++i) {
        table += "-61.2\t-34.60" + std::to_string(10 + i) +
                 "\t138\t140\t15.6\t0\t3086\t10:20:" + std::to_string(10 + i) + "\r\n";
    }
    return table;
}

/// Whether something opened that can be drawn.
bool opens(Reader read, std::string_view bytes) {
    WorkReading reading;
    reading.dialogs.inputAnswers = {"8", "16"};
    try {
        const std::optional<LoadedWork> work = (reading.*read)(bytes);
        EXPECT_TRUE(work || !reading.dialogs.messages.empty());
        EXPECT_TRUE(!work || std::isfinite(work->group->File_bound().widthM));
        return work.has_value();
    } catch (const FormatError& error) {
        EXPECT_NE(reading.texts.sentence(error.failure()), "");
        return false;
    }
}

TEST(DamagedFiles, CutOrWithFlippedBits) {
    std::mt19937 random(34061);
    TrackText track;
    for (std::uint32_t i = 0; i < 12; ++i) {
        track.addPoint(100 * i, 50 * i, 20 + i, 12);
    }
    const std::pair<Reader, std::string> samples[] = {{&WorkReading::report, sampleReport(0)},
                                                      {&WorkReading::report, sampleReport(3)},
                                                      {&WorkReading::track, track.bytes()},
                                                      {&WorkReading::table, sampleTable()}};
    for (const auto& [read, sound] : samples) {
        int opened = 0;
        constexpr int kCopies = 600;
        for (int copy = 0; copy < kCopies; ++copy) {
            std::string bytes = sound;
            if (copy % 5 == 0) {
                bytes.resize(1 + random() % bytes.size());
            }
            for (int flips = 1 + copy % 8; flips > 0; --flips) {
                const std::size_t at = random() % bytes.size();
                bytes[at] = static_cast<char>(bytes[at] ^ (1 << random() % 8));
            }
            opened += opens(read, bytes) ? 1 : 0;
        }
        EXPECT_GT(opened, kCopies / 4) << "most damage leaves something to see: " << sound;
    }
}

RptBytes::Record fix(double east, double north) {
    RptBytes::Record record;
    record.position = fixAt(east, north);
    return record;
}

/// A report of eight steps with `record` as its ninth.
std::string reportWith(const RptBytes::Record& record) {
    RptBytes report(1);
    for (int i = 0; i < 8; ++i) {
        report.add(fix(10 * i, 0));
    }
    report.add(record);
    return report.bytes();
}

template <typename T>
RptBytes::Record fixWith(T RptBytes::Record::*field, T value) {
    RptBytes::Record record = fix(80, 0);
    record.*field = value;
    return record;
}

std::string trackWith(const TrackText& header, std::string_view line) {
    TrackText track = header;
    for (std::uint32_t i = 0; i < 3; ++i) {
        track.addPoint(100 * i, 0, 20, 12);
    }
    track.add(line);
    return track.bytes();
}

/// "RemarkCutRecord 3 32" for each, with its arguments, joined by ", ".
std::string told(const std::vector<Remark>& remarks) {
    std::string text;
    for (const Remark& remark : remarks) {
        const auto row = std::find_if(textRows().begin(), textRows().end(),
                                      [&](const TextRow& each) { return each.id == remark.text; });
        text.append(text.empty() ? "" : ", ").append(row->name);
        for (const std::string& argument : remark.arguments) {
            text.append(" ").append(argument);
        }
    }
    return text;
}

TEST(DamagedFiles, WhatOpensAllTheSameHasRemarks) {
    using Record = RptBytes::Record;
    TrackText newest;
    newest.version = "2.0";
    newest.west = "179.9";
    TrackText wide;
    wide.swath = "200.5";
    const std::string sound = reportWith(fix(80, 0));
    const std::string cutTable =
        sampleTable() + "-61.2\t-90.1\t1\t1\t1\t0\t3086\t10:20:00\n-61.2\t-34";
    const auto report = &WorkReading::report;
    const auto track = &WorkReading::track;
    const std::tuple<Reader, std::string, const char*, const char*> rows[] = {
        {report, sound, "", ""},
        {report, reportWith(fixWith(&Record::swathCm, 20000)), "", ""},
        {report, sound + "\1\2\3", "RemarkCutRecord 3 32", ""},
        {report, reportWith(Record{}), "RemarkNoPosition 1 9", ""},
        {report, reportWith(fix(99000, 0)), "RemarkFarRecords 1 9 10", ""},
        {report, reportWith(fixWith(&Record::swathCm, 20001)),
         "RemarkSwath 1 200 9 200.01 (0.009702; 0.008983)", "Hectáreas fumig: "},
        {report, reportWith(fixWith(&Record::speedTenths, 4001)),
         "RemarkSpeed 1 400 9 400.1 (0.009702; 0.008983)", "Vel Promedio:"},
        {report, reportWith(fixWith(&Record::spec, std::array<std::int32_t, 4>{5000})),
         "RemarkDose 1 4999 9 5000 (0.009702; 0.008983)", "Dosis Prom.: "},
        {&WorkReading::table, cutTable, "RemarkOffGlobe 1 15, RemarkRestUnread 16", ""},
        {track, trackWith(newest, "00000640000000014"), "RemarkShortLines 1 13", ""},
        {track, trackWith(newest, "00FFFFF000000001400C"), "RemarkOffGlobe 1 13", ""},
        {track, trackWith(wide, "0012C00000FFF00C"),
         "RemarkSwath 4 200 1 200.5 (-60.5; -31.5), RemarkFlow 1 3000 4 4095 (-60.5003; -31.5)",
         ""},
    };
    for (const auto& [read, bytes, remarks, doubtful] : rows) {
        SCOPED_TRACE(remarks);
        WorkReading reading;
        const LoadedWork work = (reading.*read)(bytes).value();
        EXPECT_EQ(told(work.group->remarks()), remarks);
        const FileProperties& summary = work.group->File_resumen();
        std::string found;
        for (const SummaryEntry& entry : summary.entries()) {
            found += summary.isDoubtful(entry.property) ? entry.property : "";
        }
        EXPECT_EQ(found, doubtful);
    }
}

TEST(DamagedFiles, WhatHoldsNoPointIsRefusedWithoutAQuestion) {
    RptBytes nowhere;
    nowhere.addFourFields({0, 0}, -1);
    nowhere.addFourFields({200, 91}, -1);
    TrackText beyondThePole;
    beyondThePole.south = "89.9";
    beyondThePole.addPoint(0, 0xFFFFF, 20, 12);
    const std::string table = sampleTable();
    const std::string headings = table.substr(0, table.find("-61.2"));
    const auto report = &WorkReading::report;
    const auto tableOf = &WorkReading::table;
    const auto track = &WorkReading::track;
    const std::string header = TrackText().bytes();
    const std::pair<Reader, std::string> rows[] = {{report, "\1\2\3"},
                                                   {report, RptBytes(1).bytes()},
                                                   {report, nowhere.bytes()},
                                                   {tableOf, ""},
                                                   {tableOf, headings + "x\ty\n"},
                                                   {track, header},
                                                   {track, header.substr(0, 40)},
                                                   {track, beyondThePole.bytes()}};
    for (const auto& [read, bytes] : rows) {
        const char* name = read == report  ? "Lote 12.rpt"
                           : read == track ? "Track12.nbr"
                                           : "Parte 3.txt";
        WorkReading reading;
        EXPECT_FALSE((reading.*read)(bytes));
        EXPECT_EQ(reading.dialogs.messages,
                  std::vector{std::string("Error|Campora|Archivo sin puntos: C:\\Datos\\") + name});
    }
}

TEST(DamagedFiles, BytesThatArePlainlyNoReportAreRefused) {
    using Stays = std::vector<std::pair<LonLat, int>>;
    const auto reportOf = [](const Stays& stays) {
        RptBytes report(1);
        for (const auto& [position, records] : stays) {
            for (int i = 0; i < records; ++i) {
                report.add({.position = position});
            }
        }
        return report.bytes();
    };
    EXPECT_TRUE(WorkReading().report(reportOf({{{1, 1}, 8}, {{0, 0}, 8}})));
    EXPECT_TRUE(WorkReading().report(reportOf({{{179.9, 1}, 4}, {{-179.9, 1}, 4}}))) << "date line";
    const std::pair<std::string, TextId> rows[] = {
        {reportOf({{{1, 1}, 8}, {{0, 0}, 9}}), TextId::NotAReportDropped},
        {reportOf({{{1, 1}, 4}, {{1, 21.1}, 4}}), TextId::NotAReportSpan},
        {reportOf({{{1, 1}, 4}, {{21.1, 1}, 4}}), TextId::NotAReportSpan},
    };
    for (const auto& [bytes, text] : rows) {
        EXPECT_EQ(failureOf([&bytes = bytes] { return WorkReading().report(bytes); }).value().text,
                  text);
    }
}

}  // namespace
}  // namespace campora
