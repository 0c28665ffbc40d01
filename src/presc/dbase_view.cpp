// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/dbase_view.h"

#include <algorithm>
#include <charconv>
#include <cmath>

#include "base/byte_reader.h"
#include "base/failure.h"
#include "base/numbers.h"
#include "model/dbase_layout.h"

namespace campora {

namespace {

namespace header = dbase::header;
namespace description = dbase::field;

std::string_view textOf(std::span<const std::byte> bytes) {
    return {reinterpret_cast<const char*>(bytes.data()), bytes.size()};
}

/// dBASE III and later with the same layout, with and without memos, and FoxPro.
bool isKnownVersion(std::uint8_t version) {
    constexpr std::uint8_t kFoxPro = 0x30;
    constexpr std::uint8_t kFoxPro2Memo = 0xF5;
    return (version & 0x07U) == header::kVersion ||
           (version >= kFoxPro && version <= kFoxPro + 2) || version == kFoxPro2Memo;
}

/// Some programs pad with zero bytes instead of blanks.
std::string_view withoutPadding(std::string_view text) {
    constexpr std::string_view kPadding("\0 \t\r\n", 5);
    const std::size_t first = text.find_first_not_of(kPadding);
    if (first == std::string_view::npos) {
        return {};
    }
    return text.substr(first, text.find_last_not_of(kPadding) - first + 1);
}

std::optional<double> numberOfAll(std::string_view text) {
    if (text.size() > 1 && text[0] == '+' && text[1] != '-') {
        text.remove_prefix(1);
    }
    double value = 0;
    const char* const end = text.data() + text.size();
    const auto [stop, error] = std::from_chars(text.data(), end, value);
    if (stop != end || error == std::errc::invalid_argument || !std::isfinite(value)) {
        return std::nullopt;
    }
    // Out of range is what is too large, which is no number, and what is too small, which is 0.
    return error == std::errc() ? value : leadingNumber(text);
}

CellValue dateOf(std::string_view text) {
    int number = 0;
    const char* const end = text.data() + text.size();
    if (text.size() != dbase::kDateWidth || std::from_chars(text.data(), end, number).ptr != end) {
        return {};
    }
    const Date date{number / 10000, number / 100 % 100, number % 100};
    if (number <= 0 || date.year == 0 || normalized(date) != date) {
        return {};
    }
    return date;
}

bool isNumberColumn(char type) {
    return type == dbase::type::kNumber || type == dbase::type::kFloat;
}

[[noreturn]] void damagedAt(std::size_t offset) {
    throw FormatError({TextId::TableDamaged, {numberText(offset)}, {}});
}

}  // namespace

DbaseView::DbaseView(std::span<const std::byte> bytes, std::string_view codePageName)
    : bytes_(bytes) {
    if (bytes.size() < header::kFields || !isKnownVersion(static_cast<std::uint8_t>(bytes[0]))) {
        throw FormatError({TextId::TableNone, {}, {}});
    }
    ByteReader reader(bytes, header::kRecordCount);
    const std::uint32_t rows = reader.u32le();
    firstRow_ = reader.u16le();
    rowSize_ = reader.u16le();
    if (firstRow_ < header::kLeast) {
        damagedAt(header::kHeaderSize);
    }
    if (rowSize_ == 0) {
        damagedAt(header::kRecordSize);
    }
    reader.seek(firstRow_);
    rowCount_ =
        static_cast<std::int32_t>(std::min<std::size_t>(rows, reader.remaining() / rowSize_));
    reader.seek(header::kLanguage);
    const CodePage ofTable = codePageOfLanguage(reader.u8());
    codePage_ = codePageOfName(codePageName).value_or(ofTable);
    readColumns(firstRow_);
}

void DbaseView::readColumns(std::size_t headerSize) {
    std::size_t offset = 1;  // the mark of deleted rows
    for (std::size_t at = header::kFields; at + description::kSize <= headerSize;
         at += description::kSize) {
        ByteReader reader(bytes_, at);
        const std::string_view name = textOf(reader.take(description::kNameSize));
        if (static_cast<std::uint8_t>(name[0]) == header::kFieldsEnd) {
            break;
        }
        reader.seek(at + description::kType);
        const char type = static_cast<char>(reader.u8());
        reader.seek(at + description::kWidth);
        const std::size_t width = reader.u8();
        if (offset + width > rowSize_) {
            damagedAt(at + description::kWidth);
        }
        columns_.push_back(
            {decodeCodePage(withoutPadding(name.substr(0, name.find('\0'))), codePage_), type,
             offset, width});
        offset += width;
    }
}

const DbaseView::Column& DbaseView::at(int column) const {
    return columns_.at(static_cast<std::size_t>(column));
}

const std::string& DbaseView::fieldName(int column) const {
    return at(column).name;
}

std::string_view DbaseView::cell(std::int32_t row, const Column& column) const {
    if (row < 0 || row >= rowCount_) {
        return {};
    }
    const std::size_t at = firstRow_ + static_cast<std::size_t>(row) * rowSize_ + column.offset;
    return withoutPadding(textOf(bytes_.subspan(at, column.width)));
}

std::optional<double> DbaseView::number(std::int32_t row, int column) const {
    const Column& of = at(column);
    if (!isNumberColumn(of.type) && of.type != dbase::type::kText) {
        return std::nullopt;
    }
    return numberOfAll(cell(row, of));
}

CellValue DbaseView::value(std::int32_t row, int column) const {
    const Column& of = at(column);
    if (isNumberColumn(of.type)) {
        const std::optional<double> value = number(row, column);
        return value ? CellValue(*value) : CellValue();
    }
    const std::string_view text = cell(row, of);
    if (of.type == dbase::type::kDate) {
        return dateOf(text);
    }
    const bool isText =
        of.type == dbase::type::kText || (of.type == dbase::type::kLogical && text != "?");
    if (!isText || text.empty()) {
        return {};
    }
    return decodeCodePage(text, codePage_);
}

std::string DbaseView::text(std::int32_t row, int column) const {
    constexpr std::string_view kTextTypes = "CNFLD";
    const Column& of = at(column);
    return kTextTypes.find(of.type) == std::string_view::npos
               ? std::string()
               : decodeCodePage(cell(row, of), codePage_);
}

bool DbaseView::isTextColumn(int column) const {
    return at(column).type == dbase::type::kText;
}

}  // namespace campora
