// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <iterator>
#include <set>
#include <string>
#include <variant>
#include <vector>

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "model/map_style.h"
#include "sample_job/job_figures.h"
#include "sample_job/sample_files.h"
#include "sample_job/sample_jobs.h"
#include "support/scripted_platform.h"
#include "work/gph_track.h"
#include "work/vex_alarmas.h"
#include "work/work_reader.h"

namespace campora {

namespace {

const std::string kSamples = std::string(CAMPORA_SOURCE_DIR) + "/samples";

using Reader = std::optional<LoadedWork> (*)(std::string_view, const WorkDesk&);

std::unique_ptr<FileGphGroup> open(Reader reader, const std::string& name) {
    ScriptedDialogs dialogs;
    const FixedLocale locale;
    const Texts texts;
    const Registrations registrations;
    auto work = reader(kSamples + "/" + name, {{dialogs, texts, locale}, registrations});
    EXPECT_TRUE(dialogs.messages.empty());
    return work ? std::move(work->group) : nullptr;
}

/// The number in the summary entry whose name begins with `property`.
double figure(FileGphGroup& group, std::string_view property, char symbol = '.') {
    for (const SummaryEntry& entry : group.File_resumen().entries()) {
        if (entry.property.starts_with(property)) {
            return leadingNumber(entry.value, symbol).value_or(NAN);
        }
    }
    return NAN;
}

/// The records of all passes; with `joined`, a pass begins with the last record of the one before.
template <typename Records>
Records recordsOf(const FileGphGroup& group, bool joined) {
    Records all;
    for (const Gph* layer : group.File_gphList()) {
        const auto& track = dynamic_cast<const GphTrack&>(*layer);
        const auto& records = std::get<Records>(track.records());
        const auto repeated = joined && !all.empty() ? 1 : 0;
        all.insert(all.end(), records.begin() + repeated, records.end());
    }
    return all;
}

TEST(Samples, CommittedFilesAreWhatMakeSamplesWrites) {
    std::set<std::string> written{"README.md"};
    for (const sample::SampleFile& file : sample::sampleFiles()) {
        SCOPED_TRACE(file.name);
        written.insert(file.name);
        const Result<FileBytes> committed = readFile(kSamples + "/" + file.name);
        ASSERT_TRUE(committed);
        EXPECT_TRUE(committed->text() == file.bytes) << "run: make_samples samples";
    }
    for (const auto& entry : std::filesystem::directory_iterator(kSamples)) {
        const std::string name = pathText(entry.path().filename());
        EXPECT_TRUE(written.contains(name)) << name << " is written by no program";
    }
}

// The figures that the console wrote beside the track file and those that the readers compute from
// the report and from the table are of the same day.
TEST(Samples, ThreeFormsOfTheSprayingJobAgree) {
    const auto report = open(loadRptFile, "lote-demo.rpt");
    const auto table = open(loadRptTextTable, "lote-demo.txt");
    const auto track = open(loadTrackFile, "Log0042.nbr");
    ASSERT_TRUE(report && table && track);
    struct Row {
        const char* inReports;
        const char* inTables;
        const char* inSummary;
        double apart;
    };
    // Computed figures are rounded to units or, below 20, to tenths.
    const Row rows[] = {
        {"Hectáreas", "Hectáreas", "Hectáreas", 0.56},
        {"Dosis Prom", "Dosis Prom", "Dosis Promedio", 0.56},
        {"Vel Prom", "Vel Prom", "Vel Promedio", 0.11},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.inSummary);
        const double told = figure(*track, row.inSummary, ',');
        EXPECT_NEAR(figure(*report, row.inReports), told, row.apart);
        EXPECT_NEAR(figure(*table, row.inTables), told, row.apart);
    }
    // Only the table counts the pause, and it counts from minute to minute.
    EXPECT_EQ(figure(*report, "Duración"), figure(*track, "Duración"));
    EXPECT_NEAR(figure(*table, "Duración"), figure(*track, "Duración") + 75, 1);
}

// Flow and speed are whole numbers in track files: the dose can be off by half a litre a minute and
// half a kilometre an hour.
TEST(Samples, TrackFileTellsTheDosesOfTheReport) {
    const auto report = open(loadRptFile, "lote-demo.rpt");
    const auto track = open(loadTrackFile, "Log0042.nbr");
    ASSERT_TRUE(report && track);
    const auto logged = recordsOf<GphTrack::NbrRecords>(*track, true);
    const auto job = sample::sprayingJob();
    ASSERT_EQ(logged.size(), job.records.size());
    for (std::size_t i = 0; i < logged.size(); ++i) {
        SCOPED_TRACE(i);
        const double dose = job.records[i].real[0];
        const double kmh = std::max(1.0, job.records[i].speedTenths / 10.0);
        const double litresPerHectare = 0.5 * 600 / 28 / (kmh - 0.5);
        ASSERT_NEAR(logged[i].litrosH(), dose, dose * 0.5 / (kmh - 0.5) + litresPerHectare);
    }
    // Each pass is a track of its own.
    EXPECT_EQ(track->File_gphList().size(), static_cast<std::size_t>(job.records.back().pass) + 1);
    EXPECT_EQ(track->name, "42 - log0042.nbr");
}

TEST(Samples, SprayingJobHoldsWhatItIsToShow) {
    const auto report = open(loadRptFile, "lote-demo.rpt");
    ASSERT_TRUE(report);
    const auto records = recordsOf<GphTrack::RptRecords>(*report, false);
    std::uint32_t alarms = 0;
    int missed = 0;
    int over = 0;
    int under = 0;
    int longestGap = 0;
    for (std::size_t i = 0; i < records.size(); ++i) {
        const TrackDataRPT& record = records[i];
        alarms |= record.alarmas();
        const bool off = record.caudal() == 0;
        missed += off && record.alarmas() != 0 ? 1 : 0;
        over += !off && record.caudal() > 1.2F * record.dosisTotal() ? 1 : 0;
        under += !off && record.caudal() < 0.8F * record.dosisTotal() ? 1 : 0;
        if (i > 0) {
            longestGap = std::max(longestGap, secondsBetween(records[i - 1].time(), record.time()));
        }
    }
    EXPECT_EQ(alarms, knownAlarms(WorkKind::Sprayer));
    EXPECT_GT(longestGap, 3600);
    EXPECT_GT(missed, 10);
    EXPECT_GT(over, 30);
    EXPECT_GT(under, 30);
}

TEST(Samples, SowingJobPrescribesBothChannelsByZone) {
    const auto report = open(loadRptFile, "siembra-demo.rpt");
    ASSERT_TRUE(report);
    std::set<std::pair<int, int>> prescribed;
    for (const TrackDataRPT& record : recordsOf<GphTrack::RptRecords>(*report, false)) {
        ASSERT_EQ(record.channels(), 2);
        ASSERT_EQ(record.workKind(), WorkKind::Seeder);
        prescribed.emplace(record.getDosis()[0], record.getDosis()[1]);
    }
    EXPECT_EQ(prescribed, (std::set<std::pair<int, int>>{{60, 60}, {75, 95}, {90, 130}}));
}

}  // namespace

}  // namespace campora
