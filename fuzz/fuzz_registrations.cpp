// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Registration tables.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "work/registrations.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    const RegistrationTable table = decodeRegistrations(text);
    if (table.badLines.size() > RegistrationTable::kMostLinesNamed) {
        std::abort();
    }
    return 0;
}
