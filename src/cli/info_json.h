// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/open_map.h"
#include "cli/json_document.h"

namespace campora {

/// All that is open as one object: "files" in list order, each with its summary, layers and scale,
/// and the "ranges" of the values loaded. What has never been set is null; dates are yyyy-mm-dd,
/// colours "#RRGGBB", positions degrees.
[[nodiscard]] Json infoJson(const OpenMap& map);

}  // namespace campora
