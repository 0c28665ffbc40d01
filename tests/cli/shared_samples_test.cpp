// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Runs `info --json` over the shared samples and compares all it says with what stands beside them.
// Skipped where the samples are not there.

#include "support/shared_samples.h"

#include <cmath>
#include <fstream>
#include <optional>
#include <string>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "base/paths.h"
#include "base/text.h"
#include "support/batch_run.h"

namespace campora {
namespace {

using nlohmann::json;
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

struct SharedWork : BatchRun {
    void SetUp() override {
        if (!samples) {
            GTEST_SKIP() << "no shared samples";
        }
    }
    [[nodiscard]] json expected(const std::string& name) const {
        return json::parse(std::ifstream(*samples + "/" + name));
    }
    /// What a run says, with paths reduced to the names of files, without what is remarked on them.
    static json filesIn(const Outcome& outcome) {
        json output = json::parse(outcome.out);
        for (json& file : output["files"]) {
            file["path"] = fileNamePart(file["path"].get<std::string>());
            file.erase("remarks");
        }
        return output;
    }
    /// A run in the form of the expectations.
    [[nodiscard]] json info(const Words& files, const Words& options) const {
        Words words = {"info", "--json", "--program-dir", *samples};
        for (const std::string& file : files) {
            words.push_back(*samples + "/" + file);
        }
        words.insert(words.end(), options.begin(), options.end());
        const Outcome outcome = run(words);
        json result{{"exit", outcome.status}, {"boxes", json::array()}};
        const std::string shortened =
            replaceAll(replaceAll(outcome.boxes, *samples + "/copia/", ""), *samples + "/", "");
        for (const std::string_view line : split(shortened, '\n')) {
            if (!line.empty() && !line.starts_with("note: ")) {
                result["boxes"].push_back(line);
            }
        }
        result["output"] = filesIn(outcome);
        return result;
    }

    std::optional<std::string> samples = sharedSample("samples/work");
};

TEST_F(SharedWork, EveryFileAloneIsAsExpected) {
    const json all = expected("expected.json");
    for (const auto& [name, file] : all.items()) {
        const bool comma = name.find("coma decimal") != std::string_view::npos;
        const json result = info({name}, {"--decimal", comma ? "," : "."});
        expectSame(result["output"], file, name);
        EXPECT_EQ(result["exit"], file["files"].empty() ? 1 : 0) << name;
    }
}

TEST_F(SharedWork, SeveralFilesAndOtherAnswersAreAsExpected) {
    for (const json& wanted : expected("expected_runs.json")) {
        const auto options = wanted["options"].get<Words>();
        json result = info(wanted["files"].get<Words>(), options);
        if (options == Words{"--swath", ""}) {
            EXPECT_EQ(result["boxes"].size(), 1U) << "an empty answer is told";
            result["boxes"] = json::array();
        }
        const std::string where = wanted["files"].dump() + wanted["options"].dump();
        for (const char* part : {"exit", "boxes", "output"}) {
            expectSame(result[part], wanted[part], where + "/" + part);
        }
    }
}

TEST_F(SharedWork, TheMemoryCardHoldsThreeOrders) {
    const Outcome outcome = run({"orders", *samples + "/tarjeta", "--json"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.boxes, "");
    json orders = json::parse(outcome.out)["orders"];
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

}  // namespace
}  // namespace campora
