// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "base/dates.h"
#include "base/failure.h"
#include "base/file_draft.h"
#include "model/cell_value.h"
#include "model/dbase_layout.h"

namespace campora {

/// Types of fields, as `addField` numbers them.
enum class DbaseType { Numeric = 0, Character = 1, Date = 2 };

/// Writes a dBASE III table, in Windows-1252: `addField` for each field, `createDBF`, then for each
/// record `recordField` and `writeRecord`, and `closeDBF`. Fields count from 1.
class DbaseWriter {
public:
    static constexpr int kMostLength = 254;
    static constexpr int kDateLength = dbase::kDateWidth;

    /// With `today` the table is as other programs write it: that date in the header, numbers on
    /// the right of their fields, texts untouched. Without it the date is always 30 January 1999,
    /// and numbers stand on the left.
    explicit DbaseWriter(std::optional<Date> today = std::nullopt);

    /// The number of the new field. `name`: UTF-8, of which 11 characters stay. `length`: 1 to
    /// 255, of a date 8 in any case. All values are empty again.
    int addField(std::string_view name, DbaseType type, int length, int decimals);
    /// Begins the table that will replace `basePath` + ".dbf". More fields than the header can
    /// count are a failure.
    [[nodiscard]] std::optional<Failure> createDBF(std::string_view basePath);
    /// Sets a value of the current record, cut to its field. A comma in a number's text becomes a
    /// point, as in a text that fills its field. A number is a date by its days since 30 December
    /// 1899; an empty value, and a text in a date field, is blank. Fields below 1 are ignored,
    /// those that are not there throw `std::out_of_range`.
    void recordField(int field, const CellValue& value);
    /// What a text or number field is given for a value, UTF-8.
    [[nodiscard]] static std::string cellText(const CellValue& value);
    /// Appends the record; its values stay until they are set again.
    void writeRecord();
    [[nodiscard]] std::int32_t recordCount() const { return records_; }

    /// Counts and lengths; then the table takes its target's place.
    [[nodiscard]] std::optional<Failure> closeDBF();
    /// The same for a table that is to take its place together with other files.
    [[nodiscard]] FileDraft takeDraft();

private:
    struct Field {
        std::string name;  // Windows-1252
        DbaseType type;
        std::size_t offset;  // in the record
        std::size_t length;
        int decimals;
    };

    [[nodiscard]] std::size_t headerSize() const;
    [[nodiscard]] std::string head() const;
    void put(const Field& field, std::string_view text);

    std::optional<Date> today_;
    std::vector<Field> fields_;
    std::string record_{dbase::kNotDeleted};  // then the values
    std::int32_t records_ = 0;
    std::optional<FileDraft> draft_;
};

}  // namespace campora
