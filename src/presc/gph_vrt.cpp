// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_vrt.h"

#include <utility>

#include "base/numbers.h"
#include "model/geodesy.h"
#include "model/grid_geometry.h"
#include "presc/channel_summary.h"

namespace campora {

namespace {

/// Digits of the resolution, which is kept in single precision.
constexpr int kResolutionDigits = 7;

GridCells cellsOf(const VrtHeader& header, std::vector<std::int16_t> doses) {
    const double west = header.x0;
    const double south = header.y0;
    const double metres = header.resolution;
    const double stepX = metres / wholeMetresPerDegree(south);
    const double stepY = metres / METERS_PER_DEGREE;
    GridCells cells;
    for (std::int32_t column = 0; column < header.columns; ++column) {
        cells.columnX.push_back(west + column * stepX);
    }
    for (std::int32_t row = 0; row < header.rows; ++row) {
        cells.rowY.push_back(south + row * stepY);
    }
    cells.northward = true;
    cells.metres = metres;
    cells.channels = header.channels;
    cells.doses = std::move(doses);
    cells.doseSteps = static_cast<int>(VrtGrid::kDoseUnits);
    return cells;
}

}  // namespace

GphVRT::GphVRT(std::string_view path, VrtGrid grid, Color background, char symbol)
    : GridLayer(path, cellsOf(grid.header, std::move(grid.doses)), background) {
    summary_.addProperty("Nombre", grid.header.name, "");
    summary_.addProperty("Descripcion", grid.header.description, "");
    summary_.addProperty("Resolución",
                         summaryFigure(grid.header.resolution, symbol, kResolutionDigits), "mts");
    summary_.addProperty("Cant. de Canales", numberText(channelsCnt()), "");
    addChannelEntries(symbol);
}

}  // namespace campora
