// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lots/lot_commands.h"

#include <algorithm>
#include <iterator>
#include <memory>
#include <optional>
#include <utility>

#include "app/lots/lot_editor.h"
#include "app/save_target.h"
#include "app/session.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "lots/gph_lote.h"
#include "lots/load_lot.h"
#include "lots/merge_lots.h"
#include "lots/save_lots.h"
#include "platform/file_filter.h"

namespace campora {

namespace {

constexpr std::string_view kStem = "lote";

std::optional<int> numberInName(std::string_view path) {
    const std::string name = lowerCase(fileNamePart(path));
    int number = 0;
    for (; number < kLotNumbers; ++number) {
        if (name == lotFileName(number)) {
            return number;
        }
    }
    return std::nullopt;
}

std::string inFolder(const std::string& folder, const std::string& name) {
    return pathText(nativePath(folder) / nativePath(name));
}

/// A result of merging that is on no disk yet.
bool isUnsaved(const File& file) {
    return file.File_diskPath().empty() && !lotsOf(file).empty();
}

}  // namespace

std::vector<Lot> lotsOf(const File& file) {
    std::vector<Lot> lots;
    for (const Gph* layer : file.File_gphList()) {
        const auto* const lot = dynamic_cast<const GphLote*>(layer);
        if (lot == nullptr) {
            return {};
        }
        lots.push_back({lot->vertices(), lot->description});
    }
    return lots;
}

bool isOneLot(const File& file) {
    return lotsOf(file).size() == 1;
}

std::string lotFileName(int number) {
    std::string digits = numberText(number);
    digits.insert(0, digits.size() < 2 ? 1 : 0, '0');
    return std::string(kStem).append(digits).append(kLotEnding);
}

std::string proposedLotNumber(const Session& session, std::string_view path) {
    if (const std::optional<int> number = numberInName(path)) {
        return numberText(*number);
    }
    const std::string folder = startFolder(session, SettingId::LotesPath);
    for (int number = 1; number < kLotNumbers; ++number) {
        if (!isThere(inFolder(folder, lotFileName(number)))) {
            return numberText(number);
        }
    }
    return {};
}

std::string askLotTarget(const Session& session, const std::string& name) {
    const Texts& texts = session.texts();
    const SaveRequest request{std::string(texts(TextId::ExportTitle)),
                              startFolder(session, SettingId::LotesPath),
                              name,
                              {fileFilter(texts, TextId::FilterLote, kLotEnding)}};
    std::string path = session.platform().dialogs.saveFile(request).path;
    if (path.empty()) {
        return {};
    }
    const std::string_view folder =
        std::string_view(path).substr(0, path.size() - fileNamePart(path).size());
    writeText(session.platform().settings, SettingId::LotesPath, folder);
    if (pathEnding(path) != kLotEnding) {
        path.append(kLotEnding);  // by its ending it is known again
        if (!overwriteAgreed(session, path)) {
            return {};
        }
    }
    return path;
}

bool putLotOnMap(Session& session, const std::string& path, const File* untitled) {
    const Platform& platform = session.platform();
    std::unique_ptr<File> lot = loadLot(path, {platform.dialogs, platform.locale, session.texts()});
    if (lot == nullptr) {
        return false;
    }
    const File* const listed = session.files().findFile(path);
    if (untitled != nullptr) {
        session.replaceFile(untitled, std::move(lot));
        session.removeFile(listed);
    } else if (listed != nullptr) {
        session.replaceFile(listed, std::move(lot));
    } else {
        session.showBelow(std::move(lot));
    }
    return true;
}

void LotCommands::tell(const std::string& text) const {
    session_.platform().dialogs.message(text, MessageIcon::Exclamation,
                                        session_.texts()(TextId::LoteTitle));
}

void LotCommands::mnuLote() {
    LotEditor& editor = session_.lotEditor();
    if (editor.isOpen()) {
        editor.close();
    } else {
        editor.open();
    }
}

bool LotCommands::canEdit() const {
    const File* const current = session_.files().currentFile();
    return current != nullptr && isOneLot(*current);
}

void LotCommands::mnuLoteEdit() {
    if (canEdit()) {
        session_.lotEditor().edit(*session_.files().currentFile());
    }
}

bool LotCommands::canSave() const {
    const File* const current = session_.files().currentFile();
    return current != nullptr && !lotsOf(*current).empty();
}

void LotCommands::mnuLoteSave() {
    if (!canSave()) {
        return;
    }
    const File& file = *session_.files().currentFile();
    const std::vector<Lot> lots = lotsOf(file);
    std::string name = file.File_name();
    if (pathEnding(name) != kLotEnding) {
        name.append(kLotEnding);
    }
    const std::string target = askLotTarget(session_, name);
    if (target.empty()) {
        return;
    }
    const std::vector<std::string> paths = lotPaths(target, lots.size());
    if (const auto refused = session_.filesInUse(&file).whyNotTarget(paths)) {
        tell(session_.texts().sentence(*refused));
        return;
    }
    for (const std::string& path : paths) {
        if (path != target && !overwriteAgreed(session_, path)) {
            return;
        }
    }
    const Result<std::vector<std::string>> saved = saveLots(lots, target);
    if (!saved) {
        tell(session_.texts().sentence(saved.failure()));
        return;
    }
    const bool wasMerged = isUnsaved(file);
    showSaved(file, *saved);
    if (const std::string older = wasMerged ? olderLots(target, *saved) : ""; !older.empty()) {
        tell(session_.texts().format(TextId::OlderLotsStay, {older}));
    }
}

void LotCommands::showSaved(const File& file, const std::vector<std::string>& paths) const {
    const bool unsaved = isUnsaved(file);
    const File* untitled = unsaved ? &file : nullptr;
    for (const std::string& path : paths) {
        if (unsaved || session_.files().isLoaded(path)) {
            putLotOnMap(session_, path, std::exchange(untitled, nullptr));
        }
    }
    session_.platform().window.setToolText(
        session_.texts().format(TextId::LoteSaved, {std::string(fileNamePart(paths.front()))}));
}

std::vector<Lot> LotCommands::openLots(bool unsaved) const {
    std::vector<Lot> all;
    for (int i = 0; i < session_.files().loadedCount(); ++i) {
        const File& file = session_.files().file(i);
        std::vector<Lot> lots = lotsOf(file);
        if (isUnsaved(file) == unsaved) {
            std::move(lots.begin(), lots.end(), std::back_inserter(all));
        }
    }
    return all;
}

std::vector<Lot> LotCommands::lotsToMerge() const {
    std::vector<Lot> lots = openLots(false);
    return lots.empty() ? openLots(true) : lots;
}

std::span<const std::string> LotCommands::mergedFrom() const {
    for (int i = 0; i < session_.files().loadedCount(); ++i) {
        if (isUnsaved(session_.files().file(i))) {
            return mergedFrom_;
        }
    }
    return {};
}

bool LotCommands::canMerge() const {
    return lotsToMerge().size() > 1;
}

bool LotCommands::mayLose(const File& file) const {
    const Texts& texts = session_.texts();
    return !isUnsaved(file) || session_.platform().dialogs.askYesNo(
                                   texts.format(TextId::AskLoseMerged, {file.File_name()}),
                                   MessageIcon::Exclamation, texts(TextId::LoteTitle));
}

bool LotCommands::mayClose() const {
    for (int i = 0; i < session_.files().loadedCount(); ++i) {
        if (!mayLose(session_.files().file(i))) {
            return false;
        }
    }
    return true;
}

void LotCommands::mnuLoteMerge() {
    if (!canMerge()) {
        return;
    }
    const Texts& texts = session_.texts();
    const MergedLots merged = mergeLots(lotsToMerge());
    std::string remarks;
    for (const std::string& remark : mergeRemarks(merged, texts)) {
        remarks.append(remarks.empty() ? "" : "\n").append(remark);
    }
    if (merged.lots.empty()) {
        tell(remarks);
        return;
    }
    LoadedFileList& files = session_.files();
    std::vector<std::string> sources;
    for (int i = 0; i < files.loadedCount(); ++i) {
        if (!isUnsaved(files.file(i)) && !lotsOf(files.file(i)).empty()) {
            sources.push_back(files.file(i).File_diskPath());
        }
    }
    if (!sources.empty()) {  // else the earlier result is merged again
        mergedFrom_ = std::move(sources);
    }
    for (int i = files.loadedCount(); i-- > 0;) {
        if (isUnsaved(files.file(i))) {
            files.removeFile(&files.file(i));
        }
    }
    session_.showOnTop(
        makeLotGroup(merged.lots, "", texts(TextId::MergedName), session_.platform().locale));
    if (!remarks.empty()) {
        tell(remarks);
    }
}

}  // namespace campora
