// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The heads of track files, as work orders read them.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/encoding.h"
#include "work/work_orders.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view head(reinterpret_cast<const char*>(data), size);
    if (const auto header = decodeOrderHeader(head)) {
        if (!isUtf8(header->date) || !isUtf8(header->startTime)) {
            std::abort();  // texts inside the program are UTF-8
        }
    }
    return 0;
}
