// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/open_map.h"
#include "model/gph.h"
#include "platform/dialogs.h"

namespace campora {

/// Draws the files from the last to the first, but for `without`, which may be null, and marks
/// those too small to be seen.
void plotAll(const OpenMap& map, const MapContext& context, const File* without = nullptr);
/// All of them, with a word on how far it is between layers; false when the user has had enough.
[[nodiscard]] bool plotAll(const OpenMap& map, MapContext context, Progress& progress);

}  // namespace campora
