// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdio>
#include <filesystem>
#include <memory>
#include <string_view>
#include <system_error>

#include "base/failure.h"

namespace campora {

/// What reading, writing and deleting of files have in common.

struct FileCloser {
    void operator()(std::FILE* file) const { std::fclose(file); }
};

using FileStream = std::unique_ptr<std::FILE, FileCloser>;

enum class FileMode { Read, Change };

/// Null with errno set when the file cannot be opened.
[[nodiscard]] FileStream openStream(const std::filesystem::path& path, FileMode mode);

/// What errno says; an error in any case.
[[nodiscard]] std::error_code lastError();

/// What an error of the system tells, in the user's language.
[[nodiscard]] Failure reasonOf(const std::error_code& error);

/// `what` (a text with places for a path and a reason) about a file.
[[nodiscard]] Failure fileFailure(TextId what, std::string_view path, TextId reason);
[[nodiscard]] Failure fileFailure(TextId what, std::string_view path, const std::error_code& error);

/// The file itself where `path` is a link to it, whether it is there or not.
[[nodiscard]] std::filesystem::path linkedFile(std::filesystem::path path, std::error_code& error);

/// The native form of a path that names an ordinary file or one that does not exist yet; else why
/// it does not, as a failure with the text `what`.
[[nodiscard]] Result<std::filesystem::path> ordinaryFile(TextId what, std::string_view path);

}  // namespace campora
