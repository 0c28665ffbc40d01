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

#include "base/encoding.h"
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
    constexpr std::array<const wchar_t*, 3> kModes = {L"rb", L"r+b", L"wbx"};
    return FileStream(_wfopen(path.c_str(), kModes[index]));
#else
    constexpr std::array<const char*, 3> kModes = {"rb", "r+b", "wbx"};
    return FileStream(std::fopen(path.c_str(), kModes[index]));
#endif
}

std::error_code lastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

Failure fileFailure(TextId what, std::string_view path, TextId reason) {
    return because(what, {std::string(path)}, {reason, {}});
}

Failure fileFailure(TextId what, std::string_view path, const std::error_code& error) {
    const auto* const known = std::find_if(std::begin(kReasons), std::end(kReasons),
                                           [&](const Reason& row) { return error == row.error; });
    if (known != std::end(kReasons)) {
        return fileFailure(what, path, known->text);
    }
    // Some systems word their messages in the local code page.
    return {what, {std::string(path), decodeText(error.message())}};
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
