// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <optional>
#include <string>
#include <vector>

#include "app/findings/comparison_texts.h"
#include "app/findings/open_prescriptions.h"
#include "base/numbers.h"
#include "base/plain_text.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/csv_table.h"
#include "cli/json_document.h"
#include "findings/compare.h"

namespace campora {

namespace {

/// What a sum of steps has behind the sixth place is its rounding.
double rounded(double value) {
    constexpr double kPlaces = 1e6;
    return std::round(value * kPlaces) / kPlaces;
}

Json figure(std::optional<double> value) {
    return value ? Json(rounded(*value)) : Json();
}

Json channelJson(const ChannelComparison& sum) {
    return {{"channel", sum.channel.ofJob + 1},
            {"netHa", figure(sum.hectares)},
            {"prescribedProduct", figure(sum.prescribed)},
            {"appliedProduct", figure(sum.applied)},
            {"meanDeviation", figure(sum.meanDeviation)},
            {"within5", figure(sum.within(0))},
            {"within10", figure(sum.within(1))},
            {"within20", figure(sum.within(2))}};
}

Json comparisonJson(const Arguments& arguments, const std::vector<std::string>& jobs,
                    const Comparison& comparison) {
    Json channels = Json::array();
    Json zones = Json::array();
    for (const ChannelComparison& sum : comparison.channels) {
        channels.push_back(channelJson(sum));
        for (const DoseComparison& ofDose : sum.doses) {
            zones.push_back({{"channel", sum.channel.ofJob + 1},
                             {"dose", asDecimal(ofDose.dose)},
                             {"hectares", figure(ofDose.hectares)},
                             {"prescribedProduct", figure(ofDose.prescribed)},
                             {"appliedProduct", figure(ofDose.applied)},
                             {"within", figure(ofDose.within())}});
        }
    }
    return {{"prescription", arguments.files.front()},
            {"jobs", jobs},
            {"channels", channels},
            {"zones", zones}};
}

void printCsv(const Comparison& comparison, char symbol, std::ostream& out) {
    const std::vector<std::string> names{"channel",           "dose",           "hectares",
                                         "prescribedProduct", "appliedProduct", "within"};
    out << csvLine(names, symbol);
    for (const ChannelComparison& sum : comparison.channels) {
        for (const DoseComparison& ofDose : sum.doses) {
            const std::optional<double> within = ofDose.within();
            const std::vector<std::string> cells{numberText(sum.channel.ofJob + 1),
                                                 numberText(asDecimal(ofDose.dose), symbol),
                                                 numberText(rounded(ofDose.hectares), symbol),
                                                 numberText(rounded(ofDose.prescribed), symbol),
                                                 numberText(rounded(ofDose.applied), symbol),
                                                 within ? numberText(rounded(*within), symbol)
                                                        : ""};
            out << csvLine(cells, symbol);
        }
    }
}

std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (byte & '\xC0') != '\x80'; }));
}

/// Columns as wide as their widest cell, numbers to the right.
void printTable(const std::vector<std::vector<std::string>>& rows, std::ostream& out) {
    std::vector<std::size_t> widths(rows.front().size(), 0);
    for (const std::vector<std::string>& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            widths[i] = std::max(widths[i], widthOf(row[i]));
        }
    }
    for (const std::vector<std::string>& row : rows) {
        for (std::size_t i = 0; i < row.size(); ++i) {
            out << "  " << std::string(widths[i] - widthOf(row[i]), ' ') << row[i];
        }
        out << '\n';
    }
}

void printTexts(const ComparisonTexts& texts, std::ostream& out) {
    for (const ComparisonTexts::Figure& figure : texts.figures) {
        out << plainLine(figure.name + ": " + figure.value) << '\n';
    }
    out << '\n';
    std::vector<std::vector<std::string>> rows{texts.columns};
    rows.insert(rows.end(), texts.rows.begin(), texts.rows.end());
    printTable(rows, out);
    out << '\n' << texts.note << '\n';
}

}  // namespace

int runCompare(const Arguments& arguments, const Console& console) {
    Arguments ofJobs = arguments;
    ofJobs.files.erase(ofJobs.files.begin());
    BatchMap batch(ofJobs, console.boxes);
    const Desk& desk = batch.desk();
    const std::optional<ReadPrescription> plan = readPrescription(arguments.files.front(), desk);
    if (!plan) {
        return exit_status::kRefused;
    }
    const bool all = batch.openFiles();
    std::vector<const WorkLayer*> work;
    std::vector<const File*> jobs;
    std::vector<std::string> paths;
    for (const File* file : batch.map().files().all()) {
        const std::vector<const WorkLayer*> layers = workLayers(*file);
        if (!layers.empty()) {
            work.insert(work.end(), layers.begin(), layers.end());
            jobs.push_back(file);
            paths.push_back(file->File_diskPath());
        }
    }
    const DoseSource& source = *plan->prescription.source;
    const auto channels = channelPairs(work, source, arguments.comparedChannel);
    if (channels.empty()) {
        desk.tell(jobs.empty() ? Failure{TextId::CompareNothingWorked, {}}
                               : Failure{TextId::CompareNoChannel, {arguments.files.front()}});
        return exit_status::kRefused;
    }
    const Comparison comparison = compareDoses(work, source, channels, arguments.limit);
    if (arguments.json) {
        printJson(comparisonJson(arguments, paths, comparison), console.out);
    } else if (arguments.csv) {
        printCsv(comparison, arguments.decimalSymbol, console.out);
    } else {
        printTexts(
            comparisonTexts(comparison, arguments.limit, productUnit(jobs, desk.texts), desk),
            console.out);
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
