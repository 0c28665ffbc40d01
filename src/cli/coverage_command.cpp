// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <string>
#include <vector>

#include "app/findings/map_coverage.h"
#include "base/plain_text.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/json_document.h"

namespace campora {

namespace {

Json orNull(const std::optional<double>& hectares) {
    return hectares ? Json(*hectares) : Json();
}

void addFigures(Json& told, const CoverageFigures& figures) {
    told["grossHa"] = figures.gross;
    told["dosedHa"] = figures.dosed;
    told["undosedHa"] = figures.undosed;
    told["netHa"] = figures.net;
    told["overlapHa"] = figures.overlap;
    told["skippedHa"] = orNull(figures.skipped);
    told["skippedIsEstimate"] = figures.skippedIsEstimate;
    told["insideHa"] = orNull(figures.inside);
    told["outsideHa"] = orNull(figures.outside);
}

struct CoveredFile {
    const File* file;
    CoverageFigures figures;
};

/// Of every file with work; the lots are those of the whole map.
std::vector<CoveredFile> coveredFiles(const OpenMap& map, std::span<const LotRing> lots) {
    std::vector<CoveredFile> covered;
    for (const File* file : map.files().all()) {
        if (const auto work = workLayers(*file); !work.empty()) {
            covered.push_back({file, coverGround(work, lots).figures});
        }
    }
    return covered;
}

Json coverageJson(std::span<const CoveredFile> files, const CoverageFigures& total) {
    Json told;
    Json& list = told["files"] = Json::array();
    for (const CoveredFile& covered : files) {
        Json one{{"path", covered.file->File_path()}};
        addFigures(one, covered.figures);
        list.push_back(std::move(one));
    }
    addFigures(told["total"], total);
    return told;
}

void printRows(std::string_view title, const CoverageFigures& figures, const Desk& desk,
               std::ostream& out) {
    out << plainLine(title) << '\n';
    for (const CoverageRow& row : coverageRows(figures, desk)) {
        out << "  " << desk.texts(row.name) << ": " << row.value << '\n';
    }
}

}  // namespace

int runCoverage(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    const bool all = batch.openFiles();
    const CoverageInput input = coverageInput(batch.map().files());
    if (input.work.empty()) {
        batch.desk().tell({TextId::NoAppliedWork, {}});
        return exit_status::kRefused;
    }
    const std::vector<CoveredFile> files = coveredFiles(batch.map(), input.lots);
    const CoverageFigures total =
        files.size() == 1 ? files.front().figures : coverGround(input.work, input.lots).figures;
    if (arguments.json) {
        printJson(coverageJson(files, total), console.out);
    } else {
        for (const CoveredFile& covered : files) {
            printRows(covered.file->File_name(), covered.figures, batch.desk(), console.out);
        }
        if (files.size() > 1) {
            printRows(batch.desk().texts(TextId::AllWorkTogether), total, batch.desk(),
                      console.out);
        }
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
