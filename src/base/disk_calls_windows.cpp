// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/disk_calls.h"

#ifdef _WIN32

#include <algorithm>
#include <cerrno>
#include <string>

#include <fcntl.h>
#include <io.h>
#include <share.h>
#include <sys/stat.h>
#include <windows.h>

#include "base/file_access.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr int kOurs = _O_RDWR | _O_BINARY | _O_NOINHERIT;

Descriptor open(const fs::path& path, int flags, int sharing) {
    int number = -1;
    const errno_t error = _wsopen_s(&number, path.c_str(), flags, sharing, _S_IREAD | _S_IWRITE);
    if (error != 0) {
        errno = error;
        return {};
    }
    return Descriptor(number);
}

std::error_code done(BOOL result) {
    return result ? std::error_code{}
                  : std::error_code(static_cast<int>(GetLastError()), std::system_category());
}

std::error_code seek(const Descriptor& file, std::uint64_t offset) {
    return _lseeki64(file.number(), static_cast<long long>(offset), SEEK_SET) < 0
               ? lastError()
               : std::error_code{};
}

}  // namespace

Descriptor::~Descriptor() {
    if (number_ >= 0) {
        _close(number_);
    }
}

Descriptor createFile(const fs::path& path) {
    return open(path, kOurs | _O_CREAT | _O_EXCL, _SH_DENYWR);
}

Descriptor createUnnamed(const fs::path& /*folder*/) {
    return {};
}

Descriptor openToLook(const fs::path& path) {
    return open(path, _O_RDONLY | _O_BINARY | _O_NOINHERIT, _SH_DENYNO);
}

Descriptor openFolder(const fs::path& folder) {
    return open(folder / ".campora-lock", kOurs | _O_CREAT | _O_TEMPORARY, _SH_DENYRW);
}

LockState tryLock(const Descriptor& file) {
    return file ? LockState::Taken : errno == EACCES ? LockState::Busy : LockState::Unknown;
}

void removeUnlocked(const fs::path& path) {
    static_cast<void>(removeName(path));  // which an open file withstands
}

std::error_code writeAt(const Descriptor& file, std::uint64_t offset, std::string_view bytes) {
    if (const std::error_code error = seek(file, offset)) {
        return error;
    }
    while (!bytes.empty()) {
        constexpr std::size_t kAtOnce = std::size_t{1} << 20U;
        const auto part = static_cast<unsigned>(std::min(bytes.size(), kAtOnce));
        const int written = _write(file.number(), bytes.data(), part);
        if (written < 0) {
            return lastError();
        }
        bytes.remove_prefix(static_cast<std::size_t>(written));
    }
    return {};
}

std::error_code readAt(const Descriptor& file, std::uint64_t offset, std::size_t bytes,
                       std::string& text) {
    if (const std::error_code error = seek(file, offset)) {
        return error;
    }
    text.resize(bytes);
    const int got = _read(file.number(), text.data(), static_cast<unsigned>(bytes));
    text.resize(got < 0 ? 0 : static_cast<std::size_t>(got));
    return got < 0 ? lastError() : std::error_code{};
}

std::error_code flush(const Descriptor& file) {
    return _commit(file.number()) == 0 || errno == EBADF ? std::error_code{} : lastError();
}

void dress(const Descriptor& /*file*/, const fs::path& /*like*/) {
    // New files have the permissions of their folder.
}

bool speaksFor(const Descriptor& /*file*/, const fs::path& /*folder*/) {
    return true;
}

void allowManyFiles() {}

bool hasName(const Descriptor& /*file*/) {
    return true;
}

std::error_code giveName(const Descriptor& /*file*/, const fs::path& /*path*/) {
    return std::make_error_code(std::errc::not_supported);
}

std::error_code addName(const fs::path& file, const fs::path& path) {
    return done(CreateHardLinkW(path.c_str(), file.c_str(), nullptr));
}

std::error_code moveToFree(const fs::path& from, const fs::path& to) {
    return done(MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_WRITE_THROUGH));
}

std::error_code moveOver(const fs::path& from, const fs::path& to) {
    return done(
        MoveFileExW(from.c_str(), to.c_str(), MOVEFILE_REPLACE_EXISTING | MOVEFILE_WRITE_THROUGH));
}

std::error_code removeName(const fs::path& path) {
    const std::error_code error = done(DeleteFileW(path.c_str()));
    return error == std::errc::no_such_file_or_directory ? std::error_code{} : error;
}

}  // namespace campora

#endif
