// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <filesystem>
#include <set>
#include <string>

#include <gtest/gtest.h>

#include "base/files.h"
#include "base/paths.h"
#include "sample_job/sample_files.h"

namespace campora {

namespace {

const std::string kSamples = std::string(CAMPORA_SOURCE_DIR) + "/samples";

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

}  // namespace

}  // namespace campora
