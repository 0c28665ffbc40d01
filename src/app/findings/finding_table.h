// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <cstddef>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "base/texts.h"
#include "findings/passes.h"
#include "findings/problems.h"
#include "platform/desk.h"
#include "work/work_kind.h"

namespace campora {

/// A stretch of an open file.
struct FoundStretch {
    /// In the order in which the files were added to the table.
    std::size_t file = 0;
    /// Counted through all layers of the file.
    std::size_t firstRecord = 0;
    std::size_t lastRecord = 0;
    /// Where the stretch ends on the map: what a record says holds until the next one.
    std::size_t endRecord = 0;

    bool operator==(const FoundStretch&) const = default;
};

/// How the figure of a column is put into words.
enum class FigureForm { File, Number, Problem, Start, Duration, Position };

struct FindingColumn {
    TextId heading;
    FigureForm form;
    int decimals = 0;
    /// Shown are so many of the unit of the figure.
    double factor = 1;
};

/// What was wrong on a stretch, in words; `machine`: whose alarms they are.
[[nodiscard]] std::string problemText(const Texts& texts, const Problem& problem, WorkKind machine);

/// What was found in files, row by row, as a person reads it. One kind of findings a table.
class FindingTable {
public:
    enum class Kind { Passes, Problems };
    /// Of either kind.
    static constexpr std::size_t kStartColumn = 2;

    /// `desk` is asked for words and signs whenever a cell is.
    FindingTable(Kind kind, const Desk& desk) : kind_(kind), desk_(desk) {}

    void addFile(std::string name, std::span<const Pass> passes);
    void addFile(std::string name, const Problems& problems, WorkKind machine);

    [[nodiscard]] std::span<const FindingColumn> columns() const;
    [[nodiscard]] std::string heading(std::size_t column) const;
    /// Whether a column is aligned as figures are.
    [[nodiscard]] bool isFigure(std::size_t column) const;
    [[nodiscard]] const Texts& texts() const { return desk_.texts; }
    [[nodiscard]] std::size_t fileCount() const { return files_.size(); }
    [[nodiscard]] std::size_t rowCount() const { return order_.size(); }
    [[nodiscard]] std::string cell(std::size_t row, std::size_t column) const;
    [[nodiscard]] const FoundStretch& stretch(std::size_t row) const { return at(row).stretch; }
    /// Of all files.
    [[nodiscard]] std::size_t turns() const { return turns_; }

    /// Cells without a figure come last both ways; equal ones keep the order of the work.
    void sortBy(std::size_t column, bool descending);
    /// The row of the shortest stretch with that record; none without one.
    [[nodiscard]] std::optional<std::size_t> rowOf(std::size_t file, std::size_t record) const;
    /// The place of a row in the order of the work, which sorting leaves, and the row of a place.
    [[nodiscard]] std::size_t place(std::size_t row) const { return order_[row]; }
    [[nodiscard]] std::size_t rowAt(std::size_t place) const;
    /// The row that comes after (or before) `row` in the order of the work, whatever the rows are
    /// sorted by, the first (or last) after the end and without `row`; none in an empty table.
    [[nodiscard]] std::optional<std::size_t> neighbour(std::optional<std::size_t> row,
                                                       bool forward) const;
    /// Headings and rows in lines, cells between tabs.
    [[nodiscard]] std::string asText() const;

private:
    static constexpr std::size_t kMostColumns = 11;

    struct Row {
        FoundStretch stretch;
        /// One a column, by which they are sorted.
        std::array<std::optional<double>, kMostColumns> figures;
        RecordTime start;
        LonLat position;
        std::optional<Problem> problem;
        WorkKind machine = WorkKind::Seeder;
    };

    [[nodiscard]] const Row& at(std::size_t row) const { return rows_[order_[row]]; }
    [[nodiscard]] std::string figureText(const Row& row, std::size_t column) const;
    void addRow(const Row& row);

    Kind kind_;
    Desk desk_;
    std::vector<std::string> files_;
    /// In the order of the work.
    std::vector<Row> rows_;
    /// Indices of `rows_` in the order of the table.
    std::vector<std::size_t> order_;
    std::size_t turns_ = 0;
};

}  // namespace campora
