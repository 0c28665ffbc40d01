// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/files.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "base/file_access.h"
#include "base/file_draft.h"
#include "base/paths.h"
#include "base/set_journal.h"
#include "base/time_limit.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

/// Far above any log, map or table, and below what would bring a machine to its knees.
constexpr std::uintmax_t kMostBytes = std::uintmax_t{2} << 30U;

/// As `std::fread`, made again when a signal interrupts it.
std::size_t readSome(std::FILE* file, std::size_t size, char* bytes) {
    std::size_t got = std::fread(bytes, 1, size, file);
    while (got < size && std::ferror(file) != 0 && errno == EINTR) {
        std::clearerr(file);
        got += std::fread(bytes + got, 1, size - got, file);
    }
    return got;
}

/// How much is asked for at once: a slow network gets this far within the time limit.
constexpr std::size_t kPiece = std::size_t{4} << 20U;

/// Reads to the end, adding to `progress`; `expected` bytes are made room for at once. False with
/// errno set on an error.
bool readAll(std::FILE* file, std::size_t expected, std::atomic<std::size_t>& progress,
             std::string& content) {
    std::setvbuf(file, nullptr, _IONBF, 0);  // straight into `content`
    errno = 0;
    content.resize(expected);
    std::size_t size = 0;
    for (std::size_t got = 1; got > 0 && size < expected; progress += got) {
        got = readSome(file, std::min(kPiece, expected - size), content.data() + size);
        size += got;
    }
    content.resize(size);
    // What was appended meanwhile, and files that the system makes up as they are read.
    std::array<char, 65536> more;
    for (std::size_t got = 1; got > 0 && content.size() < kMostBytes; progress += got) {
        got = readSome(file, more.size(), more.data());
        content.append(more.data(), got);
    }
    return std::ferror(file) == 0;
}

/// Why a file that a program was killed over is not whole with its set.
std::optional<Failure> whyUnsettled(const fs::path& file) {
    std::error_code ignored;
    return settleSetOf(linkedFile(file, ignored));
}

Result<FileBytes> readWaiting(const std::string& path, std::atomic<std::size_t>& progress) {
    constexpr TextId kWhat = TextId::FileCannotBeRead;
    const Result<fs::path> file = ordinaryFile(kWhat, path);
    if (!file) {
        return file.failure();
    }
    if (std::optional<Failure> reason = whyUnsettled(*file)) {
        return because(kWhat, {std::string(path)}, std::move(*reason));
    }
    const FileStream stream = openStream(*file, FileMode::Read);
    if (!stream) {
        return fileFailure(kWhat, path, lastError());
    }
    std::error_code error;
    const std::uintmax_t size = fs::file_size(*file, error);
    if (error) {
        return fileFailure(kWhat, path, error);
    }
    if (size >= kMostBytes) {
        return fileFailure(kWhat, path, TextId::FileTooLarge);
    }
    std::string content;
    if (!readAll(stream.get(), static_cast<std::size_t>(size), progress, content)) {
        return fileFailure(kWhat, path, lastError());
    }
    return FileBytes(std::move(content));
}

}  // namespace

Result<FileBytes> readFile(std::string_view path) {
    auto progress = std::make_shared<std::atomic<std::size_t>>(0);
    std::optional<Result<FileBytes>> file =
        withinLimit([path = std::string(path), progress] { return readWaiting(path, *progress); },
                    [progress] { return progress->load(); });
    if (!file) {
        return fileFailure(TextId::FileCannotBeRead, path, TextId::FileDoesNotAnswer);
    }
    return std::move(*file);
}

bool canOpen(std::string_view path) {
    return withinLimit([path = std::string(path)] {
               const Result<fs::path> file = ordinaryFile(TextId::FileCannotBeRead, path);
               return file && !whyUnsettled(*file) && openStream(*file, FileMode::Read);
           })
        .value_or(false);
}

std::optional<Failure> writeFile(std::string_view path, std::span<const std::byte> bytes) {
    FileDraft draft(path);
    draft.write({reinterpret_cast<const char*>(bytes.data()), bytes.size()});
    return draft.finish();
}

std::optional<Failure> whyNoTarget(std::string_view path) {
    if (!fileNamePart(path).empty()) {
        return std::nullopt;
    }
    const TextId noFolder = path.empty() ? TextId::FileNotFound : TextId::FolderNotFound;
    return fileFailure(TextId::FileCannotBeWritten, path,
                       isFolder(path) ? TextId::FileIsFolder : noFolder);
}

std::optional<Failure> deleteFile(std::string_view path) {
    constexpr TextId kWhat = TextId::FileCannotBeDeleted;
    const Result<fs::path> file = ordinaryFile(kWhat, path);
    if (!file) {
        return file.failure();
    }
    std::error_code error;
    fs::remove(*file, error);
    if (error) {
        return fileFailure(kWhat, path, error);
    }
    return std::nullopt;
}

}  // namespace campora
