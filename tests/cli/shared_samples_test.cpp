// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Runs `info --json` over the shared samples and compares all it says with what stands beside them.
// Skipped where the samples are not there.

#include "support/shared_samples.h"

#include <cmath>
#include <fstream>
#include <sstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "base/paths.h"
#include "base/text.h"
#include "cli/program.h"

namespace campora {
namespace {

using nlohmann::json;
using Words = std::vector<std::string>;

json readJson(const std::string& path) {
    return json::parse(std::ifstream(path));
}

/// One run in the form of the expectation files: paths reduced to the name of the file, without
/// what is remarked on the files.
json run(const std::string& folder, const Words& files, const Words& options) {
    Words words = {"info", "--json", "--program-dir", folder};
    for (const std::string& file : files) {
        words.push_back(folder + "/" + file);
    }
    words.insert(words.end(), options.begin(), options.end());
    std::ostringstream out;
    std::ostringstream boxes;
    json result;
    result["exit"] = runProgram(words, "", {out, boxes});
    const std::string shortened =
        replaceAll(replaceAll(boxes.str(), folder + "/copia/", ""), folder + "/", "");
    result["boxes"] = json::array();
    for (const std::string_view line : split(shortened, '\n')) {
        if (!line.empty() && !line.starts_with("note: ")) {
            result["boxes"].push_back(line);
        }
    }
    result["output"] = json::parse(out.str());
    for (json& file : result["output"]["files"]) {
        file["path"] = fileNamePart(file["path"].get<std::string>());
        file.erase("remarks");
    }
    return result;
}

/// Degrees and metres may differ by a billionth, ranges are 32-bit floats; all else is the same.
void expectSame(const json& actual, const json& expected, const std::string& where) {
    if (expected.is_structured()) {
        ASSERT_EQ(actual.type(), expected.type()) << where;
        ASSERT_EQ(actual.size(), expected.size()) << where;
        for (const auto& [key, value] : expected.items()) {
            const std::string inside = where + "/" + key;
            ASSERT_TRUE(expected.is_array() || actual.contains(key)) << inside;
            expectSame(expected.is_array() ? actual[std::stoul(key)] : actual[key], value, inside);
        }
    } else if (expected.is_number() && where.find("/ranges/") != std::string::npos) {
        ASSERT_TRUE(actual.is_number()) << where;
        EXPECT_EQ(actual.get<float>(), expected.get<float>()) << where;
    } else if (expected.is_number_float()) {
        ASSERT_TRUE(actual.is_number()) << where;
        const double value = expected.get<double>();
        EXPECT_NEAR(actual.get<double>(), value, 1e-9 * std::abs(value)) << where;
    } else if (where.find("/boxes/") != std::string::npos) {
        EXPECT_EQ(actual.get<std::string>().find(expected.get<std::string>()), 0U)
            << where << ": the file may be named at the end";
    } else {
        EXPECT_EQ(actual, expected) << where;
    }
}

TEST(InfoOfSharedSamples, EveryFileAloneIsAsExpected) {
    const auto folder = sharedSample("samples/work");
    if (!folder) {
        GTEST_SKIP() << "no shared samples";
    }
    const json all = readJson(*folder + "/expected.json");
    for (const auto& [name, expected] : all.items()) {
        const bool comma = name.find("coma decimal") != std::string::npos;
        const json result = run(*folder, {name}, {"--decimal", comma ? "," : "."});
        expectSame(result["output"], expected, name);
        EXPECT_EQ(result["exit"], expected["files"].empty() ? 1 : 0) << name;
    }
}

TEST(InfoOfSharedSamples, SeveralFilesAndOtherAnswersAreAsExpected) {
    const auto folder = sharedSample("samples/work");
    if (!folder) {
        GTEST_SKIP() << "no shared samples";
    }
    for (const json& expected : readJson(*folder + "/expected_runs.json")) {
        const auto options = expected["options"].get<Words>();
        json result = run(*folder, expected["files"].get<Words>(), options);
        if (options == Words{"--swath", ""}) {
            EXPECT_EQ(result["boxes"].size(), 1U) << "an empty answer is told";
            result["boxes"] = json::array();
        }
        const std::string where = expected["files"].dump() + expected["options"].dump();
        for (const char* part : {"exit", "boxes", "output"}) {
            expectSame(result[part], expected[part], where + "/" + part);
        }
    }
}

TEST(OrdersOfSharedSamples, TheMemoryCardHoldsThreeOrders) {
    const auto works = sharedSample("samples/work");
    if (!works) {
        GTEST_SKIP() << "no shared samples";
    }
    std::ostringstream out;
    std::ostringstream boxes;
    EXPECT_EQ(runProgram(Words{"orders", *works + "/tarjeta", "--json"}, "", {out, boxes}), 0);
    EXPECT_EQ(boxes.str(), "");
    json orders = json::parse(out.str())["orders"];
    for (json& order : orders) {
        for (json& file : order["files"]) {
            file = fileNamePart(file.get<std::string>());
        }
    }
    EXPECT_EQ(orders, json::parse(R"([
        {"number": 15, "date": "05-03-2018", "startTime": "07:10:00",
         "files": ["LOG0001.NBR", "LOG0002.NBR", "log0003.nbr"]},
        {"number": 16, "date": "06-03-2018", "startTime": "11:00:00",
         "files": ["Log0004.nbr", "LOG0005.NBR"]},
        {"number": 0, "date": "07-03-2018", "startTime": "15:30:00",
         "files": ["log0006.nbr", "LOG0007.NBR"]}])"));
}

TEST(ProjectOfSharedSamples, HoldsWhatItsFilesHold) {
    const auto folder = sharedSample("samples/work");
    if (!folder) {
        GTEST_SKIP() << "no shared samples";
    }
    const Words files = {"Lote Norte 29-11.rpt", "log0012.nbr", "log0105.nbr",
                         "Siembra soja lote 7.rpt"};
    std::ostringstream out;
    std::ostringstream boxes;
    const Words words = {"project", *folder + "/campania 2017.fsp", "--json", "--program-dir",
                         *folder};
    EXPECT_EQ(runProgram(words, "", {out, boxes}), 0);
    EXPECT_EQ(boxes.str(), "");
    json project = json::parse(out.str());
    for (json& file : project["files"]) {
        file["path"] = fileNamePart(file["path"].get<std::string>());
    }
    EXPECT_EQ(project, run(*folder, files, {})["output"]);
}

}  // namespace
}  // namespace campora
