// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

namespace campora {

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

}  // namespace campora
