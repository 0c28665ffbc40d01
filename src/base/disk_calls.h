// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <string>
#include <string_view>
#include <system_error>
#include <utility>

namespace campora {

/// The calls of the system that writing safely needs. A call that a signal interrupts is made
/// again; an empty error means that it was done.

/// An open file or folder, closed with the object and never handed to programs that are started.
class Descriptor {
public:
    Descriptor() = default;
    explicit Descriptor(int number) : number_(number) {}
    Descriptor(Descriptor&& other) noexcept : number_(std::exchange(other.number_, -1)) {}
    Descriptor& operator=(Descriptor&& other) noexcept {
        std::swap(number_, other.number_);
        return *this;
    }
    ~Descriptor();

    [[nodiscard]] explicit operator bool() const { return number_ >= 0; }
    [[nodiscard]] int number() const { return number_; }

private:
    int number_ = -1;
};

/// A new file to be read and written; errno is EEXIST where the name is taken.
[[nodiscard]] Descriptor createFile(const std::filesystem::path& path);
/// A file that has no name yet, which vanishes when nothing names it; none where the folder's disk
/// knows no such files.
[[nodiscard]] Descriptor createUnnamed(const std::filesystem::path& folder);
/// An ordinary file, not through a link and without waiting.
[[nodiscard]] Descriptor openToLook(const std::filesystem::path& path);
/// A folder, or on systems where that cannot be locked a file in it that vanishes when closed.
[[nodiscard]] Descriptor openFolder(const std::filesystem::path& folder);

/// `Unknown`: this disk knows no locks, or the file cannot be locked.
enum class LockState { Taken, Busy, Unknown };
/// Without waiting. Locks end with the program that holds them, however it ends.
[[nodiscard]] LockState tryLock(const Descriptor& file);
/// Deletes a file unless a running program has locked it, or that cannot be told.
void removeUnlocked(const std::filesystem::path& path);

[[nodiscard]] std::error_code writeAt(const Descriptor& file, std::uint64_t offset,
                                      std::string_view bytes);
/// As many bytes as there are at `offset`, at most `bytes`; answered in `text`.
[[nodiscard]] std::error_code readAt(const Descriptor& file, std::uint64_t offset,
                                     std::size_t bytes, std::string& text);
/// What was written, or the names in a folder, outlast a power cut.
[[nodiscard]] std::error_code flush(const Descriptor& file);
/// Owner, group and permissions of `like`, as far as this user may give them.
void dress(const Descriptor& file, const std::filesystem::path& like);
/// Whether whoever made the file might move all others in the folder too.
[[nodiscard]] bool speaksFor(const Descriptor& file, const std::filesystem::path& folder);
/// As many files may be open at once as the system lets this user have: those of a set all are
/// until it is complete. To be called at the start of a program.
void allowManyFiles();
/// Whether a name leads to the file.
[[nodiscard]] bool hasName(const Descriptor& file);

/// Names an unnamed file. Fails where the name is taken.
[[nodiscard]] std::error_code giveName(const Descriptor& file, const std::filesystem::path& path);
/// A second name for a file. Fails where the name is taken.
[[nodiscard]] std::error_code addName(const std::filesystem::path& file,
                                      const std::filesystem::path& path);
/// Fails where the name is taken.
[[nodiscard]] std::error_code moveToFree(const std::filesystem::path& from,
                                         const std::filesystem::path& to);
/// What stood at `to` is replaced in one step.
[[nodiscard]] std::error_code moveOver(const std::filesystem::path& from,
                                       const std::filesystem::path& to);
/// No error where there is no such name.
[[nodiscard]] std::error_code removeName(const std::filesystem::path& path);

}  // namespace campora
