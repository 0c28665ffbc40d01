// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Lot files, from bytes to a layer, back, and merged.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/failure.h"
#include "lots/gph_lote.h"
#include "lots/lot.h"
#include "lots/merge_outlines.h"
#include "lots/ring_crossing.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    constexpr std::size_t kMostMerged = 200;
    try {
        const std::string_view bytes(reinterpret_cast<const char*>(data), size);
        const Lot lot = decodeLot(bytes);
        const Lot again = decodeLot(encodeLot(lot.vertices, lot.description));
        // Only coordinates of ten decimals are kept, and letters may be read in another code page.
        if (again.vertices.size() != lot.vertices.size() ||
            decodeLot(encodeLot(again.vertices, again.description)).vertices != again.vertices) {
            std::abort();  // what was written is not what was read
        }
        const GphLote layer(lot.vertices, lot.description);
        if (layer.Gph_bound().isSet == lot.vertices.empty()) {
            std::abort();
        }
        if (lot.vertices.size() <= kMostMerged) {
            static_cast<void>(ringCrossesItself(lot.vertices));
            for (const Ring& ring : mergeOutlines({&lot.vertices, 1}).rings) {
                if (ring.size() < 3) {
                    std::abort();  // no lot
                }
            }
        }
    } catch (const FormatError&) {
        // Said to the user; nothing to show.
    }
    return 0;
}
