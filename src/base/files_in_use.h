// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"

namespace campora {

/// Files that are open, or that open ones use or were read from: whatever is written, none of them
/// is its target. Files are the same when the system says so, through links and in any spelling.
class FilesInUse {
public:
    /// Nothing for a path where no file stands.
    void add(std::string_view path);
    /// Adds the file and those that stand beside it under one of the names, in any case.
    void addWith(std::string_view path, std::span<const std::string> names);

    /// The first of the targets that is one of the files, as a failure that names the file which
    /// would be lost; none when all may be written.
    [[nodiscard]] std::optional<Failure> whyNotTarget(std::span<const std::string> targets) const;
    [[nodiscard]] std::optional<Failure> whyNotTarget(const std::string& target) const {
        return whyNotTarget(std::span(&target, 1));
    }

private:
    struct Used {
        std::string path;
        /// What most files differ by: only those of one size are compared.
        std::uintmax_t size = 0;
    };

    void addFound(std::string path);

    std::vector<Used> files_;
};

}  // namespace campora
