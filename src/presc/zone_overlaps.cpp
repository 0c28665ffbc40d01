// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/zone_overlaps.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <span>

#include "presc/ring_holes.h"
#include "presc/zone_raster.h"

namespace campora {

namespace {

constexpr double kShareOfSmaller = 0.01;
constexpr std::size_t kPlaces = 64;  // along each side of the common box
/// Corners and places looked at: a second or two.
constexpr std::int64_t kMostWork = 300'000'000;

BoundingBox common(const BoundingBox& a, const BoundingBox& b) {
    BoundingBox box;
    const double minX = std::max(a.minX, b.minX);
    const double minY = std::max(a.minY, b.minY);
    const double maxX = std::min(a.maxX, b.maxX);
    const double maxY = std::min(a.maxY, b.maxY);
    if (minX < maxX && minY < maxY) {
        box.addPoint(minX, minY);
        box.addPoint(maxX, maxY);
    }
    return box;
}

double squareDegrees(const BoundingBox& box) {
    return box.isSet ? (box.maxX - box.minX) * (box.maxY - box.minY) : 0;
}

double squareDegrees(const GphPolygonMulti& zone) {
    double twice = 0;
    for (const GphPolygon& ring : zone.rings()) {
        const double area = std::abs(twiceRingArea(ring.points()));
        twice += ring.isHole ? -area : area;
    }
    return twice / 2;
}

std::int64_t cornersOf(const GphPolygonMulti& zone) {
    std::int64_t corners = 0;
    for (const GphPolygon& ring : zone.rings()) {
        corners += static_cast<std::int64_t>(ring.points().size());
    }
    return corners;
}

CellCentres placesIn(const BoundingBox& box) {
    CellCentres places;
    for (std::size_t i = 0; i < kPlaces; ++i) {
        const double part = (static_cast<double>(i) + 0.5) / kPlaces;
        places.x.push_back(box.minX + part * (box.maxX - box.minX));
        places.y.push_back(box.minY + part * (box.maxY - box.minY));
    }
    return places;
}

/// The share of the places that lie in both zones.
double shareOfBoth(const GphPolygonMulti& a, const GphPolygonMulti& b, const CellCentres& places) {
    std::array<std::vector<std::int32_t>, 2> owners;
    const GphPolygonMulti* zone = &a;
    for (std::vector<std::int32_t>& of : owners) {
        ChannelZones alone;
        alone.zones = std::span(zone, 1);
        alone.order = {0};
        of = *zonesUnder(alone, places, [](std::size_t /*done*/) { return true; });
        zone = &b;
    }
    std::size_t both = 0;
    for (std::size_t i = 0; i < owners[0].size(); ++i) {
        both += owners[0][i] != kNoZone && owners[1][i] != kNoZone ? 1 : 0;
    }
    return static_cast<double>(both) / static_cast<double>(kPlaces * kPlaces);
}

}  // namespace

std::vector<std::pair<std::int32_t, std::int32_t>> overlappingZones(const GphPresc& map,
                                                                    std::size_t most) {
    std::vector<std::pair<std::int32_t, std::int32_t>> pairs;
    const std::vector<GphPolygonMulti>& zones = map.polygons();
    std::vector<double> areas;
    std::vector<std::int64_t> corners;
    for (const GphPolygonMulti& zone : zones) {
        areas.push_back(squareDegrees(zone));
        corners.push_back(cornersOf(zone));
    }
    std::int64_t work = 0;
    for (std::size_t i = 0; i < zones.size(); ++i) {
        if (!zones[i].isZone() || !zones[i].Gph_bound().isSet) {
            continue;
        }
        std::vector<std::int32_t> near = map.recordsNear(zones[i].Gph_bound());
        std::sort(near.begin(), near.end());
        for (const std::int32_t record : near) {
            const auto j = static_cast<std::size_t>(record);
            if (++work > kMostWork || pairs.size() == most) {
                return pairs;
            }
            if (j <= i || !zones[j].isZone()) {
                continue;
            }
            const double least = kShareOfSmaller * std::min(areas[i], areas[j]);
            const BoundingBox box = common(zones[i].Gph_bound(), zones[j].Gph_bound());
            if (squareDegrees(box) <= least || least <= 0) {
                continue;
            }
            work += corners[i] + corners[j] + static_cast<std::int64_t>(kPlaces * kPlaces);
            if (shareOfBoth(zones[i], zones[j], placesIn(box)) * squareDegrees(box) > least) {
                pairs.emplace_back(static_cast<std::int32_t>(i) + 1, record + 1);
            }
        }
    }
    return pairs;
}

}  // namespace campora
