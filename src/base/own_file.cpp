// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/own_file.h"

#include <algorithm>
#include <cerrno>
#include <chrono>
#include <cstddef>
#include <string>
#include <thread>
#include <utility>

#include "base/file_access.h"
#include "base/fresh_name.h"

namespace campora {

namespace fs = std::filesystem;

namespace {

constexpr int kTries = 100;

/// What another file holds, where a file without a name could not be given one.
std::error_code copyContent(const Descriptor& from, const Descriptor& to) {
    constexpr std::size_t kAtOnce = std::size_t{1} << 20U;
    std::string part;
    std::uint64_t offset = 0;
    do {
        std::error_code error = readAt(from, offset, kAtOnce, part);
        if (!error) {
            error = writeAt(to, offset, part);
        }
        if (error) {
            return error;
        }
        offset += part.size();
    } while (part.size() == kAtOnce);
    return flush(to);
}

/// Whether another way may do where `error` has come of giving a file its first name.
bool isUnableToName(const std::error_code& error) {
    return error && error != std::errc::no_space_on_device && error != std::errc::io_error &&
           error != std::errc::file_exists;
}

}  // namespace

OwnFile& OwnFile::operator=(OwnFile&& other) noexcept {
    std::swap(folder_, other.folder_);
    std::swap(path_, other.path_);
    std::swap(file_, other.file_);
    return *this;
}

OwnFile::~OwnFile() {
    if (path_.empty()) {
        return;
    }
#ifdef _WIN32
    file_ = Descriptor();
#endif
    if (removeName(path_)) {
        static_cast<void>(removeName(path_));
    }
}

std::error_code OwnFile::create(const fs::path& folder) {
    folder_ = folder;
    file_ = createUnnamed(folder_);
    return file_ ? std::error_code{} : createNamed();
}

std::error_code OwnFile::createNamed() {
    for (int i = 0; i < kTries; ++i) {
        path_ = folder_ / freshName();
        file_ = createFile(path_);
        if (!file_) {
            const std::error_code error = lastError();
            path_.clear();
            if (error != std::errc::file_exists) {
                return error;
            }
        } else if (tryLock(file_) != LockState::Busy && hasName(file_)) {
            return {};
        }
        // Another program has taken it for one that was left behind.
    }
    path_.clear();
    return std::make_error_code(std::errc::device_or_resource_busy);
}

std::error_code OwnFile::takeName() {
    if (!path_.empty()) {
        return {};
    }
    static_cast<void>(tryLock(file_));
    fs::path path = folder_ / freshName();
    const std::error_code error = giveName(file_, path);
    if (!error) {
        path_ = std::move(path);
        return {};
    }
    if (!isUnableToName(error)) {
        return error;
    }
    OwnFile named;
    named.folder_ = folder_;
    const std::error_code failed = named.createNamed();
    const std::error_code copied = failed ? failed : copyContent(file_, named.file_);
    if (!copied) {
        std::swap(*this, named);
    }
    return copied;
}

std::error_code OwnFile::becomeNew(const fs::path& target) {
    if (path_.empty()) {
        const std::error_code error = giveName(file_, target);
        if (!isUnableToName(error)) {
            return error;
        }
    }
    if (const std::error_code error = takeName()) {
        return error;
    }
#ifdef _WIN32
    file_ = Descriptor();
#endif
    const std::error_code error = moveToFree(path_, target);
    if (!error) {
        release();
    }
    return error;
}

std::error_code OwnFile::replace(const fs::path& target) {
    if (const std::error_code error = takeName()) {
        return error;
    }
#ifdef _WIN32
    file_ = Descriptor();
#endif
    const std::error_code error = moveOver(path_, target);
    if (!error) {
        release();
    }
    return error;
}

FolderLock::FolderLock(const fs::path& folder, int seconds) : folder_(openFolder(folder)) {
    using Clock = std::chrono::steady_clock;
    constexpr std::chrono::milliseconds kPause{2};
    if (!folder_ && (errno == EMFILE || errno == ENFILE)) {
        state_ = LockState::Busy;  // it knows locks, but there is no room for one more file
        return;
    }
    const Clock::time_point end = Clock::now() + std::chrono::seconds(seconds);
    while ((state_ = tryLock(folder_)) == LockState::Busy && Clock::now() < end) {
        std::this_thread::sleep_for(kPause);
#ifdef _WIN32
        folder_ = openFolder(folder);
#endif
    }
}

std::error_code FolderLock::flush() const {
    return folder_ ? campora::flush(folder_) : std::error_code{};
}

}  // namespace campora
