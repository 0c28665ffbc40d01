// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <system_error>
#include <utility>

#include "base/disk_calls.h"

namespace campora {

/// A file of this program's own in a folder, deleted with the object. Without a name as long as it
/// needs none, where the system can do that: then nothing is left even when the program is killed.
/// A lock tells others that it is in use.
class OwnFile {
public:
    OwnFile() = default;
    OwnFile(OwnFile&& other) noexcept { *this = std::move(other); }
    OwnFile& operator=(OwnFile&& other) noexcept;
    ~OwnFile();

    [[nodiscard]] std::error_code create(const std::filesystem::path& folder);
    [[nodiscard]] const Descriptor& descriptor() const { return file_; }
    /// Empty as long as it has none.
    [[nodiscard]] const std::filesystem::path& path() const { return path_; }

    /// Gives it a fresh name in its folder; done where it has one.
    [[nodiscard]] std::error_code takeName();
    /// Gives it a name of another's choice and hands it over: it stays. Fails where that is taken.
    [[nodiscard]] std::error_code becomeNew(const std::filesystem::path& target);
    /// The same, and what stands there is replaced.
    [[nodiscard]] std::error_code replace(const std::filesystem::path& target);
    /// It stays, or is gone already.
    void release() { path_.clear(); }

private:
    [[nodiscard]] std::error_code createNamed();

    std::filesystem::path folder_;
    std::filesystem::path path_;
    Descriptor file_;
};

/// Held while files of a folder take their names, and ends with the program. Two programs that
/// write one set do so one after the other.
class FolderLock {
public:
    /// Waits for others as long as `seconds`.
    FolderLock(const std::filesystem::path& folder, int seconds);

    /// Not, when others keep it. A folder that cannot be locked is written without a lock.
    [[nodiscard]] bool isHeld() const { return state_ != LockState::Busy; }
    /// The folder's names outlast a power cut.
    [[nodiscard]] std::error_code flush() const;

private:
    Descriptor folder_;
    LockState state_ = LockState::Unknown;
};

}  // namespace campora
