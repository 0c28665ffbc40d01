// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/csv_table.h"

#include "base/text.h"

namespace campora {

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

}  // namespace campora
