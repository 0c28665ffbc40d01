// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "presc/channel_zones.h"
#include "presc/gph_presc.h"

namespace campora {

/// A layer as grids are made of it, with the doses that its zones have now.
[[nodiscard]] ChannelZones zonesOf(const GphPresc& presc);

}  // namespace campora
