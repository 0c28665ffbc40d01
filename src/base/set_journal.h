// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <filesystem>
#include <optional>
#include <span>
#include <string>
#include <system_error>

#include "base/failure.h"
#include "base/own_file.h"

namespace campora {

/// What tells a file from any other: its size and a sum of all its bytes.
struct FileMark {
    std::uint64_t size = 0;
    std::uint64_t sum = 0;

    bool operator==(const FileMark&) const = default;
};

/// None for what is no ordinary file.
[[nodiscard]] std::optional<FileMark> markOf(const std::filesystem::path& file,
                                             std::error_code& error);

/// One file of a set, as names in the set's folder.
struct SetMember {
    std::string target;
    /// The new file until it takes its place; empty where the target is only to go.
    std::string draft;
    /// The earlier file from when it is to make room; empty where there was none.
    std::string kept;
    FileMark mark;  // of the new file
};

/// Writes down, to outlast the program and a power cut, what is going to be moved in `folder`,
/// whose lock the caller holds. `journal` stays open as long as it is under way.
[[nodiscard]] std::error_code writeJournal(const std::filesystem::path& folder,
                                           std::span<const SetMember> set, OwnFile& journal);
/// The set is complete, or as it was before.
[[nodiscard]] std::error_code removeJournal(const std::filesystem::path& folder);

/// The folder is as before the set, wherever its writer stopped; what others have put in a target's
/// place since stays. May be done again after it failed.
[[nodiscard]] std::error_code rollBack(const std::filesystem::path& folder,
                                       std::span<const SetMember> set);

/// Takes back the set that a program has left half done in a folder, whose lock the caller holds;
/// else why it cannot.
[[nodiscard]] std::optional<Failure> undoUnfinishedSet(const std::filesystem::path& folder);

/// Deletes what programs that run no more have left in a folder, unless others are at work there.
void removeLeftovers(const std::filesystem::path& folder);

/// To be called before a file is read: it is not of a half-written set any more; else why not.
[[nodiscard]] std::optional<Failure> settleSetOf(const std::filesystem::path& file);

/// How long a program waits for another that writes into the same folder, seconds.
inline constexpr int kFolderPatience = 10;

}  // namespace campora
