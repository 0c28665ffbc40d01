// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string>
#include <vector>

namespace campora {

struct SummaryEntry;
class FileProperties;

/// What a person put in place of the figures of a summary, which stay what they are.
struct SummaryEdits {
    struct Value {
        std::string value;
        std::string unit;

        bool operator==(const Value&) const = default;
    };
    struct Row {
        std::string property;
        /// None for a row that stands as it was measured.
        std::optional<Value> value = {};

        bool operator==(const Row&) const = default;
    };
    /// In the order in which they are shown; what is measured and neither here nor among the
    /// removed follows them. Empty while nothing is edited.
    std::vector<Row> rows;
    /// Names of measured rows that are not shown.
    std::vector<std::string> removed;

    [[nodiscard]] bool empty() const { return rows.empty() && removed.empty(); }
    bool operator==(const SummaryEdits&) const = default;
};

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
