// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Track files of loggers.

#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <string_view>

#include "base/failure.h"
#include "work/track_log.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const std::string_view text(reinterpret_cast<const char*>(data), size);
    try {
        const TrackLog log = decodeTrackLog(text);
        if (!log.points.empty() && (log.passStarts.empty() || log.passStarts.front() != 0)) {
            std::abort();  // points outside of any pass
        }
    } catch (const FormatError&) {
        // Said to the user; nothing to build.
    }
    return 0;
}
