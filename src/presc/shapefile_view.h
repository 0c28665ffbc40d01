// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>
#include <vector>

#include "base/byte_reader.h"
#include "base/failure.h"
#include "base/lon_lat.h"
#include "model/shapefile_layout.h"

namespace campora {

/// A run of vertices of a figure, both ends included.
struct ShapePart {
    std::int32_t first = 0;
    std::int32_t last = 0;
    bool isHole = false;

    bool operator==(const ShapePart&) const = default;
};

/// One figure, in the bytes of its file.
class ShapeView {
public:
    ShapeView() = default;
    ShapeView(ShapeType type, std::span<const std::byte> partStarts,
              std::span<const std::byte> vertices)
        : type_(type), partStarts_(partStarts), vertices_(vertices) {}

    /// Without its Z or M.
    [[nodiscard]] ShapeType type() const { return type_; }
    [[nodiscard]] std::int32_t vertexCount() const {
        return static_cast<std::int32_t>(vertices_.size() / shapefile::kVertexBytes);
    }
    /// Degrees; throws `std::out_of_range` for a bad index.
    [[nodiscard]] LonLat vertex(std::int32_t index) const {
        if (index < 0 || index >= vertexCount()) {
            refuseIndex();
        }
        ByteReader reader(vertices_, static_cast<std::size_t>(index) * shapefile::kVertexBytes);
        const double x = reader.f64le();
        return {x, reader.f64le()};
    }
    /// The parts that have vertices, in place of what `parts` holds. A figure without parts of its
    /// own (points) is one part.
    void collectParts(std::vector<ShapePart>& parts) const;

private:
    friend class ShapefileView;

    [[noreturn]] static void refuseIndex();
    void markHoles(std::vector<ShapePart>& parts) const;

    ShapeType type_ = ShapeType::Null;
    std::span<const std::byte> partStarts_;  // i32 each
    std::span<const std::byte> vertices_;
};

/// The figures of a shapefile's main file ("ESRI Shapefile Technical Description", 1998).
/// The bytes must outlive it.
class ShapefileView {
public:
    ShapefileView() = default;
    /// `index`: the bytes of the index file, left aside when it is not sound; may be empty.
    /// Every record is looked at once; they end before the first that is damaged or of a type that
    /// is not known. Throws `FormatError` when the bytes are no shapefile, and for a coordinate
    /// that is no number or cannot be degrees, as the others are of no use either then. Boxes and
    /// the numbers of records are not believed, nor needed.
    explicit ShapefileView(std::span<const std::byte> bytes, std::span<const std::byte> index = {});

    [[nodiscard]] std::int32_t recordCount() const {
        return static_cast<std::int32_t>(offsets_.size());
    }
    /// Why the records end before the file does, with the place; none for a sound file.
    [[nodiscard]] const std::optional<Failure>& damage() const { return damage_; }
    /// `record`: from 0; throws `std::out_of_range` for a bad one.
    [[nodiscard]] ShapeView shape(std::int32_t record) const;

private:
    [[nodiscard]] bool takeIndex(std::span<const std::byte> index);
    void walk();
    /// `record`: from 0. Throws `FormatError` for a damaged one.
    [[nodiscard]] ShapeView decode(std::size_t record) const;
    // Both throw `FormatError`, the first as `decode`.
    void checkParts(std::size_t record) const;
    void checkVertices(std::size_t record) const;

    std::span<const std::byte> bytes_;
    std::vector<std::uint32_t> offsets_;  // of the records' headers
    std::optional<Failure> damage_;
};

/// The type in a main file's header as it stands there (15 for polygons with Z); none when the
/// bytes are no such header. Its first 36 bytes are enough.
[[nodiscard]] std::optional<std::int32_t> shapeTypeOfHeader(std::span<const std::byte> bytes);

}  // namespace campora
