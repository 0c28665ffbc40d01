// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <sstream>
#include <string>
#include <string_view>
#include <vector>

#include <gtest/gtest.h>

#include "base/paths.h"
#include "base/text.h"
#include "cli/run_program.h"
#include "support/temp_folder.h"
#include "support/work_files.h"

namespace campora {

using Words = std::vector<std::string>;

/// Runs of the batch program on files of a folder.
struct BatchRun : testing::Test {
    struct Outcome {
        int status = 0;
        std::string out;
        std::string boxes;
    };

    /// "@" at the beginning of a word stands for the folder: "info @a.rpt".
    [[nodiscard]] Outcome run(Words words) const {
        for (std::string& word : words) {
            word = word == "@"             ? folder.path()
                   : word.starts_with('@') ? folder.file(word.substr(1))
                                           : word;
        }
        std::ostringstream out;
        std::ostringstream boxes;
        const int status = runProgram(words, dataFolder, {out, boxes});
        return {status, out.str(), boxes.str()};
    }
    /// Words without blanks.
    [[nodiscard]] Outcome run(const std::string& line) const {
        const std::vector<std::string_view> words = split(line, ' ');
        return run(Words(words.begin(), words.end()));
    }
    /// Three points, 10 m apart from west to east, with a swath of 20 m and an alarm.
    [[nodiscard]] static std::string reportBytes(std::int32_t realTenths = 1000) {
        RptBytes bytes(1);
        for (int i = 0; i < 3; ++i) {
            RptBytes::Record record;
            record.position = fixAt(10.0 * i, 0);
            record.realTenths[0] = realTenths;
            record.alarms = 1;
            bytes.add(record);
        }
        return bytes.bytes();
    }
    std::string report(std::string_view name) const { return folder.write(name, reportBytes()); }
    /// A logger's pass, without flow from the fourth point on.
    std::string track(std::string_view name, std::uint32_t points = 5) const {
        TrackText text;
        for (std::uint32_t i = 0; i < points; ++i) {
            text.addPoint(100 * i, 0, i < 3 ? 50 : 0, 20);
        }
        return folder.write(name, text.bytes());
    }
    [[nodiscard]] bool isThere(std::string_view name) const {
        return std::filesystem::exists(nativePath(folder.file(name)));
    }

    TempFolder folder;
    std::string dataFolder = CAMPORA_SOURCE_DIR "/data";
};

}  // namespace campora
