// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Text tables of reports, in both forms and with both decimal symbols.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "work/rpt_text_table.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const RptTextTable table = splitTable(text);
    for (const TableForm form : {TableForm::FourColumns, TableForm::EightColumns}) {
        for (const char symbol : {'.', ','}) {
            for (const ReportRecord& record :
                 decodeRecords(table.records, form, symbol, 16).records) {
                const auto [x, y] = record.position;
                if (!(x >= -180 && x <= 180 && y >= -90 && y <= 90)) {
                    std::abort();  // a position off the globe reached the map
                }
            }
        }
    }
    return 0;
}
