// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "base/failure.h"

namespace campora {

/// The bytes of a file, as text or binary; both views hold while the object lives.
class FileBytes {
public:
    FileBytes() = default;
    explicit FileBytes(std::string content) : content_(std::move(content)) {}

    [[nodiscard]] std::span<const std::byte> bytes() const {
        return std::as_bytes(std::span(content_.data(), content_.size()));
    }
    [[nodiscard]] std::string_view text() const { return content_; }
    [[nodiscard]] std::size_t size() const { return content_.size(); }

private:
    std::string content_;
};

/// The whole file, which must be an ordinary one of less than 2 GiB. Failures name the path and the
/// reason: it is not there, it is a folder or a device, no permission, too large, a device error.
/// What a killed program has left half done with the file is taken back first.
[[nodiscard]] Result<FileBytes> readFile(std::string_view path);

/// Whether `readFile` would get as far as the first byte.
[[nodiscard]] bool canOpen(std::string_view path);

/// The whole file by a `FileDraft`, with what that promises.
[[nodiscard]] std::optional<Failure> writeFile(std::string_view path,
                                               std::span<const std::byte> bytes);

/// Why a path that ends with its folder names no file to write; none for one with a name. For
/// those who add endings to what they are given.
[[nodiscard]] std::optional<Failure> whyNoTarget(std::string_view path);

/// Deletes one ordinary file or link, never a folder. None when no file of that name is there any
/// more; a failure names the path and the reason.
[[nodiscard]] std::optional<Failure> deleteFile(std::string_view path);

}  // namespace campora
