// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/texts.h"
#include "model/map_style.h"

namespace campora {

/// How layers are written for other programs.
struct GisForm {
    /// Under it, steps without flow may be left out.
    const MapStyle& style;
    /// With texts a column "alarms" holds the names of the alarms where reports keep any.
    const Texts* texts = nullptr;
};

}  // namespace campora
