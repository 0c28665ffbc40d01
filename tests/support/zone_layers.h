// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <initializer_list>
#include <numeric>
#include <span>
#include <utility>
#include <vector>

#include "presc/channel_zones.h"

namespace campora {

/// Zones of a channel made by hand; a search hands them out in the order in which they were added.
struct ZoneLayer {
    std::vector<GphPolygonMulti> zones;
    float meanDose = 0;

    void add(float dose, std::initializer_list<std::vector<LonLat>> outers,
             std::initializer_list<std::vector<LonLat>> holes = {}) {
        GphPolygonMulti zone;
        zone.dosis = dose;
        for (const bool isHole : {false, true}) {
            for (const std::vector<LonLat>& points : isHole ? holes : outers) {
                GphPolygon ring;
                ring.isHole = isHole;
                for (const LonLat& point : points) {
                    ring.addPoint(point.x, point.y);
                }
                zone.addPolygon(std::move(ring));
            }
        }
        zones.push_back(std::move(zone));
    }

    [[nodiscard]] ChannelZones channel() const {
        ChannelZones channel{zones, std::vector<std::int32_t>(zones.size()), {}, meanDose};
        std::iota(channel.order.begin(), channel.order.end(), 0);
        for (const GphPolygonMulti& zone : zones) {
            if (zone.Gph_bound().isSet) {
                channel.bound.addBoundingBox(zone.Gph_bound());
            }
        }
        return channel;
    }
};

/// The corners of a rectangle, in order.
inline std::vector<LonLat> rectangleRing(double minX, double minY, double maxX, double maxY) {
    return {{minX, minY}, {minX, maxY}, {maxX, maxY}, {maxX, minY}};
}

}  // namespace campora
