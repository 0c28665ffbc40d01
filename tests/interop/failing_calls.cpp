// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Preloaded into a program, makes one of the calls with which it writes into a folder fail, or
// kills the program there. The environment tells which:
//   FAILING_FOLDER  only calls on its files count, from 1
//   FAILING_AT      the call that fails; with a "+" behind it all from there on
//   FAILING_WITH    errno of the failure, or "kill" to be killed before the call
//   FAILING_COUNT   a file that takes the number of calls at the end
//   FAILING_CARD    set: the folder is on a simple card, without nameless files and second names

#include <cerrno>
#include <csignal>
#include <cstdarg>
#include <cstdio>
#include <cstdlib>
#include <cstring>

#include <dlfcn.h>
#include <fcntl.h>
#include <sys/types.h>
#include <unistd.h>

namespace {

int calls = 0;

template <typename Function>
Function original(const char* name) {
    return reinterpret_cast<Function>(dlsym(RTLD_NEXT, name));
}

bool isInFolder(const char* path) {
    const char* const folder = std::getenv("FAILING_FOLDER");
    return folder != nullptr && std::strncmp(path, folder, std::strlen(folder)) == 0;
}

bool isInFolder(int file) {
    char name[64];
    char path[4096];
    std::snprintf(name, sizeof name, "/proc/self/fd/%d", file);
    const ssize_t size = readlink(name, path, sizeof path - 1);
    if (size < 0) {
        return false;
    }
    path[size] = '\0';
    return isInFolder(path);
}

/// Counts a call; whether it is to fail, with errno set.
template <typename Place>
bool fails(Place place) {
    const char* const at = std::getenv("FAILING_AT");
    const char* const with = std::getenv("FAILING_WITH");
    if (!isInFolder(place)) {
        return false;
    }
    ++calls;
    if (at == nullptr || with == nullptr ||
        (std::strchr(at, '+') != nullptr ? calls < std::atoi(at) : calls != std::atoi(at))) {
        return false;
    }
    if (std::strcmp(with, "kill") == 0) {
        kill(getpid(), SIGKILL);
    }
    errno = std::atoi(with);
    return true;
}

/// Whether a simple card would not know the call, with errno set.
bool isUnknown(const char* path, int error) {
    const bool isCard = std::getenv("FAILING_CARD") != nullptr && isInFolder(path);
    errno = isCard ? error : errno;
    return isCard;
}

struct TellsCount {
    ~TellsCount() {
        if (const char* const path = std::getenv("FAILING_COUNT")) {
            if (std::FILE* const file = std::fopen(path, "w")) {
                std::fprintf(file, "%d", calls);
                std::fclose(file);
            }
        }
    }
} tellsCount;

mode_t modeOf(int flags, va_list rest) {
    return (flags & O_CREAT) != 0 || (flags & O_TMPFILE) == O_TMPFILE ? va_arg(rest, mode_t) : 0;
}

int openAs(const char* name, const char* path, int flags, mode_t mode) {
    if ((flags & O_TMPFILE) == O_TMPFILE && isUnknown(path, EOPNOTSUPP)) {
        return -1;
    }
    return fails(path) ? -1 : original<int (*)(const char*, int, ...)>(name)(path, flags, mode);
}

}  // namespace

extern "C" {

int open(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openAs("open", path, flags, mode);
}

int open64(const char* path, int flags, ...) {
    va_list rest;
    va_start(rest, flags);
    const mode_t mode = modeOf(flags, rest);
    va_end(rest);
    return openAs("open64", path, flags, mode);
}

ssize_t pwrite(int file, const void* bytes, size_t size, off_t offset) {
    using Call = ssize_t (*)(int, const void*, size_t, off_t);
    return fails(file) ? -1 : original<Call>("pwrite")(file, bytes, size, offset);
}

ssize_t pwrite64(int file, const void* bytes, size_t size, off64_t offset) {
    using Call = ssize_t (*)(int, const void*, size_t, off64_t);
    return fails(file) ? -1 : original<Call>("pwrite64")(file, bytes, size, offset);
}

int fsync(int file) {
    return fails(file) ? -1 : original<int (*)(int)>("fsync")(file);
}

int close(int file) {
    const bool isFailing = fails(file);
    const int error = errno;
    const int result = original<int (*)(int)>("close")(file);
    errno = isFailing ? error : errno;
    return isFailing ? -1 : result;
}

int linkat(int fromFolder, const char* from, int toFolder, const char* to, int flags) {
    using Call = int (*)(int, const char*, int, const char*, int);
    return isUnknown(to, EPERM) || fails(to)
               ? -1
               : original<Call>("linkat")(fromFolder, from, toFolder, to, flags);
}

int rename(const char* from, const char* to) {
    return fails(to) ? -1 : original<int (*)(const char*, const char*)>("rename")(from, to);
}

int renameat2(int fromFolder, const char* from, int toFolder, const char* to, unsigned flags) {
    using Call = int (*)(int, const char*, int, const char*, unsigned);
    return fails(to) ? -1 : original<Call>("renameat2")(fromFolder, from, toFolder, to, flags);
}

int unlink(const char* path) {
    return fails(path) ? -1 : original<int (*)(const char*)>("unlink")(path);
}

}  // extern "C"
