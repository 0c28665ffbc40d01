// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>

#include "app/open_map.h"
#include "model/file.h"

namespace campora {

/// A record of an open file: its number from 0 over all passes of `workLayers`.
struct WorkPlace {
    const File* file = nullptr;
    std::size_t record = 0;
};

/// The position in the replay of the open map at which a record is replayed; the last record of a
/// pass is that of the step before it. None for what is not open.
[[nodiscard]] std::optional<std::int32_t> replayPosition(const OpenMap& map,
                                                         const WorkPlace& place);
/// The record that is replayed at a position; none beyond the last.
[[nodiscard]] std::optional<WorkPlace> placeInWork(const OpenMap& map, std::int32_t position);

}  // namespace campora
