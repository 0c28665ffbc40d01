// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <iterator>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/lots/lot_commands.h"
#include "app/used_files.h"
#include "base/plain_text.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "lots/file_lots.h"
#include "lots/load_lot.h"
#include "lots/merge_lots.h"
#include "lots/save_lots.h"

namespace campora {

namespace {

/// Says what could not be written; none then.
std::optional<std::vector<std::string>> save(std::span<const Lot> lots, const Arguments& to,
                                             const Console& console) {
    const Result<std::vector<std::string>> saved = saveLots(lots, to.output);
    if (!saved) {
        console.boxes << oneLine(Texts(to.language).sentence(saved.failure())) << '\n';
        return std::nullopt;
    }
    return *saved;
}

/// Says that a file which was read would be lost; false then.
bool spares(const std::vector<std::string>& targets, const Arguments& arguments,
            const Console& console) {
    FilesInUse inUse;
    for (const std::string& path : arguments.files) {
        addOpened(inUse, path);
    }
    const std::optional<Failure> refused = inUse.whyNotTarget(targets);
    if (refused) {
        console.boxes << oneLine(Texts(arguments.language).sentence(*refused)) << '\n';
    }
    return !refused;
}

}  // namespace

int runLot(const Arguments& arguments, const Console& console) {
    const Lot lot{arguments.vertices, arguments.description};
    return save({&lot, 1}, arguments, console) ? exit_status::kDone : exit_status::kRefused;
}

int runMerge(const Arguments& arguments, const Console& console) {
    BatchDesk batch(arguments, console.boxes);
    const Desk desk = batch.desk();
    int status = exit_status::kDone;
    std::vector<Lot> lots;
    for (const std::string& path : arguments.files) {
        if (const auto file = loadLot(path, desk)) {
            std::vector<Lot> read = lotsOf(*file);
            std::move(read.begin(), read.end(), std::back_inserter(lots));
        } else {
            status = exit_status::kRefused;
        }
    }
    const MergedLots merged = mergeLots(lots);
    if (lots.empty()) {
        return exit_status::kRefused;  // each has been told already
    }
    for (const std::string& remark : mergeRemarks(merged, desk.texts)) {
        console.boxes << oneLine(remark) << '\n';
    }
    if (merged.lots.empty() ||
        !spares(lotPaths(arguments.output, merged.lots.size()), arguments, console)) {
        return exit_status::kRefused;
    }
    const auto saved = save(merged.lots, arguments, console);
    if (!saved) {
        return exit_status::kRefused;
    }
    for (const std::string& path : *saved) {
        console.out << plainLine(path) << '\n';
    }
    if (const std::string older = olderLots(arguments.output, *saved); !older.empty()) {
        desk.tell({TextId::OlderLotsStay, {older}});
    }
    return status;
}

}  // namespace campora
