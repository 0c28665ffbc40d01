// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <ostream>
#include <string_view>

#include <nlohmann/json.hpp>

namespace campora {

/// A JSON document; its members keep the order in which they are named. Texts may hold bytes that
/// are not UTF-8.
using Json = nlohmann::ordered_json;

/// The number whose shortest decimal text is that of the 32-bit float: 0.1, where the float itself
/// is 0.10000000149011612.
[[nodiscard]] double asDecimal(float number);

/// A measured figure without what rounding left behind its sixth decimal; null for none.
[[nodiscard]] Json figureJson(std::optional<double> value);

/// Writes a document (RFC 8259) as UTF-8, indented. Numbers come out as the shortest decimal text
/// that reads back as the same value, without exponents; not-a-number and infinities, which JSON
/// lacks, as 0. Bytes of texts that are not UTF-8 are taken for Windows-1252.
void printJson(const Json& document, std::ostream& out);

}  // namespace campora
