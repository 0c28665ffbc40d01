// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <cmath>
#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "sample_job/sample_files.h"
#include "support/scripted_platform.h"
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
    // Computed figures are rounded to units or, below 20, to tenths.
    // Computed figures are rounded to units or, below 20, to tenths.
    const std::tuple<const char*, const char*, double> rows[] = {
        {"Hectáreas", "Hectáreas", 0.56},
        {"Dosis Prom", "Dosis Promedio", 0.56},
        {"Vel Prom", "Vel Promedio", 0.11},
    };
    for (const auto& [computed, inSummary, apart] : rows) {
        SCOPED_TRACE(computed);
        const double told = figure(*track, inSummary, ',');
        EXPECT_NEAR(figure(*report, computed), told, apart);
        EXPECT_NEAR(figure(*table, computed), told, apart);
    }
    // Only the table counts the pause, and it counts from minute to minute.
    EXPECT_EQ(figure(*report, "Duración"), figure(*track, "Duración"));
    EXPECT_NEAR(figure(*table, "Duración"), figure(*track, "Duración") + 75, 1);
}

}  // namespace

}  // namespace campora
