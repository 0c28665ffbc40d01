// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_draft.h"

#include <cstddef>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "base/file_access.h"
#include "base/own_file.h"
#include "base/paths.h"
#include "base/place_files.h"
#include "base/set_journal.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBuffer = std::size_t{1} << 16U;
constexpr TextId kWhat = TextId::FileCannotBeWritten;

/// A rename would replace a protected file without a word: whether this one may be written.
std::error_code writeProtection(const fs::path& path) {
    std::error_code ignored;
    if (!fs::exists(path, ignored) || openStream(path, FileMode::Change)) {
        return {};
    }
    return lastError();
}

/// Where a file is to be put; or why it cannot be.
Result<fs::path> placeFor(std::string_view path) {
    const Result<fs::path> file = ordinaryFile(kWhat, path);
    if (!file) {
        return file.failure();
    }
    std::error_code error;
    const fs::path target = linkedFile(*file, error);
    if (error) {
        return fileFailure(kWhat, path, error);
    }
    const fs::path parent = target.has_parent_path() ? target.parent_path() : fs::path(".");
    if (!fs::is_directory(parent, error)) {
        return error && error != std::errc::no_such_file_or_directory
                   ? fileFailure(kWhat, path, error)
                   : fileFailure(kWhat, path, TextId::FolderNotFound);
    }
    if (const std::error_code protection = writeProtection(target)) {
        return fileFailure(kWhat, path, protection);
    }
    // One spelling of a folder, whatever way leads to it.
    const fs::path folder = fs::canonical(parent, error);
    return error ? target : folder / target.filename();
}

}  // namespace

class FileDraft::Content {
public:
    explicit Content(std::string_view path) : shownPath_(path) {
        const Result<fs::path> place = placeFor(path);
        if (!place) {
            failure_ = place.failure();
            return;
        }
        target_ = *place;
        removeLeftovers(target_.parent_path());
        const std::error_code error = file_.create(target_.parent_path());
        if (error == std::errc::no_such_file_or_directory) {
            // The folder is there, and takes no new files; what is missing is not the target.
            failure_ = fileFailure(kWhat, path, TextId::FileNoPermission);
        } else {
            check(error);
        }
    }

    [[nodiscard]] std::uint64_t size() const { return written_ + waiting_.size(); }
    [[nodiscard]] const std::optional<Failure>& failure() const { return failure_; }

    void write(std::string_view bytes) {
        if (waiting_.size() + bytes.size() > kBuffer) {
            empty();
        }
        if (bytes.size() > kBuffer) {
            put(bytes);
        } else {
            waiting_ += bytes;
        }
    }

    void overwrite(std::uint64_t offset, std::string_view bytes) {
        empty();
        if (!failure_) {
            check(writeAt(file_.descriptor(), offset, bytes));
        }
    }

    /// Everything stands on the disk.
    void complete() {
        empty();
        if (!failure_) {
            check(flush(file_.descriptor()));
        }
    }

    [[nodiscard]] FilePlacement placement() { return {&file_, target_, shownPath_}; }

private:
    void check(const std::error_code& error) {
        if (error && !failure_) {
            failure_ = fileFailure(kWhat, shownPath_, error);
        }
    }

    void put(std::string_view bytes) {
        if (!failure_) {
            check(writeAt(file_.descriptor(), written_, bytes));
        }
        written_ += bytes.size();
    }

    void empty() {
        put(waiting_);
        waiting_.clear();
    }

    std::string shownPath_;
    fs::path target_;
    OwnFile file_;
    std::string waiting_;
    std::uint64_t written_ = 0;
    std::optional<Failure> failure_;
};

FileDraft::FileDraft(std::string_view target) : content_(std::make_unique<Content>(target)) {}
FileDraft::FileDraft(FileDraft&& other) noexcept = default;
FileDraft& FileDraft::operator=(FileDraft&& other) noexcept = default;
FileDraft::~FileDraft() = default;

void FileDraft::write(std::string_view bytes) {
    content_->write(bytes);
}

void FileDraft::overwrite(std::uint64_t offset, std::string_view bytes) {
    content_->overwrite(offset, bytes);
}

std::uint64_t FileDraft::size() const {
    return content_->size();
}

std::optional<Failure> FileDraft::failure() const {
    return content_->failure();
}

std::optional<Failure> FileDraft::finish() {
    return finishTogether({this, 1});
}

std::optional<Failure> finishTogether(std::span<FileDraft> drafts,
                                      std::span<const std::string> outdated) {
    std::vector<FilePlacement> files;
    for (FileDraft& draft : drafts) {
        draft.content_->complete();
        if (const auto& failure = draft.content_->failure()) {
            return failure;
        }
        files.push_back(draft.content_->placement());
    }
    for (const std::string& path : outdated) {
        const fs::path name = nativePath(fileNamePart(path));
        const fs::path file = files.front().target.parent_path() / name;
        if (isThere(pathText(file))) {
            files.push_back({nullptr, file, path});
        }
    }
    return placeTogether(files);
}

}  // namespace campora
