// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include "findings/passes.h"
#include "findings/problems.h"
#include "model/file.h"
#include "work/work_kind.h"

namespace campora {

/// The machine of a file's records; none without records, and for a logger's track file.
[[nodiscard]] std::optional<WorkKind> workKindOf(const File& file);

/// What is looked at in a file: all channels, the alarms that mean something on its machine.
/// `errorLimit`: per cent.
[[nodiscard]] FindingOptions findingOptions(const File& file, float errorLimit);

/// None for files that hold no work.
[[nodiscard]] std::vector<Pass> passesOf(const File& file, float errorLimit);
[[nodiscard]] Problems problemsOf(const File& file, float errorLimit);

}  // namespace campora
