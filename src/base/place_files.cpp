// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/place_files.h"

#include <map>
#include <system_error>
#include <utility>
#include <vector>

#include "base/disk_calls.h"
#include "base/file_access.h"
#include "base/fresh_name.h"
#include "base/paths.h"
#include "base/set_journal.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr TextId kWhat = TextId::FileCannotBeWritten;

std::optional<Failure> failureOf(const FilePlacement& file, const std::error_code& error) {
    return error ? std::optional(fileFailure(kWhat, file.shownPath, error)) : std::nullopt;
}

/// The folder is ours for the moment, and nothing in it is half done.
std::optional<Failure> takeFolder(const FolderLock& lock, const FilePlacement& first) {
    std::optional<Failure> reason = Failure{TextId::FolderBusy, {}};
    if (lock.isHeld()) {
        reason = undoUnfinishedSet(first.target.parent_path());
    }
    return reason ? std::optional(because(kWhat, {first.shownPath}, std::move(*reason)))
                  : std::nullopt;
}

/// Whether something stands at the target; a folder is an error.
bool isReplaced(const FilePlacement& file, std::error_code& error) {
    const fs::file_status status = fs::status(file.target, error);
    if (status.type() == fs::file_type::not_found) {
        error.clear();
    }
    if (fs::is_directory(status)) {
        error = std::make_error_code(std::errc::is_a_directory);
    }
    return fs::exists(status);
}

std::optional<Failure> placeOne(const FilePlacement& file) {
    const FolderLock lock(file.target.parent_path(), kFolderPatience);
    if (std::optional<Failure> failure = takeFolder(lock, file)) {
        return failure;
    }
    std::error_code error;
    const bool replaces = isReplaced(file, error);
    if (!error && !replaces) {
        error = file.file->becomeNew(file.target);
    }
    if (error == std::errc::file_exists || (replaces && !error)) {
        error = file.file->takeName();
        if (!error) {
            dress(file.file->descriptor(), file.target);
            error = file.file->replace(file.target);
        }
    }
    return failureOf(file, error ? error : lock.flush());
}

/// The files of a set that go into one folder, nearly always all of them.
class FolderSet {
public:
    explicit FolderSet(fs::path folder) : folder_(std::move(folder)) {}

    void add(const FilePlacement& file) { files_.push_back(file); }

    /// All files have names, and the journal tells what is going to happen to them.
    [[nodiscard]] std::optional<Failure> prepare() {
        lock_.emplace(folder_, kFolderPatience);
        if (std::optional<Failure> failure = takeFolder(*lock_, files_.front())) {
            return failure;
        }
        for (const FilePlacement& file : files_) {
            if (const std::error_code error = addMember(file)) {
                return failureOf(file, error);
            }
        }
        const std::error_code error = writeJournal(folder_, members_, journal_);
        isUnderWay_ = !error;
        if (error == std::errc::file_exists) {
            return because(kWhat, {files_.front().shownPath}, {TextId::FolderBusy, {}});
        }
        return failureOf(files_.front(), error ? error : lock_->flush());
    }

    [[nodiscard]] std::optional<Failure> place() {
        for (std::size_t i = 0; i < files_.size(); ++i) {
            if (const std::error_code error = keep(i)) {
                return failureOf(files_[i], error);
            }
        }
        if (const std::error_code error = lock_->flush()) {
            return failureOf(files_.front(), error);
        }
        for (const FilePlacement& file : files_) {
            const std::error_code error =
                file.file != nullptr ? file.file->replace(file.target) : std::error_code{};
            if (error) {
                return failureOf(file, error);
            }
        }
        return failureOf(files_.front(), lock_->flush());
    }

    /// From here on the new files stand.
    [[nodiscard]] std::optional<Failure> conclude() {
        if (const std::error_code error = removeJournal(folder_)) {
            return failureOf(files_.front(), error);
        }
        isUnderWay_ = false;
        const std::error_code error = lock_->flush();
        for (const SetMember& member : members_) {
            if (!member.kept.empty() && removeName(folder_ / member.kept)) {
                static_cast<void>(removeName(folder_ / member.kept));
            }
        }
        return failureOf(files_.front(), error);
    }

    /// As before; else why that can only be done later.
    [[nodiscard]] std::optional<Failure> undo() {
        if (!isUnderWay_) {
            return std::nullopt;
        }
        constexpr int kTries = 2;
        std::error_code error;
        for (int i = 0; i < kTries && isUnderWay_; ++i) {
            error = rollBack(folder_, members_);
            if (!error) {
                error = removeJournal(folder_);
            }
            isUnderWay_ = static_cast<bool>(error);
        }
        // What the journal tells of is for those who read it.
        for (const FilePlacement& file : files_) {
            if (file.file != nullptr) {
                file.file->release();
            }
        }
        return error ? std::optional(because(TextId::UnfinishedSave, {}, reasonOf(error)))
                     : std::nullopt;
    }

private:
    [[nodiscard]] std::error_code addMember(const FilePlacement& file) {
        std::error_code error;
        const bool replaces = isReplaced(file, error);
        SetMember member{pathText(file.target.filename()), {}, {}, {}};
        if (replaces && !error) {
            member.kept = freshName();
        }
        if (error || file.file == nullptr) {
            members_.push_back(std::move(member));
            return error;
        }
        error = file.file->takeName();
        if (replaces && !error) {
            dress(file.file->descriptor(), file.target);
        }
        const std::optional<FileMark> mark =
            error ? std::nullopt : markOf(file.file->path(), error);
        if (!error) {
            member.draft = pathText(file.file->path().filename());
            member.mark = mark.value_or(FileMark{});
            members_.push_back(std::move(member));
        }
        return error;
    }

    /// The earlier file gets a second name, so that there is no moment without it; where the disk
    /// knows no second names it makes room.
    [[nodiscard]] std::error_code keep(std::size_t index) {
        const std::string& name = members_[index].kept;
        if (name.empty()) {
            return {};
        }
        const fs::path kept = folder_ / name;
        const bool makesRoom = files_[index].file == nullptr || addName(files_[index].target, kept);
        return makesRoom ? moveToFree(files_[index].target, kept) : std::error_code{};
    }

    fs::path folder_;
    std::optional<FolderLock> lock_;
    std::vector<FilePlacement> files_;
    std::vector<SetMember> members_;
    OwnFile journal_;
    bool isUnderWay_ = false;
};

/// The first failure of the folders in turn.
template <typename Step>
std::optional<Failure> forEach(std::map<fs::path, FolderSet>& folders, Step step) {
    for (auto& [path, folder] : folders) {
        if (std::optional<Failure> failure = step(folder)) {
            return failure;
        }
    }
    return std::nullopt;
}

}  // namespace

std::optional<Failure> placeTogether(std::span<const FilePlacement> files) {
    if (files.size() == 1) {
        return placeOne(files.front());
    }
    std::map<fs::path, FolderSet> folders;  // in the same order for all who take their locks
    for (const FilePlacement& file : files) {
        const fs::path folder = file.target.parent_path();
        folders.try_emplace(folder, folder).first->second.add(file);
    }
    std::optional<Failure> failure = forEach(folders, [](auto& set) { return set.prepare(); });
    if (!failure) {
        failure = forEach(folders, [](auto& set) { return set.place(); });
    }
    if (!failure) {
        failure = forEach(folders, [](auto& set) { return set.conclude(); });
    }
    if (failure) {
        for (auto& [path, folder] : folders) {
            if (const std::optional<Failure> reason = folder.undo()) {
                failure = because(kWhat, {files.front().shownPath}, *reason);
            }
        }
    }
    return failure;
}

}  // namespace campora
