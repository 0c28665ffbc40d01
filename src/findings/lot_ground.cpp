// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/lot_ground.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

namespace campora {

namespace {

/// Lines for which the sides are looked through at once.
constexpr int kBlock = 128;
constexpr double kMostLines = 200'000;

/// Pieces from the left, those that meet joined.
std::vector<LotGround::Piece> joined(std::vector<LotGround::Piece> pieces) {
    std::sort(pieces.begin(), pieces.end(),
              [](const auto& a, const auto& b) { return a.from < b.from; });
    std::vector<LotGround::Piece> all;
    for (const LotGround::Piece& piece : pieces) {
        if (!all.empty() && piece.from <= all.back().to) {
            all.back().to = std::max(all.back().to, piece.to);
        } else {
            all.push_back(piece);
        }
    }
    return all;
}

}  // namespace

LotGround::LotGround(const GroundLattice& lattice, std::span<const LotRing> rings)
    : lattice_(lattice) {
    for (std::size_t ring = 0; ring < rings.size(); ++ring) {
        for (std::size_t i = 0; i < rings[ring].size(); ++i) {
            const LatticePoint a = lattice.at(rings[ring][i]);
            const LatticePoint b = lattice.at(rings[ring][(i + 1) % rings[ring].size()]);
            sides_.push_back(a.v <= b.v ? Side{ring, a, b} : Side{ring, b, a});
        }
    }
}

std::vector<LotGround::Piece> LotGround::piecesAt(double v, std::span<const Side> sides) {
    std::vector<std::pair<std::size_t, double>> met;
    for (const Side& side : sides) {
        if (side.low.v <= v && v < side.high.v) {
            const double part = (v - side.low.v) / (side.high.v - side.low.v);
            met.emplace_back(side.ring, side.low.u + part * (side.high.u - side.low.u));
        }
    }
    // Each ring is met an even number of times.
    std::sort(met.begin(), met.end());
    std::vector<Piece> pieces;
    for (std::size_t i = 0; i + 1 < met.size(); i += 2) {
        pieces.push_back({met[i].second, met[i + 1].second});
    }
    return joined(std::move(pieces));
}

void LotGround::scan(double first, double step, int lines, const Visit& visit) const {
    std::vector<Side> near;
    for (int block = 0; block < lines; block += kBlock) {
        const int end = std::min(lines, block + kBlock);
        near.clear();
        std::copy_if(sides_.begin(), sides_.end(), std::back_inserter(near), [&](const Side& side) {
            return side.low.v <= first + (end - 1) * step && side.high.v > first + block * step;
        });
        for (int line = block; line < end && !near.empty(); ++line) {
            visit(line, piecesAt(first + line * step, near));
        }
    }
}

double LotGround::squareMetres() const {
    if (sides_.empty()) {
        return 0;
    }
    const auto lowest =
        std::min_element(sides_.begin(), sides_.end(),
                         [](const Side& a, const Side& b) { return a.low.v < b.low.v; });
    const auto highest =
        std::max_element(sides_.begin(), sides_.end(),
                         [](const Side& a, const Side& b) { return a.high.v < b.high.v; });
    const double height = highest->high.v - lowest->low.v;
    const double lines = std::clamp(std::ceil(height), 1.0, kMostLines);
    const double step = height / lines;
    double squareMetres = 0;
    const double first = lowest->low.v + step / 2;
    scan(first, step, static_cast<int>(lines), [&](int line, std::span<const Piece> pieces) {
        for (const Piece& piece : pieces) {
            const LatticePoint middle{(piece.from + piece.to) / 2, first + line * step};
            squareMetres += (piece.to - piece.from) * step * lattice_.cellSquareMetres(middle);
        }
    });
    return squareMetres;
}

}  // namespace campora
