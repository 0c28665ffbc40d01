// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <vector>

#include "model/file_properties.h"
#include "model/summary_edits.h"

namespace campora {

/// A row of a summary as it is shown.
struct ShownEntry {
    std::string property;
    std::string value;
    std::string unit;
    enum class Origin { Measured, Edited, Added };
    Origin origin = Origin::Measured;
    /// Of an edited row: what was measured.
    std::string measuredValue = {};
    std::string measuredUnit = {};

    bool operator==(const ShownEntry&) const = default;
};

/// The measured rows with the edits of the summary over them.
[[nodiscard]] std::vector<ShownEntry> shownEntries(const FileProperties& summary);

/// What makes `rows` of the measured entries of `summary`; empty when they are the same.
[[nodiscard]] SummaryEdits editsThatMake(std::span<const SummaryEntry> rows,
                                         const FileProperties& summary);

/// The edits without what they say about one shown row: an edited one is measured again, an added
/// one is gone.
[[nodiscard]] SummaryEdits withoutEdit(const FileProperties& summary, int shownRow);

}  // namespace campora
