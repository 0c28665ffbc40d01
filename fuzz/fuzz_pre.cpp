// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// PRE files, from bytes to a layer and back.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "base/failure.h"
#include "presc/gph_pre.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = std::as_bytes(std::span(data, size));
    if (!isPreFile(bytes)) {
        return 0;
    }
    try {
        const PreGrid grid = decodePre(bytes);
        const std::string again = encodePre(grid.header, grid.doses);
        if (decodePre(std::as_bytes(std::span(again.data(), again.size()))).doses != grid.doses) {
            std::abort();  // what was written is not what was read
        }
        const GphPRE layer("a.pre", grid, {}, '.');
        if (layer.cellCount() < 1 || !layer.Gph_bound().isSet) {
            std::abort();  // a grid without cells reached the map
        }
    } catch (const FormatError&) {
        // Said to the user; nothing to show.
    }
    return 0;
}
