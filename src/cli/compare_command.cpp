// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <cstddef>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/findings/comparison_texts.h"
#include "app/findings/open_prescriptions.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/json_document.h"
#include "cli/printed_table.h"
#include "findings/compare.h"

namespace campora {

namespace {

Json channelJson(const ChannelComparison& sum) {
    return {{"channel", sum.channel.ofJob + 1},
            {"netHa", figureJson(sum.netHa)},
            {"prescribedProduct", figureJson(sum.prescribed)},
            {"appliedProduct", figureJson(sum.applied)},
            {"meanDeviation", figureJson(sum.meanDeviation)},
            {"within5", figureJson(sum.within(0))},
            {"within10", figureJson(sum.within(1))},
            {"within20", figureJson(sum.within(2))}};
}

Json zoneJson(int channel, const DoseComparison& zone) {
    return {{"channel", channel + 1},
            {"dose", asDecimal(zone.dose)},
            {"hectares", figureJson(zone.netHa)},
            {"prescribedProduct", figureJson(zone.prescribed)},
            {"appliedProduct", figureJson(zone.applied)},
            {"within", figureJson(zone.within())}};
}

Json zonesJson(const Comparison& comparison) {
    Json zones = Json::array();
    for (const ChannelComparison& sum : comparison.channels) {
        for (const DoseComparison& zone : sum.doses) {
            zones.push_back(zoneJson(sum.channel.ofJob, zone));
        }
    }
    return zones;
}

Json comparisonJson(const Arguments& arguments, const std::vector<std::string>& jobs,
                    const Comparison& comparison) {
    Json channels = Json::array();
    for (const ChannelComparison& sum : comparison.channels) {
        channels.push_back(channelJson(sum));
    }
    return {{"prescription", arguments.files.front()},
            {"jobs", jobs},
            {"channels", channels},
            {"zones", zonesJson(comparison)}};
}

void printTexts(const ComparisonTexts& texts, std::ostream& out) {
    printFigures(texts.figures, out);
    out << '\n';
    std::vector<std::vector<std::string>> rows{texts.columns};
    rows.insert(rows.end(), texts.rows.begin(), texts.rows.end());
    printTable(
        rows, [](std::size_t /*column*/) { return true; }, out);
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
    const Comparison comparison =
        compareDoses(NetWork(std::move(work)), source, channels, arguments.limit);
    if (arguments.json) {
        printJson(comparisonJson(arguments, paths, comparison), console.out);
    } else if (arguments.csv) {
        printCsv(zonesJson(comparison), zoneJson(0, {}), arguments.decimalSymbol, console.out);
    } else {
        printTexts(
            comparisonTexts(comparison, arguments.limit, productUnit(jobs, desk.texts), desk),
            console.out);
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
