// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Opens the shared sample jobs and compares everything that is known about them with what stands
// beside them. Skipped where the samples are not there.

#include "platform/quiet_dialogs.h"
#include "support/shared_samples.h"

#include <algorithm>
#include <cmath>
#include <fstream>
#include <string>
#include <vector>

#include <gtest/gtest.h>
#include <nlohmann/json.hpp>

#include "base/dates.h"
#include "base/paths.h"
#include "base/text.h"
#include "model/exportable.h"
#include "support/scripted_platform.h"
#include "work/loaded_file_list.h"
#include "work/work_reader.h"

namespace campora {

namespace {

using nlohmann::json;

/// Answers as the batch program does, and keeps the boxes in the order in which they come up.
class BatchDialogs : public QuietDialogs {
public:
    std::string swath = "16";
    std::vector<std::string> boxes;

    void message(std::string_view text, MessageIcon /*icon*/,
                 std::string_view /*caption*/) override {
        boxes.emplace_back(text);
    }
    [[nodiscard]] bool askYesNo(std::string_view text, MessageIcon /*icon*/,
                                std::string_view /*caption*/) override {
        boxes.emplace_back(text);
        return false;
    }
    [[nodiscard]] std::string inputBox(TextId prompt, std::string_view /*caption*/,
                                       std::string_view /*proposed*/) override {
        return prompt == TextId::AskSwath ? swath : "8";
    }
};

struct Opening {
    std::vector<std::string> files;  ///< from the folder of the samples
    std::string swath = "16";
    char decimalSymbol = '.';
};

/// What is open after an opening, in the form of the expectation files.
struct Outcome {
    int exitStatus = 0;
    std::vector<std::string> boxes;
    json output;
};

json boxOf(const BoundingBox& box) {
    if (!box.isSet) {
        return nullptr;
    }
    return {{"minX", box.minX}, {"minY", box.minY},     {"maxX", box.maxX},
            {"maxY", box.maxY}, {"widthM", box.widthM}, {"heightM", box.heightM}};
}

json layerOf(const Gph& layer) {
    const auto* const points = dynamic_cast<const ExportablePoint*>(&layer);
    return {{"kind", layer.Gph_kind()},
            {"elements", layer.Gph_count()},
            {"points", points == nullptr ? json() : json(points->ExportablePoint_pointCount())},
            {"bound", boxOf(layer.Gph_bound())}};
}

json fileOf(File& file) {
    json summary = json::array();
    for (const auto& [property, value, unit] : file.File_resumen().entries()) {
        summary.push_back({{"property", property}, {"value", value}, {"unit", unit}});
    }
    json layers = json::array();
    for (const Gph* layer : file.File_gphList()) {
        layers.push_back(layerOf(*layer));
    }
    return {{"name", file.File_name()},
            {"path", fileNamePart(file.File_path())},
            {"icon", file.File_icon()},
            {"id", file.File_id()},
            {"priority", file.File_priority()},
            {"bound", boxOf(file.File_bound())},
            {"summary", summary},
            {"layers", layers},
            {"scale", nullptr}};
}

json rangesOf(const ValueRanges& ranges) {
    json result;
    const auto add = [&result](const char* least, const char* greatest, const auto& range,
                               const auto& textOf) {
        result[least] = range ? json(textOf(range->least)) : json();
        result[greatest] = range ? json(textOf(range->greatest)) : json();
    };
    const auto same = [](float value) { return value; };
    add("flowMin", "flowMax", ranges.flow, same);
    add("litresMin", "litresMax", ranges.litres, same);
    add("doseMin", "doseMax", ranges.dose, same);
    add("dateMin", "dateMax", ranges.date,
        [](std::int32_t day) { return dateText(dateOfDayNumber(day), "yyyy-mm-dd"); });
    return result;
}

std::optional<LoadedWork> loadByEnding(const std::string& path, const WorkReaderContext& context) {
    const std::string ending = pathEnding(path);
    return ending == ".rpt"   ? loadRptFile(path, context)
           : ending == ".txt" ? loadRptTextTable(path, context)
                              : loadTrackFile(path, context);
}

Outcome open(const Opening& opening, const std::string& folder) {
    BatchDialogs dialogs;
    dialogs.swath = opening.swath;
    const FixedLocale locale(opening.decimalSymbol);
    const Texts texts;
    const Registrations registrations = loadRegistrations(folder, dialogs, texts);
    LoadedFileList list(texts);
    ValueRanges ranges;
    Outcome outcome;
    for (const std::string& name : opening.files) {
        const std::string path = folder + "/" + name;
        std::optional<LoadedWork> work;
        if (!list.isLoaded(path)) {
            work = loadByEnding(path, {dialogs, locale, texts, registrations, ranges});
        }
        if (work && list.addFile(std::move(work->group), false, dialogs)) {
            ranges = work->ranges;
        } else {
            outcome.exitStatus = 1;
        }
    }
    outcome.output["files"] = json::array();
    for (int i = 0; i < list.loadedCount(); ++i) {
        outcome.output["files"].push_back(fileOf(list.file(i)));
    }
    outcome.output["ranges"] = rangesOf(ranges);
    for (const std::string& box : dialogs.boxes) {
        const std::string line = replaceAll(box, "\r\n", " | ");
        outcome.boxes.push_back(
            replaceAll(replaceAll(line, folder + "/copia/", ""), folder + "/", ""));
    }
    return outcome;
}

bool isRange(const std::string& key) {
    return key.ends_with("Min") || key.ends_with("Max");
}

/// Numbers of boxes may differ by a billionth of their size, ranges are 32-bit; all else is equal
/// to the letter.
void expectSame(const json& actual, const json& expected, const std::string& where) {
    SCOPED_TRACE(where);
    if (expected.is_object()) {
        ASSERT_TRUE(actual.is_object());
        EXPECT_EQ(actual.size(), expected.size());
        for (const auto& [key, value] : expected.items()) {
            ASSERT_TRUE(actual.contains(key)) << key;
            if (isRange(key) && value.is_number() && actual[key].is_number()) {
                EXPECT_EQ(actual[key].get<float>(), value.get<float>()) << key;
            } else {
                expectSame(actual[key], value, key);
            }
        }
    } else if (expected.is_array()) {
        ASSERT_EQ(actual.size(), expected.size());
        for (std::size_t i = 0; i < expected.size(); ++i) {
            expectSame(actual[i], expected[i], std::to_string(i));
        }
    } else if (expected.is_number_float()) {
        ASSERT_TRUE(actual.is_number());
        const double value = expected.get<double>();
        EXPECT_NEAR(actual.get<double>(), value, 1e-9 * std::abs(value));
    } else {
        EXPECT_EQ(actual, expected);
    }
}

json readJson(const std::string& path) {
    return json::parse(std::ifstream(path));
}

TEST(SharedSamples, EveryWorkFileOpensAsExpected) {
    const auto folder = sharedSample("samples/work");
    if (!folder) {
        GTEST_SKIP() << "no shared samples";
    }
    const json expected = readJson(*folder + "/expected.json");
    ASSERT_FALSE(expected.empty());
    for (const auto& [name, output] : expected.items()) {
        if (pathEnding(name) == ".fsp") {
            continue;  // a project is no work file
        }
        Opening opening;
        opening.files = {name};
        opening.decimalSymbol = name.find("coma decimal") == std::string::npos ? '.' : ',';
        expectSame(open(opening, *folder).output, output, name);
    }
}

TEST(SharedSamples, SeveralFilesAndOtherAnswersGiveWhatIsExpected) {
    const auto folder = sharedSample("samples/work");
    if (!folder) {
        GTEST_SKIP() << "no shared samples";
    }
    const json runs = readJson(*folder + "/expected_runs.json");
    ASSERT_FALSE(runs.empty());
    for (const json& expected : runs) {
        Opening opening;
        opening.files = expected["files"].get<std::vector<std::string>>();
        const auto options = expected["options"].get<std::vector<std::string>>();
        for (std::size_t i = 0; i + 1 < options.size(); i += 2) {
            if (options[i] == "--swath") {
                opening.swath = options[i + 1];
            } else {
                ASSERT_EQ(options[i], "--decimal") << "an option that this test does not know";
                opening.decimalSymbol = options[i + 1].front();
            }
        }
        SCOPED_TRACE(expected["files"].dump() + expected["options"].dump());
        const Outcome outcome = open(opening, *folder);
        EXPECT_EQ(outcome.exitStatus, expected["exit"].get<int>());
        EXPECT_EQ(outcome.boxes, expected["boxes"].get<std::vector<std::string>>());
        expectSame(outcome.output, expected["output"], "output");
    }
}

}  // namespace

}  // namespace campora
