// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_draft.h"

#include <cerrno>
#include <cstddef>
#include <cstdio>
#include <filesystem>
#include <string>
#include <system_error>
#include <utility>
#include <vector>

#include "base/file_access.h"
#include "base/numbers.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr std::size_t kBuffer = std::size_t{1} << 16U;
constexpr TextId kWhat = TextId::FileCannotBeWritten;

/// The file itself where `path` is a link to it, so that the link stays one.
fs::path linkedFile(const fs::path& path) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) {
        return path;
    }
    const fs::path linked = fs::canonical(path, error);
    return error ? path : linked;
}

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
    fs::path target = linkedFile(*file);
    std::error_code error;
    if (target.has_parent_path() && !fs::is_directory(target.parent_path(), error)) {
        return error && error != std::errc::no_such_file_or_directory
                   ? fileFailure(kWhat, path, error)
                   : fileFailure(kWhat, path, TextId::FolderNotFound);
    }
    if (const std::error_code protection = writeProtection(target)) {
        return fileFailure(kWhat, path, protection);
    }
    return target;
}

/// A file of our own in a folder.
struct OwnFile {
    fs::path path;
    FileStream stream;
};

/// A new file whose name nothing in the folder has; without a stream and with errno set when there
/// cannot be one.
OwnFile newFileBeside(const fs::path& target) {
    constexpr int kMostNames = 1000;
    OwnFile file;
    for (int number = 0; number < kMostNames; ++number) {
        file.path = target.parent_path() / (".campora-" + numberText(number) + ".tmp");
        file.stream = openStream(file.path, FileMode::CreateNew);
        if (file.stream || errno != EEXIST) {
            break;
        }
    }
    return file;
}

void removeQuietly(const fs::path& path) {
    std::error_code ignored;
    fs::remove(path, ignored);
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
        OwnFile file = newFileBeside(target_);
        stream_ = std::move(file.stream);
        if (stream_) {
            std::setvbuf(stream_.get(), nullptr, _IOFBF, kBuffer);
            draft_ = std::move(file.path);
        } else if (const std::error_code error = lastError();
                   error == std::errc::no_such_file_or_directory) {
            // The folder is there, and takes no new files; what is missing is not the target.
            failure_ = fileFailure(kWhat, path, TextId::FileNoPermission);
        } else {
            fail(error);
        }
    }
    Content(const Content&) = delete;
    Content& operator=(const Content&) = delete;
    ~Content() {
        stream_.reset();
        if (!draft_.empty()) {
            removeQuietly(draft_);
        }
    }

    [[nodiscard]] std::uint64_t size() const { return size_; }
    [[nodiscard]] const std::optional<Failure>& failure() const { return failure_; }

    void write(std::string_view bytes) {
        put(bytes);
        size_ += bytes.size();
    }

    void overwrite(std::uint64_t offset, std::string_view bytes) {
        if (seek(offset)) {
            put(bytes);
        }
        seek(size_);
    }

    /// Everything stands on the disk.
    void close() {
        errno = 0;
        if (!failure_ && std::fflush(stream_.get()) != 0) {
            fail(lastError());
        }
        if (!failure_ && std::fclose(stream_.release()) != 0) {
            fail(lastError());
        }
    }

    /// Takes the target's place; an earlier file is kept until `forget` when `keep`.
    void takePlace(bool keep) {
        std::error_code error;
        const fs::file_status old = fs::status(target_, error);
        if (fs::is_directory(old)) {
            fail(std::make_error_code(std::errc::is_a_directory));
            return;
        }
        if (fs::exists(old)) {
            fs::permissions(draft_, old.permissions(), error);
            if (keep) {
                keepEarlier();
            }
        }
        if (failure_) {
            return;
        }
        fs::rename(draft_, target_, error);
        if (error) {
            fail(error);
            giveBack();
            return;
        }
        draft_.clear();
        placed_ = true;
    }

    /// As before `takePlace(true)`.
    void giveBack() {
        if (placed_ && earlier_.empty()) {
            removeQuietly(target_);
        }
        if (!earlier_.empty()) {
            std::error_code ignored;
            fs::rename(earlier_, target_, ignored);
            earlier_.clear();
        }
        placed_ = false;
    }

    void forget() {
        if (!earlier_.empty()) {
            removeQuietly(earlier_);
            earlier_.clear();
        }
    }

private:
    void fail(const std::error_code& error) { failure_ = fileFailure(kWhat, shownPath_, error); }

    void put(std::string_view bytes) {
        errno = 0;
        if (!failure_ &&
            std::fwrite(bytes.data(), 1, bytes.size(), stream_.get()) != bytes.size()) {
            fail(lastError());
        }
    }

    bool seek(std::uint64_t offset) {
        if (failure_) {
            return false;
        }
        errno = 0;
#ifdef _WIN32
        const int result = _fseeki64(stream_.get(), static_cast<long long>(offset), SEEK_SET);
#else
        const int result = fseeko(stream_.get(), static_cast<off_t>(offset), SEEK_SET);
#endif
        if (result != 0) {
            fail(lastError());
        }
        return result == 0;
    }

    void keepEarlier() {
        OwnFile kept = newFileBeside(target_);
        if (!kept.stream) {
            fail(lastError());
            return;
        }
        kept.stream.reset();
        removeQuietly(kept.path);
        std::error_code error;
        // A second name leaves no moment without the file; not every disk knows second names.
        fs::create_hard_link(target_, kept.path, error);
        if (error) {
            fs::rename(target_, kept.path, error);
        }
        if (error) {
            fail(error);
            return;
        }
        earlier_ = std::move(kept.path);
    }

    std::string shownPath_;
    fs::path target_;
    fs::path draft_;
    fs::path earlier_;
    FileStream stream_;
    std::uint64_t size_ = 0;
    bool placed_ = false;
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
    content_->close();
    if (!content_->failure()) {
        content_->takePlace(false);
    }
    return content_->failure();
}

std::optional<Failure> finishTogether(std::span<FileDraft> drafts) {
    for (FileDraft& draft : drafts) {
        draft.content_->close();
        if (const auto& failure = draft.content_->failure()) {
            return failure;
        }
    }
    for (FileDraft& draft : drafts) {
        draft.content_->takePlace(true);
        if (std::optional<Failure> failure = draft.content_->failure()) {
            for (FileDraft& other : drafts) {
                other.content_->giveBack();
            }
            return failure;
        }
    }
    for (FileDraft& draft : drafts) {
        draft.content_->forget();
    }
    return std::nullopt;
}

}  // namespace campora
