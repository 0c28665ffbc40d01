// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_pre.h"

#include <cmath>
#include <utility>

#include "base/numbers.h"
#include "model/geodesy.h"
#include "model/grid_geometry.h"
#include "presc/channel_summary.h"

namespace campora {

namespace {

GridCells cellsOf(PreGrid grid) {
    const PreHeader& header = grid.header;
    const double north = decodePreCoordinate(header.latitude);
    const double west = decodePreCoordinate(header.longitude);
    const double metres = header.cellSize;
    const double perDegree = wholeMetresPerDegree(north);
    GridCells cells;
    for (int column = 0; column < header.columns; ++column) {
        cells.columnX.push_back(west + metres * column / perDegree);
    }
    for (int row = 0; row < header.rows; ++row) {
        cells.rowY.push_back(north - metres * row / METERS_PER_DEGREE);
    }
    cells.metres = metres;
    cells.channels = header.channels;
    cells.doses = std::move(grid.doses);
    return cells;
}

}  // namespace

GphPRE::GphPRE(std::string_view path, PreGrid grid, Color background, char symbol)
    : GridLayer(path, cellsOf(std::move(grid)), background) {
    summary_.addProperty("Ancho Labor", summaryFigure(cellMetres(), symbol), "mts");
    summary_.addProperty("Cant. de Canales", numberText(channelsCnt()), "");
    addChannelEntries(symbol);
}

}  // namespace campora
