// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Shapefiles, with the index that follows them in the input: the first two bytes say how long the
// main file is.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <cstdlib>
#include <span>
#include <vector>

#include "base/failure.h"
#include "presc/shapefile_view.h"

namespace {

using namespace campora;

void checkShape(const ShapeView& shape, std::vector<ShapePart>& parts) {
    shape.collectParts(parts);
    std::int32_t next = 0;
    for (const ShapePart& part : parts) {
        if (part.first != next || part.last < part.first || part.last >= shape.vertexCount()) {
            std::abort();  // parts must follow each other and hold vertices
        }
        next = part.last + 1;
        for (std::int32_t i = part.first; i <= part.last; ++i) {
            const LonLat vertex = shape.vertex(i);
            if (!(std::abs(vertex.x) <= 180 && std::abs(vertex.y) <= 90)) {
                std::abort();  // a position off the globe reached the map
            }
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    const auto bytes = std::as_bytes(std::span(data, size));
    if (size < 2) {
        return 0;
    }
    const auto file = bytes.subspan(2);
    const std::size_t length = std::min<std::size_t>(data[0] + 256U * data[1], file.size());
    try {
        const ShapefileView shapes(file.first(length), file.subspan(length));
        std::vector<ShapePart> parts;
        for (std::int32_t record = 0; record < shapes.recordCount(); ++record) {
            checkShape(shapes.shape(record), parts);
        }
    } catch (const FormatError&) {
        // Said to the user; nothing to show.
    }
    return 0;
}
