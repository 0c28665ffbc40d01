// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/byte_writer.h"
#include "base/lon_lat.h"

namespace campora {

[[nodiscard]] inline std::span<const std::byte> bytesOf(std::string_view text) {
    return std::as_bytes(std::span(text.data(), text.size()));
}

/// Writes a 32-bit number over what stands at `at`.
inline void putLittle(std::string& bytes, std::size_t at, std::int32_t value) {
    std::string number;
    appendLittle(number, static_cast<std::uint32_t>(value));
    bytes.replace(at, number.size(), number);
}
inline void putBig(std::string& bytes, std::size_t at, std::int32_t value) {
    const std::uint32_t v = static_cast<std::uint32_t>(value);
    putLittle(bytes, at,
              static_cast<std::int32_t>((v >> 24U) | ((v >> 8U) & 0xFF00U) |
                                        ((v << 8U) & 0xFF0000U) | (v << 24U)));
}

/// The bytes of a shapefile, record by record, and of its index. Boxes are zeros.
class ShapeBytes {
public:
    using Ring = std::vector<LonLat>;

    explicit ShapeBytes(std::int32_t type) : type_(type) {}

    void addNull() { add(std::string(4, '\0')); }
    /// `tail`: doubles after the point (Z, M).
    void addPoint(LonLat at, int tail = 0) {
        std::string content;
        appendLittle(content, static_cast<std::uint32_t>(type_));
        put(content, at);
        content.append(static_cast<std::size_t>(tail) * 8, '\x7F');
        add(content);
    }
    void addPoints(const Ring& points, int tail = 0) { addFigure({points}, false, tail); }
    /// Lines too.
    void addPolygon(const std::vector<Ring>& rings, int tail = 0) { addFigure(rings, true, tail); }
    void add(const std::string& content) {
        offsets_.push_back(records_.size() + 100);
        lengths_.push_back(content.size());
        std::string header(8, '\0');
        putBig(header, 0, static_cast<std::int32_t>(offsets_.size()));
        putBig(header, 4, static_cast<std::int32_t>(content.size() / 2));
        records_ += header + content;
    }

    [[nodiscard]] std::string bytes() const { return header(records_.size()) + records_; }
    [[nodiscard]] std::string index() const {
        std::string bytes = header(offsets_.size() * 8);
        for (std::size_t i = 0; i < offsets_.size(); ++i) {
            bytes.append(8, '\0');
            putBig(bytes, bytes.size() - 8, static_cast<std::int32_t>(offsets_[i] / 2));
            putBig(bytes, bytes.size() - 4, static_cast<std::int32_t>(lengths_[i] / 2));
        }
        return bytes;
    }
    /// Where the content of a record stands in `bytes()`; records from 0.
    [[nodiscard]] std::size_t contentAt(std::size_t record) const { return offsets_[record] + 8; }

private:
    static void put(std::string& bytes, LonLat at) {
        appendLittle(bytes, at.x);
        appendLittle(bytes, at.y);
    }
    void addFigure(const std::vector<Ring>& rings, bool withParts, int tail) {
        std::string starts;
        std::string points;
        std::uint32_t count = 0;
        for (const Ring& ring : rings) {
            appendLittle(starts, count);
            count += static_cast<std::uint32_t>(ring.size());
            for (const LonLat& point : ring) {
                put(points, point);
            }
        }
        std::string content;
        appendLittle(content, static_cast<std::uint32_t>(type_));
        content.append(32, '\0');
        if (withParts) {
            appendLittle(content, static_cast<std::uint32_t>(rings.size()));
        }
        appendLittle(content, count);
        add(content + (withParts ? starts : "") + points +
            std::string(static_cast<std::size_t>(tail) * 8, '\x7F'));
    }
    [[nodiscard]] std::string header(std::size_t rest) const {
        std::string bytes(100, '\0');
        putBig(bytes, 0, 9994);
        putBig(bytes, 24, static_cast<std::int32_t>((100 + rest) / 2));
        putLittle(bytes, 28, 1000);
        putLittle(bytes, 32, type_);
        return bytes;
    }

    std::int32_t type_;
    std::string records_;
    std::vector<std::size_t> offsets_;
    std::vector<std::size_t> lengths_;
};

/// The bytes of a dBASE table, row by row.
class DbaseBytes {
public:
    struct Column {
        std::string name;
        char type = 'C';
        int width = 10;
        int decimals = 0;
    };

    explicit DbaseBytes(std::vector<Column> columns, int language = 0)
        : columns_(std::move(columns)), language_(language) {}

    /// Cells are padded: numbers on the left, everything else on the right.
    void addRow(const std::vector<std::string>& cells, bool deleted = false) {
        rows_ += deleted ? '*' : ' ';
        for (std::size_t i = 0; i < columns_.size(); ++i) {
            const auto width = static_cast<std::size_t>(columns_[i].width);
            const std::string cell = cells.at(i).substr(0, width);
            const std::string blanks(width - cell.size(), ' ');
            rows_ += columns_[i].type == 'N' ? blanks + cell : cell + blanks;
        }
        ++count_;
    }

    [[nodiscard]] std::string bytes() const {
        std::size_t rowSize = 1;
        std::string descriptions;
        for (const Column& column : columns_) {
            std::string description(32, '\0');
            description.replace(0, column.name.size(), column.name);
            description[11] = column.type;
            description[16] = static_cast<char>(column.width);
            description[17] = static_cast<char>(column.decimals);
            descriptions += description;
            rowSize += static_cast<std::size_t>(column.width);
        }
        std::string header = "\x03\x7C\x01\x01";
        appendLittle(header, count_);
        appendLittle(header, static_cast<std::uint16_t>(33 + descriptions.size()));
        appendLittle(header, static_cast<std::uint16_t>(rowSize));
        header.append(20, '\0');
        header[29] = static_cast<char>(language_);
        return header + descriptions + "\r" + rows_ + "\x1A";
    }

private:
    std::vector<Column> columns_;
    int language_;
    std::string rows_;
    std::uint32_t count_ = 0;
};

}  // namespace campora
