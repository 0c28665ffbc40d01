// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include "model/geodesy.h"
#include "work/track_data_nbr.h"
#include "work/track_data_rpt.h"

namespace campora {

/// A report's record with one channel, specified dose 100.
inline TrackDataRPT::Fields reportFields(std::int32_t real, float swath = 20) {
    TrackDataRPT::Fields fields;
    fields.real[0] = real;
    fields.spec[0] = 100;
    fields.swath = swath;
    return fields;
}

inline TrackDataRPT reportRecord(std::int32_t real, float swath = 20) {
    return TrackDataRPT(reportFields(real, swath));
}

inline TrackDataNBR loggerRecord(float flow, float speed = 200, float swath = 20,
                                 const LoggerSource& source = {}) {
    return {flow, speed, swath, std::make_shared<const LoggerSource>(source)};
}

/// A position near (0, 0), where a degree is equally long both ways, in metres east and north.
inline LonLat atMetres(double east, double north) {
    return {east / METERS_PER_DEGREE, north / METERS_PER_DEGREE};
}

}  // namespace campora
