// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// dBASE tables.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <string>
#include <variant>

#include "base/encoding.h"
#include "base/failure.h"
#include "presc/dbase_view.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    try {
        const DbaseView table(std::as_bytes(std::span(data, size)));
        // One row before those that are there, and mostly some behind them.
        constexpr std::int32_t kMost = 300;
        for (std::int32_t row = -1; row < kMost; ++row) {
            for (int column = 0; column < table.fieldCount(); ++column) {
                const CellValue value = table.value(row, column);
                const auto* const text = std::get_if<std::string>(&value);
                const std::optional<double> number = table.number(row, column);
                if ((text != nullptr && !isUtf8(*text)) || (number && !std::isfinite(*number))) {
                    std::abort();  // neither text nor number
                }
            }
        }
    } catch (const FormatError&) {
        // Said to the user; the map is shown without a table.
    }
    return 0;
}
