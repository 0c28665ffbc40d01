// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Work summaries, read and written back.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>
#include <vector>

#include "base/encoding.h"
#include "work/summary_file.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const FileProperties summary = decodeSummary(text);
    for (const SummaryEntry& entry : summary.entries()) {
        if (!isUtf8(entry.property) || !isUtf8(entry.value) || !isUtf8(entry.unit)) {
            std::abort();  // texts inside the program are UTF-8
        }
    }
    std::vector<SummaryEntry> rows;
    for (const SummaryEntry& entry : summary.entries()) {
        rows.push_back(
            {entry.property.substr(0, entry.property.size() - 1), entry.value, entry.unit});
    }
    if (decodeSummary(encodeSummary(rows, {.utf8 = true, .byteOrderMark = {}, .unread = {}}))
            .entries() != summary.entries()) {
        std::abort();  // an entry was lost or changed on the way to disk and back
    }
    return 0;
}
