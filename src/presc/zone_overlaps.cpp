// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/zone_overlaps.h"

#include <algorithm>
#include <cmath>
#include <span>

#include "model/ring_holes.h"
#include "presc/zone_raster.h"

namespace campora {

namespace {

constexpr double kShareOfSmaller = 0.01;
/// Places along each side of the common box: so many that some fall on the least common ground
/// that counts, within these bounds.
constexpr double kPlacesOnLeast = 12;
constexpr double kFewestPlaces = 8;
constexpr double kMostPlaces = 64;
/// Corners and places looked at: a second or two.
constexpr std::int64_t kMostWork = 100'000'000;

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

/// `least`: the smallest ground of interest, square degrees.
CellCentres placesIn(const BoundingBox& box, double least) {
    const double side =
        std::clamp(std::ceil(std::sqrt(kPlacesOnLeast * squareDegrees(box) / least)), kFewestPlaces,
                   kMostPlaces);
    CellCentres places;
    for (double i = 0; i < side; ++i) {
        const double part = (i + 0.5) / side;
        places.x.push_back(box.minX + part * (box.maxX - box.minX));
        places.y.push_back(box.minY + part * (box.maxY - box.minY));
    }
    return places;
}

/// Which of the places lie in the zone.
std::vector<std::int32_t> ownersOf(const GphPolygonMulti& zone, const CellCentres& places) {
    ChannelZones alone;
    alone.zones = std::span(&zone, 1);
    alone.order = {0};
    return *zonesUnder(alone, places, [](std::size_t /*done*/) { return true; });
}

/// The share of the places that lie in both zones.
double shareOfBoth(const GphPolygonMulti& a, const GphPolygonMulti& b, const CellCentres& places) {
    const std::vector<std::int32_t> inA = ownersOf(a, places);
    if (std::all_of(inA.begin(), inA.end(), [](std::int32_t owner) { return owner == kNoZone; })) {
        return 0;
    }
    const std::vector<std::int32_t> inB = ownersOf(b, places);
    std::size_t both = 0;
    for (std::size_t i = 0; i < inA.size(); ++i) {
        both += inA[i] != kNoZone && inB[i] != kNoZone ? 1 : 0;
    }
    return static_cast<double>(both) / static_cast<double>(inA.size());
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
            const CellCentres places = placesIn(box, least);
            work += corners[i] + corners[j] +
                    static_cast<std::int64_t>(places.x.size() * places.y.size());
            const bool isFirstLarger = areas[i] > areas[j];  // and likelier to be elsewhere
            const GphPolygonMulti& larger = zones[isFirstLarger ? i : j];
            const GphPolygonMulti& smaller = zones[isFirstLarger ? j : i];
            if (shareOfBoth(larger, smaller, places) * squareDegrees(box) > least) {
                pairs.emplace_back(static_cast<std::int32_t>(i) + 1, record + 1);
            }
        }
    }
    return pairs;
}

}  // namespace campora
