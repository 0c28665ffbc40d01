// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/files.h"

#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <system_error>

#include "base/file_access.h"
#include "base/file_draft.h"
#include "base/paths.h"
#include "base/set_journal.h"

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

/// Reads to the end; `expected` bytes are asked for at once. False with errno set on an error.
bool readAll(std::FILE* file, std::size_t expected, std::string& content) {
    std::setvbuf(file, nullptr, _IONBF, 0);  // straight into `content`
    errno = 0;
    content.resize(expected);
    content.resize(readSome(file, expected, content.data()));
    // What was appended meanwhile, and files that the system makes up as they are read.
    std::array<char, 65536> more;
    for (std::size_t got = 1; got > 0 && content.size() < kMostBytes;) {
        got = readSome(file, more.size(), more.data());
        content.append(more.data(), got);
    }
    return std::ferror(file) == 0;
}

/// Why a file that a program was killed over is not whole with its set.
std::optional<Failure> whyUnsettled(const fs::path& file) {
    std::error_code ignored;
    return settle(linkedFile(file, ignored));
}

}  // namespace

Result<FileBytes> readFile(std::string_view path) {
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
    if (!readAll(stream.get(), static_cast<std::size_t>(size), content)) {
        return fileFailure(kWhat, path, lastError());
    }
    return FileBytes(std::move(content));
}

bool canOpen(std::string_view path) {
    const Result<fs::path> file = ordinaryFile(TextId::FileCannotBeRead, path);
    return file && !whyUnsettled(*file) && openStream(*file, FileMode::Read);
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
