// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>

#include "support/work_files.h"

namespace campora {

/// Parallel passes, usually of 1 km, a record every two metres and two seconds, doses that differ.
/// At most a million records: one month.
inline std::string largeReport(int records, int perPass = 500) {
    RptBytes report(1);
    report.reserve(static_cast<std::size_t>(records));
    for (int i = 0; i < records; ++i) {
        const int pass = i / perPass;
        const int along = pass % 2 == 0 ? i % perPass : perPass - 1 - i % perPass;
        RptBytes::Record record;
        record.position = fixAt(2.0 * along, 20.0 * pass);
        record.realTenths[0] = 900 + i % 13 * 20;
        const int second = 2 * i % 86'400;
        record.time = {{2018, 3, 1 + 2 * i / 86'400},
                       {second / 3600, second / 60 % 60, second % 60}};
        report.add(record);
    }
    return report.bytes();
}

}  // namespace campora
