// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/layer_zones.h"

namespace campora {

ChannelZones zonesOf(const GphPresc& presc) {
    const SetList* const doses = presc.currentDosisSet();
    return {presc.polygons(), presc.searchOrder(), presc.Gph_bound(),
            doses != nullptr ? doses->getRealAverage() : 0, presc.File_diskPath()};
}

}  // namespace campora
