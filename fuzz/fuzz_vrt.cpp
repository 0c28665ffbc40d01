// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// VRT files, from bytes to a layer and back.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>

#include "base/failure.h"
#include "presc/gph_vrt.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = std::as_bytes(std::span(data, size));
    if (!isVrtFile(bytes)) {
        return 0;
    }
    try {
        const VrtGrid grid = decodeVrt(bytes);
        const std::string again = encodeVrt(grid.header, grid.doses);
        if (decodeVrt(std::as_bytes(std::span(again.data(), again.size()))).doses != grid.doses) {
            std::abort();  // what was written is not what was read
        }
        const GphVRT layer("a.vrt", grid, {}, '.');
        if (layer.cellCount() < 1 || !layer.Gph_bound().isSet) {
            std::abort();  // a grid without cells reached the map
        }
    } catch (const FormatError&) {
        // Said to the user; nothing to show.
    }
    return 0;
}
