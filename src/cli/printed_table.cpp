// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/printed_table.h"

#include <algorithm>
#include <cstdint>

#include "base/numbers.h"
#include "base/plain_text.h"
#include "base/text.h"

namespace campora {

namespace {

std::string csvLine(std::span<const std::string> cells, char decimalSymbol) {
    const char separator = decimalSymbol == ',' ? ';' : ',';
    const std::string special = std::string("\"\r\n") + separator;
    std::string line;
    bool isFirst = true;
    for (const std::string& cell : cells) {
        if (!isFirst) {
            line.push_back(separator);
        }
        isFirst = false;
        if (cell.find_first_of(special) == std::string::npos) {
            line += cell;
        } else {
            line.append("\"").append(replaceAll(cell, "\"", "\"\"")).append("\"");
        }
    }
    return line.append("\r\n");
}

std::string csvCell(const Json& value, char symbol) {
    if (value.is_null()) {
        return {};
    }
    if (value.is_string()) {
        return value.get<std::string>();
    }
    return value.is_number_float() ? numberText(value.get<double>(), symbol)
                                   : numberText(value.get<std::uint64_t>());
}

/// Characters, of UTF-8.
std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (byte & '\xC0') != '\x80'; }));
}

}  // namespace

void printCsv(const Json& rows, const Json& form, char decimalSymbol, std::ostream& out) {
    std::vector<std::string> cells;
    for (const auto& member : form.items()) {
        cells.push_back(member.key());
    }
    out << csvLine(cells, decimalSymbol);
    for (const Json& row : rows) {
        std::transform(row.begin(), row.end(), cells.begin(), [decimalSymbol](const Json& value) {
            return csvCell(value, decimalSymbol);
        });
        out << csvLine(cells, decimalSymbol);
    }
}

void printTable(std::span<const std::vector<std::string>> lines,
                const std::function<bool(std::size_t column)>& isFigure, std::ostream& out) {
    std::vector<std::size_t> widths(lines.front().size());
    for (const std::vector<std::string>& cells : lines) {
        for (std::size_t column = 0; column < widths.size(); ++column) {
            widths[column] = std::max(widths[column], widthOf(cells[column]));
        }
    }
    for (const std::vector<std::string>& cells : lines) {
        std::string line;
        for (std::size_t column = 0; column < widths.size(); ++column) {
            const std::string room(widths[column] - widthOf(cells[column]), ' ');
            const bool isRight = isFigure(column);
            line.append(isRight ? room : "").append(cells[column]).append(isRight ? "" : room);
            line.append("  ");
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

void printFigures(std::span<const NamedFigure> figures, std::ostream& out) {
    for (const NamedFigure& figure : figures) {
        out << plainLine(figure.name + ": " + figure.value) << '\n';
    }
}

}  // namespace campora
