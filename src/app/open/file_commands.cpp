// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_commands.h"

#include <algorithm>
#include <cstddef>
#include <span>

#include "app/open/file_loading.h"
#include "app/open/files_behind.h"
#include "app/open/load_project.h"
#include "app/save_target.h"
#include "app/settings.h"
#include "app/unsaved_work.h"
#include "app/used_files.h"
#include "base/file_draft.h"
#include "base/file_endings.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "platform/file_filter.h"
#include "platform/quiet_dialogs.h"
#include "presc/shape_reader.h"
#include "work/companion_names.h"

namespace campora {

namespace {

/// Adds a copy of `source` to the files that are to be written together.
std::optional<Failure> addCopy(std::vector<FileDraft>& files, const std::string& source,
                               const std::string& target) {
    const Result<FileBytes> content = readFile(source);
    if (!content) {
        return content.failure();
    }
    files.emplace_back(target).write(content->text());
    return std::nullopt;
}

}  // namespace

FileCommands::FileCommands(OpenMap& map, MapDisplay& display, MapTools& tools,
                           SettingsStore& settings)
    : map_(map), display_(display), tools_(tools), settings_(settings), recent_(settings) {}

void FileCommands::fileOpen() {
    OpenRequest request{std::string(map_.desk().texts(TextId::Open)),
                        keptFolder(settings_, SettingId::OpenPath, map_.programFolder()),
                        openFilters(map_.desk().texts)};
    request.several = true;
    request.preview = [this](const std::vector<std::string>& selected) { preview(selected); };
    const std::vector<std::string> paths = map_.desk().dialogs.openFiles(request);
    if (preview_) {
        display_.window().setToolText({});
        preview_.reset();
    }
    if (!paths.empty() && mayCloseFiles(map_)) {
        writeText(settings_, SettingId::OpenPath, folderOf(paths.front()));
        openPaths(paths, true);
    }
}

void FileCommands::preview(const std::vector<std::string>& selected) {
    if (!preview_) {
        preview_.emplace(map_, display_, tools_);
    }
    QuietDialogs quiet;
    const Desk desk = map_.desk().with(quiet);
    std::vector<std::string> files;
    for (const std::string& path : selected) {
        if (!isFolder(path)) {  // to open one means to go into it
            const std::vector<std::string> behind = filesOf(path, desk).files;
            files.insert(files.end(), behind.begin(), behind.end());
        }
    }
    preview_->show(files);
    showShapeKind(selected);
}

void FileCommands::showShapeKind(const std::vector<std::string>& selected) {
    const std::optional<TextId> kind =
        selected.size() == 1 ? readShapeKind(selected.front()) : std::nullopt;
    display_.window().setToolText(kind ? map_.desk().texts(*kind) : "");
}

FileCommands::Behind FileCommands::filesOf(const std::string& path, const Desk& desk) const {
    if (auto project = filesOfProject(path, map_.programFolder(), desk)) {
        return {std::move(project->paths), true};
    }
    std::vector<std::string> files = filesBehind(path);
    if (files.empty()) {
        desk.tell(std::string(desk.texts(TextId::FolderWithoutFiles)) + path);
    }
    return {std::move(files), false};
}

bool FileCommands::openPaths(const std::vector<std::string>& paths, bool resetFirst) {
    std::vector<std::string> files;
    std::vector<std::string> projects;
    for (const std::string& path : paths) {
        const Behind behind = filesOf(path, map_.desk());
        files.insert(files.end(), behind.files.begin(), behind.files.end());
        if (behind.isProject) {
            projects.push_back(path);
        }
    }
    OpenManner manner;
    manner.inPlace = resetFirst;
    manner.sources = projects;
    const std::vector<std::string> taken = map_.openAll(files, manner);
    if (!taken.empty()) {
        display_.showWhole();
    }
    // A project stands for its files in the list of recent ones.
    for (const std::string& path : projects.empty() ? taken : projects) {
        recent_.add(path);
    }
    display_.window().commandsChanged();
    return !taken.empty();
}

void FileCommands::openRecent(std::string_view path) {
    if (!isThere(path)) {
        const Desk& desk = map_.desk();
        desk.tell(std::string(desk.texts(TextId::ListedFileMissing)).append(path));
        recent_.remove(path);
        display_.window().commandsChanged();
        return;
    }
    if (mayCloseFiles(map_)) {
        openPaths({std::string(path)}, true);
    }
}

void FileCommands::stepInFolder(int step) {
    const File* const current = map_.files().currentFile();
    if (current == nullptr) {
        return;
    }
    const std::string path = current->File_diskPath();
    const std::string folder = folderOf(path);
    const std::vector<std::string> files = filesBehind(folder.empty() ? "." : folder);
    const auto found = std::find_if(files.begin(), files.end(), [&path](const std::string& file) {
        return fileNamePart(file) == fileNamePart(path);
    });
    if (found == files.end() || !mayCloseFiles(map_)) {
        return;
    }
    // One that is refused must not bar the way to those behind it.
    const auto count = static_cast<std::ptrdiff_t>(files.size());
    std::ptrdiff_t next = found - files.begin() + step;
    while (next >= 0 && next < count && !openPaths({files[static_cast<std::size_t>(next)]}, true)) {
        next += step;
    }
}

void FileCommands::reload() {
    if (!map_.files().empty()) {
        map_.reload();
        display_.showChange();
    }
}

bool FileCommands::canSaveAs() const {
    return !map_.history().lastTrackFile.empty();
}

void FileCommands::saveAs() {
    const Texts& texts = map_.desk().texts;
    const std::string folder =
        !saveFolder_.empty() && isFolder(saveFolder_) ? saveFolder_ : map_.programFolder();
    const std::string chosen =
        map_.desk()
            .dialogs
            .saveFile({std::string(texts(TextId::SaveAsTitle)), folder, "", {trackFilter(texts)}})
            .path;
    if (chosen.empty()) {
        return;
    }
    const std::string path =
        pathEnding(chosen) == kTrackEnding ? chosen : std::string(chosen).append(kTrackEnding);
    saveFolder_ = folderOf(path);
    const CompanionNames source = companionNames(map_.history().lastTrackFile);
    const CompanionNames target = companionNames(path);
    display_.setTitle(false);
    const std::string summary = findIgnoringCase(source.summaryPath);
    const bool hasSummary = isThere(summary);
    FilesInUse inUse = map_.filesInUse();
    addOpened(inUse, source.trackPath);
    const std::string targets[] = {target.trackPath, target.summaryPath};
    if (const auto refused = inUse.whyNotTarget(std::span(targets, hasSummary ? 2 : 1))) {
        map_.desk().tellError(*refused);
        return;
    }
    // The save dialog has asked about the name that was chosen; nobody has about the others.
    if ((path != chosen && !overwriteAgreed(map_.desk(), target.trackPath)) ||
        (hasSummary && !overwriteAgreed(map_.desk(), target.summaryPath))) {
        return;
    }
    std::vector<FileDraft> files;
    std::optional<Failure> failure = addCopy(files, source.trackPath, target.trackPath);
    if (!failure && hasSummary) {
        failure = addCopy(files, summary, target.summaryPath);
    }
    if (!failure) {
        failure = finishTogether(files);
    }
    if (failure) {
        map_.desk().tellError(*failure);
    }
}

}  // namespace campora
