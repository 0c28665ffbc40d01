// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/load_project.h"

#include <algorithm>
#include <cstddef>
#include <filesystem>
#include <iterator>
#include <map>
#include <set>
#include <system_error>
#include <utility>

#include "app/open/file_loading.h"
#include "app/open/project_file.h"
#include "base/files.h"
#include "base/folder_looks.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr int kMostFilesNamed = 20;
/// Entries between two reports of progress.
constexpr std::size_t kReportEvery = 256;

/// The computer that a path names ("server" of "\\server\share\a.rpt"); empty for one of this
/// computer.
std::string computerOf(std::string_view path) {
    constexpr std::string_view kSeparators = "\\/";
    constexpr bool kSlashesName = fs::path::preferred_separator != '/';
    const bool named = path.starts_with("\\\\") || (kSlashesName && path.starts_with("//"));
    if (!named) {
        return {};
    }
    path.remove_prefix(2);
    return lowerCase(path.substr(0, path.find_first_of(kSeparators)));
}

std::optional<std::vector<std::string>> listedPaths(std::string_view path,
                                                    std::string_view programFolder) {
    if (!isProject(path)) {
        return std::nullopt;  // known by its first bytes, however large the file
    }
    const Result<FileBytes> file = readFile(path);
    return file ? decodeProject(file->text(), programFolder) : std::nullopt;
}

/// Says which listed files are missing, without burying the user in boxes.
class MissingFiles {
public:
    explicit MissingFiles(const Desk& desk) : desk_(desk) {}

    void add(std::string_view path) {
        addWith(std::string(desk_.texts(TextId::ListedFileMissing)).append(path));
    }
    void addSilent(std::string_view path) {
        addWith(desk_.texts.sentence(because(TextId::FileCannotBeRead, {std::string(path)},
                                             {TextId::FileDoesNotAnswer, {}})));
    }
    void tellTheRest() const {
        if (count_ > kMostFilesNamed) {
            desk_.tell({TextId::MoreListedFilesMissing, {numberText(count_ - kMostFilesNamed)}});
        }
    }

private:
    void addWith(std::string_view text) {
        if (++count_ <= kMostFilesNamed) {
            desk_.tell(text);
        }
    }

    const Desk& desk_;
    int count_ = 0;
};

/// Asks before a path on another computer is touched, once for each computer: one that is switched
/// off keeps the program waiting.
class OtherComputers {
public:
    OtherComputers(std::string_view project, const Desk& desk) : project_(project), desk_(desk) {}

    [[nodiscard]] bool mayTouch(std::string_view path) {
        const std::string computer = computerOf(path);
        if (computer.empty()) {
            return true;
        }
        auto known = answers_.find(computer);
        if (known == answers_.end()) {
            const bool yes = desk_.ask(
                desk_.texts.format(TextId::AskOtherComputer, {std::string(project_), computer}),
                MessageIcon::Question);
            known = answers_.emplace(computer, Answered{yes}).first;
        }
        known->second.skipped += known->second.yes ? 0 : 1;
        return known->second.yes;
    }
    void tellSkipped() const {
        for (const auto& [computer, answered] : answers_) {
            if (answered.skipped > 0) {
                desk_.tell(
                    {TextId::OtherComputerSkipped, {computer, numberText(answered.skipped)}});
            }
        }
    }

private:
    struct Answered {
        bool yes = false;
        std::size_t skipped = 0;
    };

    std::string_view project_;
    const Desk& desk_;
    std::map<std::string, Answered> answers_;
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

/// Goes through the entries of a project and of those in it.
class ProjectWalk {
public:
    ProjectWalk(std::string_view path, std::string_view programFolder, const Desk& desk)
        : programFolder_(programFolder),
          relative_(beforeRelative(programFolder)),
          desk_(desk),
          missing_(desk),
          computers_(path, desk) {}

    [[nodiscard]] ProjectFiles walk(const std::string& project, std::vector<std::string> entries) {
        opened_.open(project);
        push(std::move(entries));
        const auto progress = desk_.dialogs.progress(desk_.texts(TextId::FindingProjectFiles));
        for (std::size_t done = 0; !waiting_.empty(); ++done) {
            const auto percent = static_cast<int>(100 * done / (done + waiting_.size()));
            if (done % kReportEvery == 0 && !progress->report(percent)) {
                return cancelled();
            }
            const std::string entry = std::move(waiting_.back());
            waiting_.pop_back();
            take(entry);
        }
        computers_.tellSkipped();
        missing_.tellTheRest();
        if (files_.paths.empty()) {
            files_.complete = false;
            desk_.tell({TextId::ProjectWithoutFiles, {project}});
        }
        return std::move(files_);
    }

private:
    void push(std::vector<std::string> entries) {
        std::move(entries.rbegin(), entries.rend(), std::back_inserter(waiting_));
    }
    /// Nothing is opened then.
    [[nodiscard]] ProjectFiles cancelled() const {
        desk_.tell({TextId::ProjectCancelled, {numberText(waiting_.size())}});
        return {{}, false};
    }
    void take(const std::string& entry) {
        const std::optional<FolderLooks::Found> found = find(entry);
        if (!found || found->path.empty()) {
            files_.complete = false;
            if (found) {
                found->answered ? missing_.add(entry) : missing_.addSilent(entry);
            }
        } else if (isProject(found->path)) {
            if (opened_.open(found->path)) {
                push(listedPaths(found->path, programFolder_).value_or(std::vector<std::string>()));
            }
        } else if (formatOf(found->path) != nullptr) {
            files_.paths.push_back(found->path);
        } else {
            files_.complete = false;
        }
    }
    /// The file that an entry names; none when the user does not want it touched. Where full paths
    /// begin with a separator too, one that is not in the program's folder is looked for under its
    /// full path.
    [[nodiscard]] std::optional<FolderLooks::Found> find(const std::string& entry) {
        if (!computers_.mayTouch(entry)) {
            return std::nullopt;
        }
        FolderLooks::Found found = looks_.find(entry);
        if (!found.path.empty() || !entry.starts_with(relative_)) {
            return found;
        }
        const std::string full = entry.substr(relative_.size());
        if (!computers_.mayTouch(full)) {
            return std::nullopt;
        }
        return looks_.find(full);
    }

    std::string_view programFolder_;
    std::string relative_;
    const Desk& desk_;
    MissingFiles missing_;
    OtherComputers computers_;
    OpenedProjects opened_;
    FolderLooks looks_;
    /// What is still to be looked at, the next one last.
    std::vector<std::string> waiting_;
    ProjectFiles files_;
};

}  // namespace

std::optional<ProjectFiles> filesOfProject(std::string_view path, std::string_view programFolder,
                                           const Desk& desk) {
    const std::string project = findIgnoringCase(path);
    std::optional<std::vector<std::string>> entries = listedPaths(project, programFolder);
    if (!entries) {
        return std::nullopt;
    }
    return ProjectWalk(path, programFolder, desk).walk(project, std::move(*entries));
}

bool loadProject(OpenMap& map, std::string_view path) {
    const std::optional<ProjectFiles> files = filesOfProject(path, map.programFolder(), map.desk());
    if (!files) {
        return false;
    }
    map.openAll(files->paths);
    return true;
}

}  // namespace campora
