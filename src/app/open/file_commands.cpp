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
#include "app/session.h"
#include "app/settings.h"
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

FileCommands::FileCommands(Session& session)
    : session_(session), recent_(session.platform().settings) {}

void FileCommands::fileOpen() {
    const Platform& platform = session_.platform();
    OpenRequest request{std::string(session_.texts()(TextId::Open)),
                        startFolder(session_, SettingId::OpenPath), openFilters(session_.texts())};
    request.several = true;
    request.preview = [this](const std::vector<std::string>& selected) { preview(selected); };
    const std::vector<std::string> paths = platform.dialogs.openFiles(request);
    if (previewing_) {
        previewing_ = false;
        platform.window.setToolText({});
        session_.plotPreview(false, false);
    }
    if (!paths.empty() && session_.mayCloseFiles()) {
        writeText(platform.settings, SettingId::OpenPath, folderOf(paths.front()));
        openPaths(paths, true);
    }
}

void FileCommands::preview(const std::vector<std::string>& selected) {
    if (!previewing_) {
        previewing_ = true;
        session_.plotPreview(true, false);
    }
    QuietDialogs quiet;
    std::vector<std::string> files;
    for (const std::string& path : selected) {
        if (!isFolder(path)) {  // to open one means to go into it
            const std::vector<std::string> behind = filesOf(path, quiet).files;
            files.insert(files.end(), behind.begin(), behind.end());
        }
    }
    session_.showQuietly(files);
    showShapeKind(selected);
}

void FileCommands::showShapeKind(const std::vector<std::string>& selected) {
    const std::optional<TextId> kind =
        selected.size() == 1 ? readShapeKind(selected.front()) : std::nullopt;
    session_.platform().window.setToolText(kind ? session_.texts()(*kind) : "");
}

FileCommands::Behind FileCommands::filesOf(const std::string& path, Dialogs& dialogs) const {
    const Texts& texts = session_.texts();
    if (auto project = filesOfProject(path, session_.programFolder(), dialogs, texts)) {
        return {std::move(project->paths), true};
    }
    std::vector<std::string> files = filesBehind(path);
    if (files.empty()) {
        dialogs.message(std::string(texts(TextId::FolderWithoutFiles)) + path,
                        MessageIcon::Exclamation, texts(TextId::ProgramName));
    }
    return {std::move(files), false};
}

bool FileCommands::openPaths(const std::vector<std::string>& paths, bool resetFirst) {
    const Platform& platform = session_.platform();
    std::vector<std::string> files;
    std::vector<std::string> projects;
    for (const std::string& path : paths) {
        const Behind behind = filesOf(path, platform.dialogs);
        files.insert(files.end(), behind.files.begin(), behind.files.end());
        if (behind.isProject) {
            projects.push_back(path);
        }
    }
    const std::vector<std::string> taken = session_.loadFiles(files, resetFirst);
    for (const std::string& path : projects) {
        session_.addSource(path);
    }
    // A project stands for its files in the list of recent ones.
    for (const std::string& path : projects.empty() ? taken : projects) {
        recent_.add(path);
    }
    platform.window.commandsChanged();
    return !taken.empty();
}

void FileCommands::openRecent(std::string_view path) {
    if (!isThere(path)) {
        const Texts& texts = session_.texts();
        session_.platform().dialogs.message(
            std::string(texts(TextId::ListedFileMissing)).append(path), MessageIcon::Exclamation,
            texts(TextId::ProgramName));
        recent_.remove(path);
        session_.platform().window.commandsChanged();
        return;
    }
    if (session_.mayCloseFiles()) {
        openPaths({std::string(path)}, true);
    }
}

void FileCommands::stepInFolder(int step) {
    const File* const current = session_.files().currentFile();
    if (current == nullptr) {
        return;
    }
    const std::string path = current->File_diskPath();
    const std::string folder = folderOf(path);
    const std::vector<std::string> files = filesBehind(folder.empty() ? "." : folder);
    const auto found = std::find_if(files.begin(), files.end(), [&path](const std::string& file) {
        return fileNamePart(file) == fileNamePart(path);
    });
    if (found == files.end() || !session_.mayCloseFiles()) {
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
    session_.reloadFiles();
}

bool FileCommands::canSaveAs() const {
    return !session_.lastTrackFile().empty();
}

void FileCommands::saveAs() {
    const Platform& platform = session_.platform();
    const Texts& texts = session_.texts();
    const std::string folder =
        !saveFolder_.empty() && isFolder(saveFolder_) ? saveFolder_ : session_.programFolder();
    const std::string chosen =
        platform.dialogs
            .saveFile({std::string(texts(TextId::SaveAsTitle)), folder, "", {trackFilter(texts)}})
            .path;
    if (chosen.empty()) {
        return;
    }
    const std::string path =
        pathEnding(chosen) == kTrackEnding ? chosen : std::string(chosen).append(kTrackEnding);
    saveFolder_ = folderOf(path);
    const CompanionNames source = companionNames(session_.lastTrackFile());
    const CompanionNames target = companionNames(path);
    session_.setTitle(false);
    const std::string summary = findIgnoringCase(source.summaryPath);
    const bool hasSummary = isThere(summary);
    FilesInUse inUse = session_.filesInUse();
    addOpened(inUse, source.trackPath);
    const std::string targets[] = {target.trackPath, target.summaryPath};
    if (const auto refused = inUse.whyNotTarget(std::span(targets, hasSummary ? 2 : 1))) {
        platform.dialogs.message(texts.sentence(*refused), MessageIcon::Error,
                                 texts(TextId::Error));
        return;
    }
    // The save dialog has asked about the name that was chosen; nobody has about the others.
    if ((path != chosen && !overwriteAgreed(session_, target.trackPath)) ||
        (hasSummary && !overwriteAgreed(session_, target.summaryPath))) {
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
        platform.dialogs.message(texts.sentence(*failure), MessageIcon::Error,
                                 texts(TextId::Error));
    }
}

}  // namespace campora
