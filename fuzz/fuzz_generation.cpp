// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Grids for the consoles from arbitrary zones, compared cell by cell with a search at each centre.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <numeric>
#include <string>
#include <utility>
#include <vector>

#include <fuzzer/FuzzedDataProvider.h>

#include "base/files.h"
#include "base/numbers.h"
#include "model/geodesy.h"
#include "model/grid_geometry.h"
#include "platform/quiet_dialogs.h"
#include "presc/generation.h"
#include "presc/pre_grid.h"
#include "presc/vrt_grid.h"
#include "presc/zone_raster.h"
#include "rtree/tree_units.h"
#include "support/file_set.h"
#include "support/scratch_folder.h"
#include "support/stop.h"
#include "support/watched_platform.h"

using namespace campora;

namespace {

/// Zones of a field of some two kilometres; corners fall on each other often.
struct Zones {
    std::vector<GphPolygonMulti> zones;
    std::vector<std::int32_t> order;

    explicit Zones(FuzzedDataProvider& input) {
        constexpr double kStep = 1e-4;  // degrees
        const LonLat corner{input.ConsumeFloatingPointInRange(-179.0, 178.0),
                            input.ConsumeFloatingPointInRange(-85.0, 84.0)};
        const std::size_t count = input.ConsumeIntegralInRange<std::size_t>(0, 6);
        for (std::size_t i = 0; i < count; ++i) {
            GphPolygonMulti zone;
            zone.dosis = input.ConsumeBool()
                             ? static_cast<float>(input.ConsumeIntegral<std::int8_t>())
                             : input.ConsumeFloatingPointInRange(-400.0F, 40000.0F);
            const int rings = input.ConsumeIntegralInRange(0, 3);
            for (int r = 0; r < rings; ++r) {
                GphPolygon ring;
                ring.isHole = r > 0 && input.ConsumeBool();
                const int points = input.ConsumeIntegralInRange(0, 7);
                for (int p = 0; p < points; ++p) {
                    const int east = input.ConsumeIntegral<std::uint8_t>();
                    const int north = input.ConsumeIntegral<std::uint8_t>();
                    ring.addPoint(corner.x + kStep * east, corner.y + kStep * north);
                }
                zone.addPolygon(std::move(ring));
            }
            if (zone.Gph_bound().isSet) {
                const auto place = input.ConsumeIntegralInRange<std::size_t>(0, order.size());
                order.insert(order.begin() + static_cast<std::ptrdiff_t>(place),
                             static_cast<std::int32_t>(zones.size()));
            }
            zones.push_back(std::move(zone));
        }
    }

    [[nodiscard]] ChannelZones channel() const {
        ChannelZones channel;
        channel.zones = zones;
        channel.order = order;
        for (const GphPolygonMulti& zone : zones) {
            channel.meanDose += zone.dosis / static_cast<float>(zones.size());
            if (zone.Gph_bound().isSet) {
                channel.bound.addBoundingBox(zone.Gph_bound());
            }
        }
        return channel;
    }

    /// Zone by zone, as a click on the map looks for it.
    [[nodiscard]] const GphPolygonMulti* at(LonLat position) const {
        const GphPolygonMulti* found = nullptr;
        const std::int32_t x = treeUnits(position.x);
        const std::int32_t y = treeUnits(position.y);
        for (const std::int32_t index : order) {
            const GphPolygonMulti& zone = zones[static_cast<std::size_t>(index)];
            const BoundingBox& box = zone.Gph_bound();
            if (x >= treeUnits(box.minX) && x <= treeUnits(box.maxX) && y >= treeUnits(box.minY) &&
                y <= treeUnits(box.maxY) && zone.ringAt(position) >= 0) {
                found = &zone;
            }
        }
        return found;
    }
};

/// What the two formats have in common.
struct Grid {
    CellCentres centres;
    std::size_t channels = 0;
    std::vector<std::int16_t> doses;
    double steps = 1;  // in a unit of dose
    bool isPre = false;
};

void expectDoses(const Grid& grid, const std::vector<Zones>& channels,
                 const std::vector<ChannelZones>& views) {
    if (grid.channels != channels.size() ||
        grid.doses.size() != grid.centres.x.size() * grid.centres.y.size() * grid.channels) {
        stop("a grid of another size");
    }
    std::size_t cell = 0;
    for (const double y : grid.centres.y) {
        for (const double x : grid.centres.x) {
            for (std::size_t channel = 0; channel < channels.size(); ++channel, ++cell) {
                const GphPolygonMulti* const zone = channels[channel].at({x, y});
                // The quiet user takes the mean that is proposed.
                const double fallback =
                    grid.isPre ? std::floor(static_cast<double>(views[channel].meanDose)) : 0;
                const double dose =
                    zone == nullptr ? fallback : static_cast<double>(zone->dosis) * grid.steps;
                if (grid.doses[cell] != static_cast<std::int16_t>(roundHalfEven(dose))) {
                    stop("a cell has another dose than the zone under it", std::to_string(cell));
                }
            }
        }
    }
}

CellCentres centresFrom(LonLat origin, double perDegreeX, double metres, int columns, int rows,
                        double down) {
    CellCentres centres;
    for (int column = 0; column < columns; ++column) {
        centres.x.push_back(origin.x + (metres * column + metres / 2) / perDegreeX);
    }
    for (int row = 0; row < rows; ++row) {
        centres.y.push_back(origin.y + down * (metres * row + metres / 2) / METERS_PER_DEGREE);
    }
    return centres;
}

/// The grid has a margin of two cells and begins in the north-west, the VRT's in the south-west.
Grid readPre(const FileBytes& bytes, const BoundingBox& bound, int metres) {
    const PreGrid grid = decodePre(bytes.bytes());
    const double perDegree = wholeMetresPerDegree(bound.maxY);
    const LonLat origin{bound.minX - 2.0 * metres / perDegree,
                        bound.maxY + 2.0 * metres / METERS_PER_DEGREE};
    return {centresFrom(origin, perDegree, metres, grid.header.columns, grid.header.rows, -1),
            static_cast<std::size_t>(grid.header.channels), grid.doses, 1, true};
}

Grid readVrt(const FileBytes& bytes, const BoundingBox& bound, float metres) {
    const VrtGrid grid = decodeVrt(bytes.bytes());
    const LonLat origin{static_cast<double>(grid.header.x0), static_cast<double>(grid.header.y0)};
    return {centresFrom(origin, wholeMetresPerDegree(bound.minY), static_cast<double>(metres),
                        grid.header.columns, grid.header.rows, 1),
            static_cast<std::size_t>(grid.header.channels), grid.doses, VrtGrid::kDoseUnits, false};
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder out("grids");
    FuzzedDataProvider input(data, size);
    const bool asPre = input.ConsumeBool();
    const int metres = input.ConsumeIntegralInRange(40, 300);
    const float resolution = input.ConsumeFloatingPointInRange(40.0F, 300.0F);
    std::vector<Zones> zones;
    const int count = input.ConsumeIntegralInRange(1, 4);
    for (int i = 0; i < count; ++i) {
        zones.emplace_back(input);
    }
    std::vector<ChannelZones> channels;
    BoundingBox bound;
    for (const Zones& each : zones) {
        channels.push_back(each.channel());
        if (channels.back().bound.isSet) {
            bound.addBoundingBox(channels.back().bound);
        }
    }
    // Channels far from each other make grids that take long to search cell by cell.
    if (bound.isSet && (bound.maxX - bound.minX > 0.2 || bound.maxY - bound.minY > 0.2)) {
        return -1;
    }
    const FileSet noChoices({});
    WatchedDialogs dialogs(noChoices);
    const ChosenLocale locale(noChoices);
    const Texts texts;
    const Desk desk{dialogs, texts, locale};
    const std::string path = out.file(asPre ? "a.pre" : "a.vrt");
    out.clear();
    const bool written = (asPre ? generatePRE(path, metres, channels, desk)
                                : generateVRT(path, resolution, {"a", ""}, channels, desk))
                             .has_value();
    if (dialogs.said() == 0) {
        stop("a prescription neither saved nor refused");
    }
    if (!written) {
        if (!out.names().empty()) {
            stop("leftover", *out.names().begin());
        }
        return 0;
    }
    const Result<FileBytes> file = readFile(path);
    expectDoses(asPre ? readPre(*file, bound, metres) : readVrt(*file, bound, resolution), zones,
                channels);
    return 0;
}
