// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "model/shown_summary.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "base/text.h"

namespace campora {

namespace {

/// Hands out the measured rows by name, each once: several may share a name.
class Measured {
public:
    explicit Measured(const FileProperties& summary)
        : rows_(summary.entries()), taken_(rows_.size(), false) {}

    /// Null when no row of that name is left; editors trim the names that readers pad.
    const SummaryEntry* take(const std::string& property) {
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            if (!taken_[i] && trim(rows_[i].property) == trim(property)) {
                taken_[i] = true;
                return &rows_[i];
            }
        }
        return nullptr;
    }
    [[nodiscard]] std::vector<const SummaryEntry*> left() const {
        std::vector<const SummaryEntry*> rows;
        for (std::size_t i = 0; i < rows_.size(); ++i) {
            if (!taken_[i]) {
                rows.push_back(&rows_[i]);
            }
        }
        return rows;
    }

private:
    const std::vector<SummaryEntry>& rows_;
    std::vector<bool> taken_;
};

ShownEntry asMeasured(const SummaryEntry& row) {
    return {row.property, row.value, row.unit};
}

/// None where a row that stood as it was measured is not measured any more.
std::optional<ShownEntry> shownRow(const SummaryEdits::Row& row, const SummaryEntry* measured) {
    using Origin = ShownEntry::Origin;
    if (!row.value) {
        return measured != nullptr ? std::optional(asMeasured(*measured)) : std::nullopt;
    }
    const auto& [value, unit] = *row.value;
    if (measured == nullptr) {
        return ShownEntry{row.property, value, unit, Origin::Added};
    }
    if (measured->value == value && measured->unit == unit) {
        return asMeasured(*measured);
    }
    return ShownEntry{row.property, value, unit, Origin::Edited, measured->value, measured->unit};
}

/// Every measured row in its place.
bool changesNothing(const SummaryEdits& edits, const FileProperties& summary) {
    return edits.removed.empty() &&
           std::equal(edits.rows.begin(), edits.rows.end(), summary.entries().begin(),
                      summary.entries().end(),
                      [](const SummaryEdits::Row& row, const SummaryEntry& entry) {
                          return !row.value && row.property == entry.property;
                      });
}

}  // namespace

std::vector<ShownEntry> shownEntries(const FileProperties& summary) {
    std::vector<ShownEntry> shown;
    Measured measured(summary);
    for (const SummaryEdits::Row& row : summary.edits.rows) {
        if (std::optional<ShownEntry> found = shownRow(row, measured.take(row.property))) {
            shown.push_back(std::move(*found));
        }
    }
    for (const std::string& removed : summary.edits.removed) {
        static_cast<void>(measured.take(removed));
    }
    for (const SummaryEntry* row : measured.left()) {
        shown.push_back(asMeasured(*row));
    }
    return shown;
}

SummaryEdits editsThatMake(std::span<const SummaryEntry> rows, const FileProperties& summary) {
    SummaryEdits edits;
    Measured measured(summary);
    for (const SummaryEntry& row : rows) {
        const SummaryEntry* const same = measured.take(row.property);
        const bool isMeasured = same != nullptr && trim(same->value) == trim(row.value) &&
                                trim(same->unit) == trim(row.unit);
        edits.rows.push_back({same != nullptr ? same->property : row.property, {}});
        if (!isMeasured) {
            edits.rows.back().value = SummaryEdits::Value{row.value, row.unit};
        }
    }
    for (const SummaryEntry* row : measured.left()) {
        edits.removed.push_back(row->property);
    }
    return changesNothing(edits, summary) ? SummaryEdits() : edits;
}

SummaryEdits withoutEdit(const FileProperties& summary, int shownRow) {
    std::vector<SummaryEntry> rows;
    const std::vector<ShownEntry> shown = shownEntries(summary);
    for (std::size_t i = 0; i < shown.size(); ++i) {
        const ShownEntry& row = shown[i];
        const bool isAsked = static_cast<int>(i) == shownRow;
        if (!isAsked || row.origin == ShownEntry::Origin::Measured) {
            rows.push_back({row.property, row.value, row.unit});
        } else if (row.origin == ShownEntry::Origin::Edited) {
            rows.push_back({row.property, row.measuredValue, row.measuredUnit});
        }
    }
    return editsThatMake(rows, summary);
}

}  // namespace campora
