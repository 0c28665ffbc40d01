// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "support/shape_bytes.h"
#include "support/temp_folder.h"

namespace campora {

/// A square with its sides along the degrees, clockwise as outlines run.
[[nodiscard]] inline ShapeBytes::Ring squareAt(LonLat corner, double side) {
    const auto [x, y] = corner;
    return {{x, y}, {x, y + side}, {x + side, y + side}, {x + side, y}, {x, y}};
}

[[nodiscard]] inline ShapeBytes::Ring holeAt(LonLat corner, double side) {
    const ShapeBytes::Ring ring = squareAt(corner, side);
    return {ring.rbegin(), ring.rend()};
}

/// A map of zones with a table of text columns, whose cells may hold numbers.
struct ZoneMap {
    struct Zone {
        std::vector<ShapeBytes::Ring> rings;
        std::vector<std::string> cells;
    };

    std::vector<std::string> columns;
    std::vector<Zone> zones;

    /// Writes `name`.shp and `name`.dbf and answers the path of the first.
    std::string write(const TempFolder& folder, const std::string& name) const {
        std::vector<DbaseBytes::Column> described;
        for (const std::string& column : columns) {
            described.push_back({column, 'C', 20, 0});
        }
        ShapeBytes shapes(5);
        DbaseBytes table(described);
        for (const Zone& zone : zones) {
            if (zone.rings.empty()) {
                shapes.addNull();
            } else {
                shapes.addPolygon(zone.rings);
            }
            table.addRow(zone.cells);
        }
        folder.write(name + ".dbf", table.bytes());
        return folder.write(name + ".shp", shapes.bytes());
    }
};

/// Zones 0.01 degrees wide side by side from `corner` to the east, one a dose, with the columns
/// "DOSIS" and "NOMBRE", which is no number.
[[nodiscard]] inline ZoneMap rowOfZones(const std::vector<std::string>& doses,
                                        LonLat corner = {-60, -33}) {
    ZoneMap map{{"DOSIS", "NOMBRE"}, {}};
    for (std::size_t i = 0; i < doses.size(); ++i) {
        const LonLat at{corner.x + 0.01 * static_cast<double>(i), corner.y};
        map.zones.push_back({{squareAt(at, 0.01)}, {doses[i], "zona " + std::to_string(i)}});
    }
    return map;
}

}  // namespace campora
