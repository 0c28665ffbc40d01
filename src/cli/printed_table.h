// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <ostream>
#include <span>
#include <string>
#include <vector>

#include "app/named_figure.h"
#include "cli/json_document.h"

namespace campora {

/// Comma-separated values (RFC 4180): the members of `form` as headings, and those of the rows
/// under them, null as nothing. The separator is ";" where the comma is the decimal symbol.
void printCsv(const Json& rows, const Json& form, char decimalSymbol, std::ostream& out);

/// For a person: columns side by side, as wide as their widest cell. The lines are of one length,
/// the first is the headings. `isFigure`: whether a column stands at the right.
void printTable(std::span<const std::vector<std::string>> lines,
                const std::function<bool(std::size_t column)>& isFigure, std::ostream& out);

/// "name: value", one a line.
void printFigures(std::span<const NamedFigure> figures, std::ostream& out);

}  // namespace campora
