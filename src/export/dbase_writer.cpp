// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/dbase_writer.h"

#include <algorithm>
#include <limits>
#include <stdexcept>
#include <type_traits>
#include <utility>

#include "base/byte_writer.h"
#include "base/encoding.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "model/dbase_layout.h"

namespace campora {

namespace {

namespace header = dbase::header;
namespace description = dbase::field;

constexpr Date kPlainDate{1999, 1, 30};
constexpr std::size_t kMostBytes = std::numeric_limits<std::uint16_t>::max();
constexpr int kMostLengthByte = 255;

char typeLetter(DbaseType type) {
    switch (type) {
    case DbaseType::Numeric:
        return dbase::type::kNumber;
    case DbaseType::Character:
        return dbase::type::kText;
    case DbaseType::Date:
        break;
    }
    return dbase::type::kDate;
}

std::string dateDigits(const Date& date) {
    return dateText(date, "yyyymmdd");
}

std::string dateCell(const CellValue& value) {
    const auto digits = [](const auto& cell) -> std::string {
        using Cell = std::decay_t<decltype(cell)>;
        if constexpr (std::is_same_v<Cell, Date>) {
            return dateDigits(cell);
        } else if constexpr (std::is_arithmetic_v<Cell>) {
            return dateDigits(dateOfDayNumber(roundToInt32(static_cast<double>(cell))));
        } else {
            return {};
        }
    };
    return std::visit(digits, value);
}

}  // namespace

DbaseWriter::DbaseWriter(std::optional<Date> today) : today_(today) {}

int DbaseWriter::addField(std::string_view name, DbaseType type, int length, int decimals) {
    const int bytes = type == DbaseType::Date ? kDateLength : length;
    if (bytes < 1 || bytes > kMostLengthByte) {
        throw std::invalid_argument("DbaseWriter: length of a field");
    }
    const std::string letters = toWindows1252(name).substr(0, description::kNameSize);
    fields_.push_back({letters, type, record_.size(), static_cast<std::size_t>(bytes),
                       type == DbaseType::Numeric ? decimals : bytes});
    record_.assign(record_.size() + fields_.back().length, ' ');
    return static_cast<int>(fields_.size());
}

std::string DbaseWriter::head() const {
    const Date date = normalized(today_.value_or(kPlainDate));
    std::string bytes;
    appendLittle(bytes, header::kVersion);
    for (const int part : {date.year - 1900, date.month, date.day}) {
        appendLittle(bytes, static_cast<std::uint8_t>(part));
    }
    bytes.resize(header::kFields, '\0');  // the counts are known at the end
    for (const Field& field : fields_) {
        const std::size_t start = bytes.size();
        bytes += field.name;
        bytes.resize(start + description::kType, '\0');
        bytes += typeLetter(field.type);
        bytes.resize(start + description::kWidth, '\0');
        appendLittle(bytes, static_cast<std::uint8_t>(field.length));
        // Other programs take anything but 0 for the high byte of a text's length.
        const bool isPlainNumber = field.type == DbaseType::Numeric || !today_;
        appendLittle(bytes, static_cast<std::uint8_t>(isPlainNumber ? field.decimals : 0));
        bytes.resize(start + description::kSize, '\0');
    }
    return bytes + char{header::kFieldsEnd};
}

std::size_t DbaseWriter::headerSize() const {
    return header::kLeast + description::kSize * fields_.size();
}

std::optional<Failure> DbaseWriter::createDBF(std::string_view basePath) {
    const std::string path = std::string(basePath).append(kTableEnding);
    if (headerSize() > kMostBytes || record_.size() > kMostBytes) {
        return because(TextId::FileCannotBeWritten, {path}, {TextId::TableTooWide, {}});
    }
    draft_.emplace(path);
    records_ = 0;
    draft_->write(head());
    return draft_->failure();
}

std::string DbaseWriter::cellText(const CellValue& value) {
    const auto text = [](const auto& cell) -> std::string {
        using Cell = std::decay_t<decltype(cell)>;
        if constexpr (std::is_same_v<Cell, Date>) {
            return dateText(cell, "yyyy-mm-dd");
        } else if constexpr (std::is_same_v<Cell, std::string>) {
            return cell;
        } else if constexpr (std::is_arithmetic_v<Cell>) {
            return numberText(cell);
        } else {
            return {};
        }
    };
    return std::visit(text, value);
}

void DbaseWriter::recordField(int field, const CellValue& value) {
    if (field <= 0) {
        return;
    }
    const Field& target = fields_.at(static_cast<std::size_t>(field) - 1);
    if (target.type == DbaseType::Date) {
        put(target, dateCell(value));
        return;
    }
    std::string text = toWindows1252(cellText(value));
    if (target.type == DbaseType::Numeric || (text.size() >= target.length && !today_)) {
        std::replace(text.begin(), text.end(), ',', '.');
    }
    put(target, text);
}

void DbaseWriter::put(const Field& field, std::string_view text) {
    const std::size_t size = std::min(text.size(), field.length);
    const std::size_t blanks = field.length - size;
    const bool onRight = today_ && field.type == DbaseType::Numeric;
    const auto begin = record_.begin() + static_cast<std::ptrdiff_t>(field.offset);
    const auto value = begin + static_cast<std::ptrdiff_t>(onRight ? blanks : 0);
    std::fill_n(begin, field.length, ' ');
    std::copy_n(text.begin(), size, value);
}

void DbaseWriter::writeRecord() {
    draft_->write(record_);
    ++records_;
}

FileDraft DbaseWriter::takeDraft() {
    std::string counts;
    appendLittle(counts, records_);
    appendLittle(counts, static_cast<std::uint16_t>(headerSize()));
    appendLittle(counts, static_cast<std::uint16_t>(record_.size()));
    draft_->overwrite(header::kRecordCount, counts);
    FileDraft draft = std::move(*draft_);
    draft_.reset();
    return draft;
}

std::optional<Failure> DbaseWriter::closeDBF() {
    return takeDraft().finish();
}

}  // namespace campora
