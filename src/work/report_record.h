// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/lon_lat.h"
#include "work/track_data_rpt.h"

namespace campora {

/// One record of a report or of its text table, before it is known whether it comes onto the map.
struct ReportRecord {
    LonLat position;
    TrackDataRPT::Fields fields;
};

}  // namespace campora
