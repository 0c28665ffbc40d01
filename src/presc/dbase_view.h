// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/code_page.h"
#include "model/cell_value.h"

namespace campora {

/// A dBASE III table (also as dBASE IV and FoxPro write it). Rows and columns count from 0.
/// The bytes must outlive it.
class DbaseView {
public:
    DbaseView() = default;
    /// `codePageName`: what the file beside the table says about its code page; empty when there is
    /// none, the table's own byte then decides. Throws `FormatError` when the bytes are no such
    /// table or the header is damaged.
    explicit DbaseView(std::span<const std::byte> bytes, std::string_view codePageName = {});

    [[nodiscard]] int fieldCount() const { return static_cast<int>(columns_.size()); }
    /// UTF-8; throws `std::out_of_range` for a bad column, as the others do.
    [[nodiscard]] const std::string& fieldName(int column) const;
    // Rows are there when the file holds them whole and its header counts them; those that are
    // marked as deleted are like others, those that are not there empty.

    /// Numbers (N and F columns) as 64-bit floats, dates (D) as such, everything else as UTF-8 text
    /// without blanks around it. Empty where nothing stands and where a number or a date is none.
    [[nodiscard]] CellValue value(std::int32_t row, int column) const;
    /// The value as a number: one of a number column, or a text that is a number as a whole.
    [[nodiscard]] std::optional<double> number(std::int32_t row, int column) const;

    /// What stands in the cell, whether it is a value of its column or not: UTF-8 without blanks
    /// around it; empty for columns that hold no text.
    [[nodiscard]] std::string text(std::int32_t row, int column) const;
    /// Whether the cells are texts, so that how a number is written in them is anybody's choice.
    [[nodiscard]] bool isTextColumn(int column) const;

private:
    struct Column {
        std::string name;
        char type = 'C';
        std::size_t offset = 0;  // from the start of the row
        std::size_t width = 0;   // bytes
    };

    void readColumns(std::size_t headerSize);
    /// Without blanks and zero bytes around it.
    [[nodiscard]] std::string_view cell(std::int32_t row, const Column& column) const;
    [[nodiscard]] const Column& at(int column) const;

    std::span<const std::byte> bytes_;
    std::vector<Column> columns_;
    std::size_t firstRow_ = 0;
    std::size_t rowSize_ = 0;
    std::int32_t rowCount_ = 0;
    CodePage codePage_ = CodePage::Windows1252;
};

}  // namespace campora
