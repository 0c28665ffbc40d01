// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/files.h"

#include <algorithm>
#include <array>
#include <cerrno>
#include <cstdint>
#include <cstdio>
#include <filesystem>
#include <memory>
#include <system_error>

#include "base/encoding.h"
#include "base/numbers.h"
#include "base/paths.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

/// Far above any log, map or table, and below what would bring a machine to its knees.
constexpr std::uintmax_t kMostBytes = std::uintmax_t{2} << 30U;

struct Closer {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using Stream = std::unique_ptr<std::FILE, Closer>;

enum class Mode { Read, Change, CreateNew };

/// Null with errno set when the file cannot be opened.
Stream open(const fs::path& path, Mode mode) {
    const auto index = static_cast<std::size_t>(mode);
#ifdef _WIN32
    constexpr std::array<const wchar_t*, 3> kModes = {L"rb", L"r+b", L"wbx"};
    return Stream(_wfopen(path.c_str(), kModes[index]));
#else
    constexpr std::array<const char*, 3> kModes = {"rb", "r+b", "wbx"};
    return Stream(std::fopen(path.c_str(), kModes[index]));
#endif
}

std::error_code lastError() {
    return {errno != 0 ? errno : EIO, std::generic_category()};
}

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
};

Failure failed(TextId what, std::string_view path, TextId reason) {
    return because(what, {std::string(path)}, {reason, {}});
}

Failure failed(TextId what, std::string_view path, const std::error_code& error) {
    const auto* const known = std::find_if(std::begin(kReasons), std::end(kReasons),
                                           [&](const Reason& row) { return error == row.error; });
    if (known != std::end(kReasons)) {
        return failed(what, path, known->text);
    }
    // Some systems word their messages in the local code page.
    return {what, {std::string(path), decodeText(error.message())}};
}

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

/// The native form of a path that names an ordinary file or one that does not exist yet.
/// `what` is the text of the failure.
Result<fs::path> ordinaryFile(TextId what, std::string_view path) {
    // The system would take a name with a NUL in it for the shorter one before the NUL.
    if (path.empty() || path.find('\0') != std::string_view::npos) {
        return failed(what, path, TextId::FileNotFound);
    }
    fs::path file = nativePath(path);
    std::error_code error;
    const fs::file_status status = fs::status(file, error);
    if (const auto reason = wrongKind(status)) {
        return failed(what, path, *reason);
    }
    if (status.type() == fs::file_type::none) {
        return failed(what, path, error);
    }
    return file;
}

/// Reads to the end; `expected` bytes are asked for at once. False with errno set on an error.
bool readAll(std::FILE* file, std::size_t expected, std::string& content) {
    std::setvbuf(file, nullptr, _IONBF, 0);  // straight into `content`
    errno = 0;
    content.resize(expected);
    content.resize(std::fread(content.data(), 1, expected, file));
    // What was appended meanwhile, and files that the system makes up as they are read.
    std::array<char, 65536> more;
    for (std::size_t got = 1; got > 0 && content.size() < kMostBytes;) {
        got = std::fread(more.data(), 1, more.size(), file);
        content.append(more.data(), got);
    }
    return std::ferror(file) == 0;
}

/// A new file beside the target, which deletes itself unless it becomes the target.
class Draft {
public:
    explicit Draft(const fs::path& target) : target_(target) {
        constexpr int kMostNames = 1000;
        for (int number = 0; number < kMostNames; ++number) {
            path_ = target.parent_path() / (".campora-" + numberText(number) + ".tmp");
            stream_ = open(path_, Mode::CreateNew);
            if (stream_ || errno != EEXIST) {
                break;
            }
        }
        if (!stream_) {
            error_ = lastError();
            path_.clear();
        }
    }
    Draft(const Draft&) = delete;
    Draft& operator=(const Draft&) = delete;
    ~Draft() {
        stream_.reset();
        if (!path_.empty()) {
            std::error_code ignored;
            fs::remove(path_, ignored);
        }
    }

    void write(std::span<const std::byte> bytes) {
        errno = 0;
        if (!error_ && std::fwrite(bytes.data(), 1, bytes.size(), stream_.get()) != bytes.size()) {
            error_ = lastError();
        }
    }

    /// Puts the file in the target's place; the first error of all that was done.
    [[nodiscard]] std::error_code finish() {
        errno = 0;
        if (!error_ && std::fflush(stream_.get()) != 0) {
            error_ = lastError();
        }
        if (!error_ && std::fclose(stream_.release()) != 0) {
            error_ = lastError();
        }
        if (!error_) {
            takeTargetsPlace();
        }
        return error_;
    }

private:
    void takeTargetsPlace() {
        std::error_code ignored;
        const fs::file_status old = fs::status(target_, ignored);
        if (fs::exists(old)) {
            fs::permissions(path_, old.permissions(), ignored);
        }
        fs::rename(path_, target_, error_);
        if (!error_) {
            path_.clear();
        }
    }

    fs::path target_;
    fs::path path_;
    Stream stream_;
    std::error_code error_;
};

/// The file itself where `path` is a link to it, so that the link stays one.
fs::path linkedFile(const fs::path& path) {
    std::error_code error;
    if (!fs::is_symlink(fs::symlink_status(path, error))) {
        return path;
    }
    const fs::path linked = fs::canonical(path, error);
    return error ? path : linked;
}

/// A rename would replace a protected file without a word: whether this one may be written.
std::error_code writeProtection(const fs::path& path) {
    std::error_code ignored;
    if (!fs::exists(path, ignored) || open(path, Mode::Change)) {
        return {};
    }
    return lastError();
}

}  // namespace

Result<FileBytes> readFile(std::string_view path) {
    constexpr TextId kWhat = TextId::FileCannotBeRead;
    const Result<fs::path> file = ordinaryFile(kWhat, path);
    if (!file) {
        return file.failure();
    }
    const Stream stream = open(*file, Mode::Read);
    if (!stream) {
        return failed(kWhat, path, lastError());
    }
    std::error_code error;
    const std::uintmax_t size = fs::file_size(*file, error);
    if (error) {
        return failed(kWhat, path, error);
    }
    if (size >= kMostBytes) {
        return failed(kWhat, path, TextId::FileTooLarge);
    }
    std::string content;
    if (!readAll(stream.get(), static_cast<std::size_t>(size), content)) {
        return failed(kWhat, path, lastError());
    }
    return FileBytes(std::move(content));
}

bool canOpen(std::string_view path) {
    const Result<fs::path> file = ordinaryFile(TextId::FileCannotBeRead, path);
    return file && open(*file, Mode::Read);
}

std::optional<Failure> writeFile(std::string_view path, std::span<const std::byte> bytes) {
    constexpr TextId kWhat = TextId::FileCannotBeWritten;
    const Result<fs::path> file = ordinaryFile(kWhat, path);
    if (!file) {
        return file.failure();
    }
    const fs::path target = linkedFile(*file);
    std::error_code error;
    if (target.has_parent_path() && !fs::is_directory(target.parent_path(), error)) {
        return error && error != std::errc::no_such_file_or_directory
                   ? failed(kWhat, path, error)
                   : failed(kWhat, path, TextId::FolderNotFound);
    }
    if (const std::error_code protection = writeProtection(target)) {
        return failed(kWhat, path, protection);
    }
    Draft draft(target);
    draft.write(bytes);
    if (const std::error_code writing = draft.finish()) {
        return failed(kWhat, path, writing);
    }
    return std::nullopt;
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
        return failed(kWhat, path, error);
    }
    return std::nullopt;
}

}  // namespace campora
