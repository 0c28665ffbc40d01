// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <filesystem>
#include <optional>
#include <span>
#include <string>

#include "base/failure.h"
#include "base/own_file.h"

namespace campora {

/// A whole, flushed file and where it is to stand.
struct FilePlacement {
    /// None: what stands at the target goes with the rest.
    OwnFile* file;
    /// Not a link.
    std::filesystem::path target;
    /// The target as failures name it.
    std::string shownPath;
};

/// All files take their targets' places, or none does and the first failure is answered. What is
/// promised stands with `FileDraft`.
[[nodiscard]] std::optional<Failure> placeTogether(std::span<const FilePlacement> files);

}  // namespace campora
