// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/shapefile_view.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "base/numbers.h"
#include "model/ring_holes.h"

namespace campora {

namespace {

namespace header = shapefile::header;
namespace content = shapefile::content;
using shapefile::kIndexEntry;
using shapefile::kPartStartBytes;
using shapefile::kRecordHeader;
using shapefile::kVertexBytes;

/// The type without its Z or M; none for types that are not known.
std::optional<ShapeType> plainType(std::int32_t type) {
    const std::int32_t variant = type / 10;
    const auto plain = static_cast<ShapeType>(type % 10);
    if (type < 0 || variant > 2 || (plain == ShapeType::Null && variant != 0)) {
        return std::nullopt;
    }
    switch (plain) {
    case ShapeType::Null:
    case ShapeType::Point:
    case ShapeType::PolyLine:
    case ShapeType::Polygon:
    case ShapeType::MultiPoint:
        return plain;
    }
    return std::nullopt;
}

[[noreturn]] void refuseType(std::int32_t type) {
    throw FormatError({TextId::ShapeTypeUnknown, {numberText(type)}, {}});
}

/// `record`: from 0; people count from 1.
Failure recordFailure(TextId text, std::size_t record, std::size_t offset) {
    return {text, {numberText(record + 1), numberText(offset)}};
}

[[noreturn]] void refuseRecord(TextId text, std::size_t record, std::size_t offset) {
    throw FormatError(recordFailure(text, record, offset));
}

/// A length in 16-bit words as bytes; 0 for a negative one.
std::size_t wordsToBytes(std::int32_t words) {
    return words < 0 ? 0 : static_cast<std::size_t>(words) * 2;
}

struct Frame {
    std::size_t offset = 0;
    std::size_t bytes = 0;  // of the content
};

Frame readFrame(ByteReader& reader) {
    const std::size_t offset = wordsToBytes(reader.i32be());
    return {offset, wordsToBytes(reader.i32be())};
}

/// Bytes of the content of the record whose header stands at `offset`; none when it does not fit
/// into the bytes up to `end`.
std::optional<std::size_t> contentBytes(std::span<const std::byte> bytes, std::size_t offset,
                                        std::size_t end) {
    if (offset > end || end - offset < kRecordHeader) {
        return std::nullopt;
    }
    ByteReader reader(bytes, offset + 4);
    const std::size_t size = wordsToBytes(reader.i32be());
    if (size < content::kLeast || size > end - offset - kRecordHeader) {
        return std::nullopt;
    }
    return size;
}

}  // namespace

void ShapeView::refuseIndex() {
    throw std::out_of_range("no such vertex");
}

void ShapeView::collectParts(std::vector<ShapePart>& parts) const {
    parts.clear();
    const std::int32_t vertices = vertexCount();
    if (partStarts_.empty()) {
        if (vertices > 0) {
            parts.push_back({0, vertices - 1, false});
        }
        return;
    }
    ByteReader starts(partStarts_);
    std::int32_t first = starts.i32le();
    while (first < vertices) {
        const std::int32_t next = starts.remaining() > 0 ? starts.i32le() : vertices;
        if (next > first) {
            parts.push_back({first, next - 1, false});
        }
        first = next;
    }
    if (type_ == ShapeType::Polygon && parts.size() > 1) {
        markHoles(parts);
    }
}

void ShapeView::markHoles(std::vector<ShapePart>& parts) const {
    std::vector<LonLat> points;
    points.reserve(static_cast<std::size_t>(vertexCount()));
    for (std::int32_t i = 0; i < vertexCount(); ++i) {
        points.push_back(vertex(i));
    }
    std::vector<RingPoints> rings;
    rings.reserve(parts.size());
    for (const ShapePart& part : parts) {
        rings.push_back(RingPoints(points).subspan(static_cast<std::size_t>(part.first),
                                                   static_cast<std::size_t>(part.last) + 1 -
                                                       static_cast<std::size_t>(part.first)));
    }
    const std::vector<bool> holes = holesAmong(rings);
    for (std::size_t i = 0; i < parts.size(); ++i) {
        parts[i].isHole = holes[i];
    }
}

ShapefileView::ShapefileView(std::span<const std::byte> bytes, std::span<const std::byte> index)
    : bytes_(bytes) {
    if (bytes.size() < 4 || ByteReader(bytes).i32be() != header::kCode) {
        throw FormatError({TextId::ShapeNone, {}, {}});
    }
    ByteReader reader(bytes);
    reader.skip(header::kSize);
    reader.seek(header::kType);
    if (const std::int32_t type = reader.i32le(); !plainType(type)) {
        refuseType(type);
    }
    if (!takeIndex(index)) {
        walk();
    }
    for (std::size_t record = 0; record < offsets_.size(); ++record) {
        try {
            checkParts(record);
        } catch (const FormatError& error) {
            damage_ = error.failure();
            offsets_.resize(record);
            return;
        }
        checkVertices(record);
    }
}

bool ShapefileView::takeIndex(std::span<const std::byte> index) {
    if (index.size() < header::kSize || ByteReader(index).i32be() != header::kCode) {
        return false;
    }
    ByteReader reader(index, header::kLength);
    if (wordsToBytes(reader.i32be()) != index.size()) {
        return false;
    }
    reader.seek(header::kSize);
    std::size_t rest = bytes_.size() - header::kSize;  // no byte belongs to two records
    while (reader.remaining() >= kIndexEntry) {
        const Frame frame = readFrame(reader);
        const std::optional<std::size_t> size =
            frame.offset < header::kSize ? std::nullopt
                                         : contentBytes(bytes_, frame.offset, bytes_.size());
        if (!size || *size != frame.bytes || *size + kRecordHeader > rest) {
            offsets_.clear();
            return false;
        }
        rest -= *size + kRecordHeader;
        offsets_.push_back(static_cast<std::uint32_t>(frame.offset));
    }
    return !offsets_.empty();  // one without entries may have been left behind unfinished
}

void ShapefileView::walk() {
    // A length that was never filled in says nothing; a shorter one leaves what follows aside.
    ByteReader reader(bytes_, header::kLength);
    const std::size_t declared = wordsToBytes(reader.i32be());
    if (declared > bytes_.size()) {
        damage_ = Failure{TextId::FileCutShort, {numberText(bytes_.size())}};
    }
    const std::size_t end =
        declared > header::kSize ? std::min(declared, bytes_.size()) : bytes_.size();
    for (std::size_t offset = header::kSize; offset < end;) {
        const std::optional<std::size_t> size = contentBytes(bytes_, offset, end);
        if (!size) {
            damage_ = damage_.value_or(
                recordFailure(TextId::ShapeRecordDamaged, offsets_.size(), offset));
            return;
        }
        offsets_.push_back(static_cast<std::uint32_t>(offset));
        offset += kRecordHeader + *size;
    }
}

ShapeView ShapefileView::shape(std::int32_t record) const {
    if (record < 0 || record >= recordCount()) {
        throw std::out_of_range("no such record");
    }
    return decode(static_cast<std::size_t>(record));
}

ShapeView ShapefileView::decode(std::size_t record) const {
    ByteReader reader(bytes_, offsets_[record] + 4);
    const std::size_t size = wordsToBytes(reader.i32be());
    const std::size_t start = reader.offset();
    const std::int32_t number = reader.i32le();
    const std::optional<ShapeType> type = plainType(number);
    if (!type) {
        refuseType(number);
    }
    // The content from `at` on: so many starts of parts and so many points.
    const auto figure = [&](std::size_t at, std::int64_t parts, std::int64_t points) {
        const std::int64_t needed = parts * static_cast<std::int64_t>(kPartStartBytes) +
                                    points * static_cast<std::int64_t>(kVertexBytes);
        if (parts < 0 || points < 0 || at > size || needed > static_cast<std::int64_t>(size - at)) {
            refuseRecord(TextId::ShapeRecordDamaged, record, start);
        }
        reader.seek(start + at);
        const auto starts = reader.take(static_cast<std::size_t>(parts) * kPartStartBytes);
        return ShapeView(*type, starts,
                         reader.take(static_cast<std::size_t>(points) * kVertexBytes));
    };
    const auto count = [&](std::size_t at) {
        if (at + 4 > size) {
            refuseRecord(TextId::ShapeRecordDamaged, record, start);
        }
        reader.seek(start + at);
        return reader.i32le();
    };
    switch (*type) {
    case ShapeType::Null:
        break;
    case ShapeType::Point:
        return figure(content::kPoint, 0, 1);
    case ShapeType::MultiPoint:
        return figure(content::kPoints, 0, count(content::kPointCount));
    case ShapeType::PolyLine:
    case ShapeType::Polygon: {
        const std::int32_t parts = count(content::kPartCount);
        return figure(content::kPartStarts, parts, count(content::kPartCount + 4));
    }
    }
    return {};
}

void ShapefileView::checkParts(std::size_t record) const {
    const ShapeView shape = decode(record);
    const std::int32_t vertices = shape.vertexCount();
    const std::size_t offset = offsets_[record];
    const bool hasParts = shape.type() == ShapeType::PolyLine || shape.type() == ShapeType::Polygon;
    if (hasParts && vertices > 0 && shape.partStarts_.empty()) {
        refuseRecord(TextId::ShapeRecordDamaged, record, offset);
    }
    ByteReader starts(shape.partStarts_);
    for (std::int32_t before = 0; starts.remaining() > 0;) {
        const bool isFirst = starts.offset() == 0;
        const std::int32_t start = starts.i32le();
        if (start < before || start > vertices || (isFirst && start != 0)) {
            refuseRecord(TextId::ShapeRecordDamaged, record, offset);
        }
        before = start;
    }
}

void ShapefileView::checkVertices(std::size_t record) const {
    const ShapeView shape = decode(record);
    const std::int32_t vertices = shape.vertexCount();
    for (std::int32_t i = 0; i < vertices; ++i) {
        const LonLat vertex = shape.vertex(i);
        if (std::abs(vertex.x) <= kDateLine && std::abs(vertex.y) <= kPole) {
            continue;
        }
        if (!std::isfinite(vertex.x) || !std::isfinite(vertex.y)) {
            refuseRecord(TextId::ShapeBadCoordinate, record, offsets_[record]);
        }
        throw FormatError({TextId::ShapeNotGeographic,
                           {numberText(record + 1), numberText(vertex.x), numberText(vertex.y)},
                           {}});
    }
}

std::optional<std::int32_t> shapeTypeOfHeader(std::span<const std::byte> bytes) {
    if (bytes.size() < header::kType + 4 || ByteReader(bytes).i32be() != header::kCode) {
        return std::nullopt;
    }
    return ByteReader(bytes, header::kType).i32le();
}

}  // namespace campora
