// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>

namespace campora {

/// A line of comma-separated values (RFC 4180), its line end with it. The separator is ";" where
/// the comma is the decimal symbol.
[[nodiscard]] std::string csvLine(std::span<const std::string> cells, char decimalSymbol);

}  // namespace campora
