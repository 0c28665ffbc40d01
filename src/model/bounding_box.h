// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace campora {

/// Extent of map content in degrees and, accumulated beside it, in metres. The metres depend on the
/// order in which points came, because the cosine is that of each point's own latitude.
struct BoundingBox {
    double minX = 0;
    double minY = 0;
    double maxX = 0;
    double maxY = 0;
    double widthM = 0;
    double heightM = 0;
    /// False until the first point or box is added; the numbers mean nothing then.
    bool isSet = false;

    /// Empty again; the numbers stay until the next add.
    void clear() { isSet = false; }
    /// The extent of a layer.
    template <typename Layer>
    void addGph(const Layer& layer) {
        addBoundingBox(layer.Gph_bound());
    }
    /// All six numbers equal; `isSet` does not count.
    [[nodiscard]] bool equals(const BoundingBox& other) const;
    void addBoundingBox(const BoundingBox& other);
    /// Degrees.
    void addPoint(double x, double y);
    /// Whole metres between the centres.
    [[nodiscard]] std::int32_t distanceTo(const BoundingBox& other) const;
};

}  // namespace campora
