// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lots/lot_commands.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <utility>

#include "app/lots/lot_saving.h"
#include "app/save_target.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "lots/file_lots.h"
#include "lots/gph_lote.h"
#include "lots/load_lot.h"
#include "lots/merge_lots.h"
#include "lots/save_lots.h"
#include "platform/file_filter.h"

namespace campora {

namespace {

std::vector<Lot> lotsIn(std::span<File* const> files) {
    std::vector<Lot> all;
    for (const File* file : files) {
        std::vector<Lot> lots = lotsOf(*file);
        std::move(lots.begin(), lots.end(), std::back_inserter(all));
    }
    return all;
}

}  // namespace

void LotCommands::toggleEditor() {
    if (editor_.isOpen()) {
        editor_.close();
    } else {
        editor_.open();
    }
}

bool LotCommands::canEdit() const {
    const File* const current = map_.files().currentFile();
    return current != nullptr && isOneLot(*current);
}

void LotCommands::edit() {
    if (canEdit()) {
        editor_.edit(*map_.files().currentFile());
    }
}

bool LotCommands::canSave() const {
    const File* const current = map_.files().currentFile();
    return current != nullptr && !lotsOf(*current).empty();
}

void LotCommands::save() {
    if (!canSave()) {
        return;
    }
    const File& file = *map_.files().currentFile();
    const std::vector<Lot> lots = lotsOf(file);
    std::string name = file.File_name();
    if (pathEnding(name) != kLotEnding) {
        name.append(kLotEnding);
    }
    const std::string target = askLotTarget(map_, settings_, name);
    if (target.empty()) {
        return;
    }
    const std::vector<std::string> paths = lotPaths(target, lots.size());
    if (const auto refused = map_.filesInUse(&file).whyNotTarget(paths)) {
        lotDesk(map_).tell(*refused);
        return;
    }
    for (const std::string& path : paths) {
        if (path != target && !overwriteAgreed(map_.desk(), path)) {
            return;
        }
    }
    const Result<std::vector<std::string>> saved = saveLots(lots, target);
    if (!saved) {
        lotDesk(map_).tell(saved.failure());
        return;
    }
    const bool wasMerged = areUnsavedLots(file);
    showSaved(file, *saved);
    if (const std::string older = wasMerged ? olderLots(target, *saved) : ""; !older.empty()) {
        lotDesk(map_).tell({TextId::OlderLotsStay, {older}});
    }
}

void LotCommands::showSaved(const File& file, const std::vector<std::string>& paths) const {
    const bool unsaved = areUnsavedLots(file);
    const File* untitled = unsaved ? &file : nullptr;
    for (const std::string& path : paths) {
        if (unsaved || map_.files().isLoaded(path)) {
            putLotOnMap(map_, display_, path, std::exchange(untitled, nullptr));
        }
    }
    display_.window().setToolText(
        map_.desk().texts.format(TextId::LotSaved, {std::string(fileNamePart(paths.front()))}));
}

std::vector<File*> LotCommands::lotFiles(bool unsaved) const {
    std::vector<File*> files = map_.files().all();
    std::erase_if(files, [unsaved](const File* file) {
        return lotsOf(*file).empty() || areUnsavedLots(*file) != unsaved;
    });
    return files;
}

std::vector<File*> LotCommands::filesToMerge() const {
    std::vector<File*> files = lotFiles(false);
    return files.empty() ? lotFiles(true) : files;
}

bool LotCommands::canMerge() const {
    return lotsIn(filesToMerge()).size() > 1;
}

void LotCommands::merge() {
    if (!canMerge()) {
        return;
    }
    const Desk desk = lotDesk(map_);
    const std::vector<File*> files = filesToMerge();
    const MergedLots merged = mergeLots(lotsIn(files));
    std::string remarks;
    for (const std::string& remark : mergeRemarks(merged, desk.texts)) {
        remarks.append(remarks.empty() ? "" : "\n").append(remark);
    }
    if (merged.lots.empty()) {
        desk.tell(remarks);
        return;
    }
    std::unique_ptr<File> made =
        makeLotGroup(merged.lots, "", desk.texts(TextId::MergedName), desk.locale);
    for (const File* file : files) {
        if (areUnsavedLots(*file)) {  // an earlier result is merged again
            made->madeFrom.insert(made->madeFrom.end(), file->madeFrom.begin(),
                                  file->madeFrom.end());
        } else {
            made->madeFrom.push_back(file->File_diskPath());
        }
    }
    for (const File* file : lotFiles(true)) {
        map_.files().removeFile(file);
    }
    map_.addFile(std::move(made), true);
    display_.showWhole();
    if (!remarks.empty()) {
        desk.tell(remarks);
    }
}

}  // namespace campora
