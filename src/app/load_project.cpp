// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/load_project.h"

#include <algorithm>
#include <filesystem>
#include <iterator>
#include <set>
#include <system_error>
#include <utility>

#include "app/file_loading.h"
#include "app/project_file.h"
#include "app/session.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr int kMostFilesNamed = 20;

bool isFile(const std::string& path) {
    std::error_code error;
    const fs::file_status status = fs::status(nativePath(path), error);
    return fs::exists(status) && !fs::is_directory(status);
}

/// The file that an entry names. Where full paths begin with a separator too, one that is not in
/// the program's folder is looked for under its full path; `entry` itself when neither is there.
std::string fileOf(const std::string& entry, const std::string& relative) {
    std::string file = findIgnoringCase(entry);
    if (!isFile(file) && entry.starts_with(relative)) {
        std::string full = findIgnoringCase(entry.substr(relative.size()));
        if (isFile(full)) {
            return full;
        }
    }
    return file;
}

std::optional<std::vector<std::string>> entriesOf(std::string_view path,
                                                  std::string_view programFolder) {
    const Result<FileBytes> file = readFile(path);
    return file ? decodeProject(file->text(), programFolder) : std::nullopt;
}

/// Says which listed files are missing, without burying the user in boxes.
class MissingFiles {
public:
    MissingFiles(Dialogs& dialogs, const Texts& texts) : dialogs_(dialogs), texts_(texts) {}

    void add(std::string_view path) {
        if (++count_ <= kMostFilesNamed) {
            say(std::string(texts_(TextId::ListedFileMissing)).append(path));
        }
    }
    void tellTheRest() const {
        if (count_ > kMostFilesNamed) {
            say(texts_.format(TextId::MoreListedFilesMissing,
                              {numberText(count_ - kMostFilesNamed)}));
        }
    }

private:
    void say(std::string_view text) const {
        dialogs_.message(text, MessageIcon::Exclamation, texts_(TextId::ProgramName));
    }

    Dialogs& dialogs_;
    const Texts& texts_;
    int count_ = 0;
};

/// Projects by the files that they are, however their paths are written.
class OpenedProjects {
public:
    /// False for one that has been opened before.
    bool open(const std::string& path) {
        std::error_code error;
        const fs::path file = fs::canonical(nativePath(path), error);
        return opened_.insert(error ? nativePath(path) : file).second;
    }

private:
    std::set<fs::path> opened_;
};

}  // namespace

std::optional<ProjectFiles> filesOfProject(std::string_view path, std::string_view programFolder,
                                           Dialogs& dialogs, const Texts& texts) {
    const std::string project = findIgnoringCase(path);
    std::optional<std::vector<std::string>> entries = entriesOf(project, programFolder);
    if (!entries) {
        return std::nullopt;
    }
    OpenedProjects opened;
    opened.open(project);
    MissingFiles missing(dialogs, texts);
    ProjectFiles files;
    const std::string relative = beforeRelative(programFolder);
    // What is still to be looked at, the next one last.
    std::vector<std::string> waiting(entries->rbegin(), entries->rend());
    while (!waiting.empty()) {
        std::string entry = fileOf(waiting.back(), relative);
        waiting.pop_back();
        if (!isFile(entry)) {
            missing.add(entry);
            files.complete = false;
        } else if (!isProject(entry)) {
            const bool taken = formatOf(entry) != nullptr;
            files.complete = files.complete && taken;
            if (taken) {
                files.paths.push_back(std::move(entry));
            }
        } else if (opened.open(entry)) {
            entries = entriesOf(entry, programFolder);
            if (entries) {
                std::move(entries->rbegin(), entries->rend(), std::back_inserter(waiting));
            }
        }
    }
    missing.tellTheRest();
    if (files.paths.empty()) {
        files.complete = false;
        dialogs.message(texts.format(TextId::ProjectWithoutFiles, {project}),
                        MessageIcon::Exclamation, texts(TextId::ProgramName));
    }
    return files;
}

bool loadProject(Session& session, std::string_view path) {
    const std::optional<ProjectFiles> files =
        filesOfProject(path, session.programFolder(), session.platform().dialogs, session.texts());
    if (!files) {
        return false;
    }
    session.loadFiles(files->paths, false);
    return true;
}

}  // namespace campora
