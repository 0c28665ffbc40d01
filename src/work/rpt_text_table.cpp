// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/rpt_text_table.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <limits>
#include <optional>
#include <span>

#include "base/lon_lat.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace campora {

namespace {

constexpr std::size_t kFourColumns = 4;
constexpr std::size_t kEightColumns = 8;
using FieldTexts = std::array<std::string_view, kEightColumns>;

/// Puts the first `wanted` fields of a line into `fields`; false when there are fewer.
bool splitFields(std::string_view line, std::size_t wanted, FieldTexts& fields) {
    for (std::size_t i = 0; i < wanted; ++i) {
        const std::size_t end = line.find('\t');
        fields[i] = trim(line.substr(0, end));
        if (end == std::string_view::npos) {
            return i + 1 == wanted;
        }
        line.remove_prefix(end + 1);
    }
    return true;
}

/// The numbers of one line, which all have the same decimal symbol.
class LineNumbers {
public:
    LineNumbers(const FieldTexts& fields, char decimalSymbol)
        : fields_(fields),
          symbol_(fields[0].find('.') == std::string_view::npos ? decimalSymbol : '.') {}

    [[nodiscard]] std::optional<double> number(std::size_t column) const {
        return leadingNumber(fields_[column], symbol_);
    }
    [[nodiscard]] std::int32_t whole(std::size_t column) const {
        return roundToInt32(number(column).value_or(0));
    }
    [[nodiscard]] float real(std::size_t column) const {
        constexpr double kMost = std::numeric_limits<float>::max();
        return static_cast<float>(std::clamp(number(column).value_or(0), -kMost, kMost));
    }

private:
    const FieldTexts& fields_;
    char symbol_;
};

std::optional<LonLat> positionOf(const LineNumbers& line) {
    const std::optional<double> longitude = line.number(0);
    const std::optional<double> latitude = line.number(1);
    return longitude && latitude ? std::optional(LonLat{*longitude, *latitude}) : std::nullopt;
}

/// 0 to 255, the nearest one for what lies beyond.
int byteValue(std::int32_t value) {
    return std::clamp(value, 0, 255);
}

/// "hours:minutes:seconds"; a part that is missing is 0.
TimeOfDay readTimeOfDay(std::string_view text) {
    std::array<int, 3> parts{};
    for (int& part : parts) {
        const std::size_t end = text.find(':');
        part = byteValue(roundToInt32(leadingNumber(text.substr(0, end)).value_or(0)));
        if (end == std::string_view::npos) {
            break;
        }
        text.remove_prefix(end + 1);
    }
    return {parts[0], parts[1], parts[2]};
}

TrackDataRPT::Fields readFields(const FieldTexts& texts, const LineNumbers& line, TableForm form,
                                float swathMetres) {
    TrackDataRPT::Fields fields;
    fields.kind = WorkKind::Sprayer;
    fields.real[0] = line.whole(2);
    if (form == TableForm::FourColumns) {
        fields.speed = line.real(3);
        fields.swath = swathMetres;
        return fields;
    }
    fields.spec[0] = line.whole(3);
    fields.speed = line.real(4);
    fields.code = static_cast<std::uint8_t>(byteValue(line.whole(5)));
    fields.swath = static_cast<float>(line.real(6) / 100.0);
    fields.time = readTimeOfDay(texts[7]);
    return fields;
}

}  // namespace

RptTextTable splitTable(std::string_view text) {
    TextLines lines(text);
    std::string_view line;
    if (!lines.next(line) || !lines.next(line)) {
        return {};
    }
    const auto tabs = static_cast<std::size_t>(std::count(line.begin(), line.end(), '\t'));
    const auto end = static_cast<std::size_t>(line.data() + line.size() - text.data());
    return {tabs + 1, text.substr(std::min(text.find('\n', end), text.size()))};
}

TableRecords decodeRecords(std::string_view records, TableForm form, char decimalSymbol,
                           float swathMetres) {
    const std::size_t columns = form == TableForm::FourColumns ? kFourColumns : kEightColumns;
    // The records begin with the end of the headings' line, the second of the file.
    constexpr std::size_t kLinesBefore = 1;
    TableRecords decoded;
    TextLines lines(records);
    FieldTexts fields;
    for (std::string_view line; lines.next(line);) {
        if (trim(line).empty()) {
            continue;
        }
        const std::size_t lineNumber = lines.lineNumber() + kLinesBefore;
        const std::optional<LonLat> position = splitFields(line, columns, fields)
                                                   ? positionOf(LineNumbers(fields, decimalSymbol))
                                                   : std::nullopt;
        if (!position) {
            decoded.unreadFrom = lineNumber;
            break;
        }
        if (std::abs(position->x) > kDateLine || std::abs(position->y) > kPole) {
            decoded.offGlobe.add(lineNumber);
            continue;
        }
        const LineNumbers numbers(fields, decimalSymbol);
        decoded.records.push_back({*position, readFields(fields, numbers, form, swathMetres)});
    }
    return decoded;
}

}  // namespace campora
