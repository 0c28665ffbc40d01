// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/disk_calls.h"

#ifndef _WIN32

#include <algorithm>
#include <cerrno>
#include <cstdio>
#include <string>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <unistd.h>

#include "base/file_access.h"
#include "base/numbers.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr mode_t kForAll = 0666;  // the user's mask takes away from it

/// The result of a call that answers less than 0 for an error, made again while signals interrupt.
template <typename Call>
auto again(Call call) {
    auto result = call();
    while (result < 0 && errno == EINTR) {
        result = call();
    }
    return result;
}

/// The same as an error.
template <typename Call>
std::error_code done(Call call) {
    return again(call) < 0 ? lastError() : std::error_code{};
}

Descriptor open(const fs::path& path, int flags) {
    return Descriptor(again([&] { return ::open(path.c_str(), flags | O_CLOEXEC, kForAll); }));
}

/// Another name of an open file, by which it can be linked.
std::string openName(const Descriptor& file) {
    return "/proc/self/fd/" + numberText(file.number());
}

}  // namespace

Descriptor::~Descriptor() {
    if (number_ >= 0) {
        ::close(number_);
    }
}

Descriptor createFile(const fs::path& path) {
    return open(path, O_RDWR | O_CREAT | O_EXCL);
}

Descriptor createUnnamed([[maybe_unused]] const fs::path& folder) {
#ifdef O_TMPFILE
    Descriptor file = open(folder.empty() ? fs::path(".") : folder, O_RDWR | O_TMPFILE);
    if (file && ::access(openName(file).c_str(), F_OK) == 0) {
        return file;
    }
#endif
    return {};
}

Descriptor openToLook(const fs::path& path) {
    // Disks in the network lock only what is open for writing.
    Descriptor file = open(path, O_RDWR | O_NOFOLLOW | O_NONBLOCK);
    if (!file) {
        file = open(path, O_RDONLY | O_NOFOLLOW | O_NONBLOCK);
    }
    struct stat about {};
    return file && ::fstat(file.number(), &about) == 0 && S_ISREG(about.st_mode) ? std::move(file)
                                                                                 : Descriptor();
}

Descriptor openFolder(const fs::path& folder) {
    return open(folder.empty() ? fs::path(".") : folder, O_RDONLY | O_DIRECTORY);
}

LockState tryLock(const Descriptor& file) {
    if (!file) {
        return LockState::Unknown;
    }
    if (again([&] { return ::flock(file.number(), LOCK_EX | LOCK_NB); }) == 0) {
        return LockState::Taken;
    }
    return errno == EWOULDBLOCK ? LockState::Busy : LockState::Unknown;
}

void removeUnlocked(const fs::path& path) {
    const Descriptor file = openToLook(path);
    if (tryLock(file) == LockState::Taken) {
        static_cast<void>(removeName(path));
    }
}

std::error_code writeAt(const Descriptor& file, std::uint64_t offset, std::string_view bytes) {
    while (!bytes.empty()) {
        const auto written = again([&] {
            return ::pwrite(file.number(), bytes.data(), bytes.size(), static_cast<off_t>(offset));
        });
        if (written < 0) {
            return lastError();
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
        offset += static_cast<std::uint64_t>(written);
    }
    return {};
}

std::error_code readAt(const Descriptor& file, std::uint64_t offset, std::size_t bytes,
                       std::string& text) {
    text.resize(bytes);
    std::size_t size = 0;
    while (size < bytes) {
        const auto got = again([&] {
            return ::pread(file.number(), text.data() + size, bytes - size,
                           static_cast<off_t>(offset + size));
        });
        if (got < 0) {
            return lastError();
        }
        if (got == 0) {
            break;
        }
        size += static_cast<std::size_t>(got);
    }
    text.resize(size);
    return {};
}

std::error_code flush(const Descriptor& file) {
    const std::error_code error = done([&] { return ::fsync(file.number()); });
    // Some disks cannot be asked for it, for folders above all.
    const bool isUnknown = error == std::errc::invalid_argument ||
                           error == std::errc::not_supported ||
                           error == std::errc::bad_file_descriptor;
    return isUnknown ? std::error_code{} : error;
}

void dress(const Descriptor& file, const fs::path& like) {
    struct stat about {};
    if (::stat(like.c_str(), &about) != 0) {
        return;
    }
    // The owner first: giving a file away takes permissions off it.
    if (::fchown(file.number(), about.st_uid, about.st_gid) != 0) {
        static_cast<void>(::fchown(file.number(), static_cast<uid_t>(-1), about.st_gid) == 0);
    }
    static_cast<void>(::fchmod(file.number(), about.st_mode & 07777) == 0);
}

bool speaksFor(const Descriptor& file, const fs::path& folder) {
    struct stat own {};
    struct stat about {};
    const fs::path place = folder.empty() ? fs::path(".") : folder;
    if (::fstat(file.number(), &own) != 0 || ::stat(place.c_str(), &about) != 0) {
        return false;
    }
    return (about.st_mode & S_ISVTX) == 0 || own.st_uid == ::geteuid() || own.st_uid == 0;
}

void allowManyFiles() {
    constexpr rlim_t kEnough = 65536;
    rlimit limit{};
    if (::getrlimit(RLIMIT_NOFILE, &limit) == 0 && limit.rlim_cur < kEnough) {
        limit.rlim_cur = std::min(limit.rlim_max, kEnough);
        static_cast<void>(::setrlimit(RLIMIT_NOFILE, &limit) == 0);
    }
}

bool hasName(const Descriptor& file) {
    struct stat about {};
    return ::fstat(file.number(), &about) == 0 && about.st_nlink > 0;
}

std::error_code giveName(const Descriptor& file, const fs::path& path) {
    const std::string open = openName(file);
    return done([&] {
        return ::linkat(AT_FDCWD, open.c_str(), AT_FDCWD, path.c_str(), AT_SYMLINK_FOLLOW);
    });
}

std::error_code addName(const fs::path& file, const fs::path& path) {
    return done([&] { return ::linkat(AT_FDCWD, file.c_str(), AT_FDCWD, path.c_str(), 0); });
}

std::error_code moveToFree(const fs::path& from, const fs::path& to) {
#ifdef RENAME_NOREPLACE
    const std::error_code error = done([&] {
        return ::renameat2(AT_FDCWD, from.c_str(), AT_FDCWD, to.c_str(), RENAME_NOREPLACE);
    });
    if (error != std::errc::invalid_argument && error != std::errc::function_not_supported) {
        return error;
    }
#endif
    struct stat about {};
    if (::lstat(to.c_str(), &about) == 0) {
        return std::make_error_code(std::errc::file_exists);
    }
    return moveOver(from, to);
}

std::error_code moveOver(const fs::path& from, const fs::path& to) {
    return done([&] { return ::rename(from.c_str(), to.c_str()); });
}

std::error_code removeName(const fs::path& path) {
    const std::error_code error = done([&] { return ::unlink(path.c_str()); });
    return error == std::errc::no_such_file_or_directory ? std::error_code{} : error;
}

}  // namespace campora

#endif
