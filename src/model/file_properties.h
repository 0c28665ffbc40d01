// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "model/summary_edits.h"

namespace campora {

/// Stands behind a figure that counts values that cannot be, where people read it.
inline constexpr std::string_view kDoubtMark = "(!)";

/// One entry of a summary. All three are data: they stay in the form they were read or made in.
struct SummaryEntry {
    std::string property;
    std::string value;
    std::string unit;

    bool operator==(const SummaryEntry&) const = default;
};

/// The ordered summary of a file. Indices outside 0 to count() - 1 throw `std::out_of_range`.
class FileProperties {
public:
    /// Path of the file that the summary was read from; empty when it was computed.
    std::string sourcePath;
    /// What a person put over the entries, which stay as they are.
    SummaryEdits edits;

    [[nodiscard]] int count() const { return static_cast<int>(entries_.size()); }
    [[nodiscard]] const std::vector<SummaryEntry>& entries() const { return entries_; }

    [[nodiscard]] const std::string& property(int i) const;
    /// Value, a blank and the unit ("12.5 Has"); the blank is there without a unit too.
    [[nodiscard]] std::string value(int i) const;
    [[nodiscard]] const std::string& value_(int i) const;
    [[nodiscard]] const std::string& unit_(int i) const;

    /// Appends, even when the name is there already.
    void addProperty(std::string_view property, std::string_view value, std::string_view unit);
    /// Replaces value and unit of the first entry of that name, or appends.
    void setProperty(std::string_view property, std::string_view value, std::string_view unit);
    /// Says of the entries of that name that they count values that cannot be.
    void markDoubtful(std::string_view property) { doubtful_.emplace(property); }
    [[nodiscard]] bool isDoubtful(std::string_view property) const {
        return doubtful_.contains(property);
    }
    void clear() {
        entries_.clear();
        doubtful_.clear();
    }

private:
    std::vector<SummaryEntry> entries_;
    std::set<std::string, std::less<>> doubtful_;
};

}  // namespace campora
