// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/file_access.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstddef>
#include <iterator>
#include <optional>
#include <string>

#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

namespace fs = std::filesystem;

namespace {

/// What a system call met, where there is a text for it.
struct Reason {
    std::errc error;
    TextId text;
};

constexpr Reason kReasons[] = {
    {std::errc::no_such_file_or_directory, TextId::FileNotFound},
    {std::errc::not_a_directory, TextId::FileNotFound},
    {std::errc::is_a_directory, TextId::FileIsFolder},
    {std::errc::permission_denied, TextId::FileNoPermission},
    {std::errc::operation_not_permitted, TextId::FileNoPermission},
    {std::errc::read_only_file_system, TextId::DiskWriteProtected},
    {std::errc::no_space_on_device, TextId::DiskFull},
    {std::errc::file_too_large, TextId::FileTooLarge},
    {std::errc::not_enough_memory, TextId::FileTooLarge},
    {std::errc::filename_too_long, TextId::FileNameTooLong},
    {std::errc::io_error, TextId::DiskError},
    {std::errc::too_many_files_open, TextId::TooManyFiles},
    {std::errc::too_many_files_open_in_system, TextId::TooManyFiles},
    {std::errc::too_many_symbolic_link_levels, TextId::LinksInACircle},
    {std::errc::file_exists, TextId::FileExists},
    {std::errc::device_or_resource_busy, TextId::FileBusy},
    {std::errc::text_file_busy, TextId::FileBusy},
    {std::errc::cross_device_link, TextId::OtherDisk},
    {std::errc::interrupted, TextId::DiskInterrupted},
    {std::errc::operation_canceled, TextId::DiskInterrupted},
    {std::errc::no_such_device, TextId::DiskGone},
    {std::errc::no_such_device_or_address, TextId::DiskGone},
    {std::errc::timed_out, TextId::DiskGone},
    {std::errc::not_connected, TextId::DiskGone},
    {std::errc::host_unreachable, TextId::DiskGone},
    {std::errc::network_unreachable, TextId::DiskGone},
};

/// Why this is no ordinary file, as far as its kind tells; none for a file that is not there.
std::optional<TextId> wrongKind(const fs::file_status& status) {
    switch (status.type()) {
    case fs::file_type::directory:
        return TextId::FileIsFolder;
    case fs::file_type::regular:
    case fs::file_type::not_found:
    case fs::file_type::none:
        return std::nullopt;
    default:
        return TextId::FileIsSpecial;
    }
}

}  // namespace

FileStream openStream(const fs::path& path, FileMode mode) {
    const auto index = static_cast<std::size_t>(mode);
#ifdef _WIN32
    constexpr std::array<const wchar_t*, 2> kModes = {L"rb", L"r+b"};
    return FileStream(_wfopen(path.c_str(), kModes[index]));
#else
    constexpr std::array<const char*, 2> kModes = {"rbe", "r+be"};
    std::FILE* file = nullptr;
    do {
        errno = 0;
        file = std::fopen(path.c_str(), kModes[index]);
    } while (file == nullptr && errno == EINTR);
    return FileStream(file);
#endif
}

std::error_code lastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

Failure fileFailure(TextId what, std::string_view path, TextId reason) {
    return because(what, {std::string(path)}, {reason, {}});
}

Failure reasonOf(const std::error_code& error) {
    const auto* const known = std::find_if(std::begin(kReasons), std::end(kReasons),
                                           [&](const Reason& row) { return error == row.error; });
    if (known != std::end(kReasons)) {
        return {known->text, {}};
    }
#ifndef _WIN32
    if (error == std::error_code(EDQUOT, std::generic_category())) {
        return {TextId::DiskQuota, {}};
    }
#endif
    // What the system says itself is in the system's language.
    return {TextId::SystemError, {numberText(error.value())}};
}

Failure fileFailure(TextId what, std::string_view path, const std::error_code& error) {
    return because(what, {std::string(path)}, reasonOf(error));
}

fs::path linkedFile(fs::path path, std::error_code& error) {
    constexpr int kMostLinks = 40;
    for (int i = 0; i < kMostLinks; ++i) {
        const bool isLink = fs::is_symlink(fs::symlink_status(path, error));
        error.clear();  // whoever opens the file is told
        if (!isLink) {
            return path;
        }
        const fs::path next = fs::read_symlink(path, error);
        if (error) {
            return path;
        }
        path = path.parent_path() / next;
    }
    error = std::make_error_code(std::errc::too_many_symbolic_link_levels);
    return path;
}

Result<fs::path> ordinaryFile(TextId what, std::string_view path) {
    // The system would take a name with a NUL in it for the shorter one before the NUL.
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        return fileFailure(what, path, TextId::FileNotFound);
    }
    fs::path file = nativePath(path);
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (const auto reason = wrongKind(status)) {
        return fileFailure(what, path, *reason);
    }
    if (status.type() == fs::file_type::none) {
        return fileFailure(what, path, error);
    }
    return file;
}

}  // namespace campora
