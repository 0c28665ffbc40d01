// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/zone_raster.h"

#include <algorithm>
#include <tuple>
#include <utility>

#include "model/ring_geometry.h"
#include "rtree/tree_units.h"

namespace campora {

// A centre lies in a ring when the edges that it has to its east are odd in number. The test of one
// centre computes where each edge crosses the parallel of the centre; those places are the same for
// all centres of a row, so that a row is parted once, at its crossings in order, in place of once a
// cell. Both compute them by `crossingX` from the same corners and compare the same numbers, and
// both ask the boxes in the units of the search tree first: every cell has, bit for bit, the zone
// that a search with its centre finds, and where zones lie on each other the one found last.
//
// A zone costs its edges times the rows that each of them spans, the sorting of those crossings and
// the cells that it covers, whatever else the map holds; a search a cell costs all cells times the
// corners of a zone. Memory: a number a cell.
//
// A crossing is rounded to a double, some millionths of a millimetre on the ground. A centre nearer
// to an edge than that may fall on either side, the same one every time.

namespace {

/// Places in an axis; the last is one past the end.
struct Range {
    std::size_t first = 0;
    std::size_t last = 0;

    [[nodiscard]] bool empty() const { return first >= last; }
};

/// The longitudes or latitudes of a grid, ascending.
class Axis {
public:
    explicit Axis(std::vector<double> values) : values_(std::move(values)) {
        indexed_.reserve(values_.size());
        for (const double value : values_) {
            indexed_.push_back(treeUnits(value));
        }
    }

    [[nodiscard]] std::size_t size() const { return values_.size(); }
    [[nodiscard]] double operator[](std::size_t i) const { return values_[i]; }
    /// From `low` to before `high`.
    [[nodiscard]] Range between(double low, double high) const {
        const auto first = std::lower_bound(values_.begin(), values_.end(), low);
        const auto last = std::lower_bound(first, values_.end(), high);
        return {place(first), place(last)};
    }
    /// What a search finds in a box from `low` to `high`, both ends included.
    [[nodiscard]] Range foundIn(double low, double high) const {
        const auto first = std::lower_bound(indexed_.begin(), indexed_.end(), treeUnits(low));
        const auto last = std::upper_bound(first, indexed_.end(), treeUnits(high));
        return {static_cast<std::size_t>(first - indexed_.begin()),
                static_cast<std::size_t>(last - indexed_.begin())};
    }

private:
    [[nodiscard]] std::size_t place(std::vector<double>::const_iterator at) const {
        return static_cast<std::size_t>(at - values_.begin());
    }

    std::vector<double> values_;
    std::vector<std::int32_t> indexed_;
};

Range intersection(const Range& a, const Range& b) {
    return {std::max(a.first, b.first), std::min(a.last, b.last)};
}

class Raster {
public:
    explicit Raster(const CellCentres& centres)
        : descending_(centres.y.front() > centres.y.back()),
          x_(centres.x),
          y_(descending_ ? std::vector<double>(centres.y.rbegin(), centres.y.rend()) : centres.y),
          owners_(centres.x.size() * centres.y.size(), kNoZone) {}

    void lay(std::int32_t zone, const GphPolygonMulti& polygon) {
        const BoundingBox& box = polygon.Gph_bound();
        columns_ = x_.foundIn(box.minX, box.maxX);
        rows_ = y_.foundIn(box.minY, box.maxY);
        if (columns_.empty() || rows_.empty()) {
            return;
        }
        insides_.clear();
        holes_.clear();
        for (const GphPolygon& ring : polygon.rings()) {
            const BoundingBox& reach = ring.Gph_bound();
            if (!reach.isSet || x_.foundIn(reach.minX, reach.maxX).empty() ||
                y_.foundIn(reach.minY, reach.maxY).empty()) {
                continue;  // most rings of large zones, where the grid is small
            }
            addSpans(ring.points(), ring.isHole ? holes_ : insides_);
        }
        fill(zone);
    }
    [[nodiscard]] std::vector<std::int32_t> take() { return std::move(owners_); }

private:
    /// Cells side by side, as places in `owners_`.
    using Spans = std::vector<Range>;
    struct Crossing {
        std::size_t row = 0;
        double x = 0;

        bool operator<(const Crossing& other) const {
            return std::tie(row, x) < std::tie(other.row, other.x);
        }
    };

    /// The cells whose centres lie in the ring, by the rule of `pointInRing`.
    void addSpans(std::span<const LonLat> ring, Spans& spans) {
        collectCrossings(ring);
        std::sort(crossings_.begin(), crossings_.end());
        // A closed ring crosses every row an even number of times; a centre has an odd number of
        // crossings to its east from an even one on to before the next.
        for (std::size_t i = 0; i + 1 < crossings_.size(); i += 2) {
            const Range columns =
                intersection(columns_, x_.between(crossings_[i].x, crossings_[i + 1].x));
            if (!columns.empty()) {
                const std::size_t row = crossings_[i].row;
                const std::size_t start = (descending_ ? y_.size() - 1 - row : row) * x_.size();
                spans.push_back({start + columns.first, start + columns.last});
            }
        }
    }
    void collectCrossings(std::span<const LonLat> ring) {
        crossings_.clear();
        for (std::size_t i = 0; i < ring.size(); ++i) {
            const LonLat& a = ring[i];
            const LonLat& b = ring[i + 1 < ring.size() ? i + 1 : 0];
            // The lower end is on the edge, the upper one is not.
            const auto [low, high] = std::minmax(a.y, b.y);
            if (high < y_[rows_.first] || low > y_[rows_.last - 1]) {
                continue;
            }
            const Range rows = intersection(rows_, y_.between(low, high));
            for (std::size_t row = rows.first; row < rows.last; ++row) {
                crossings_.push_back({row, crossingX(a, b, y_[row])});
            }
        }
    }
    void fill(std::int32_t zone) {
        const auto at = [](auto& cells, std::size_t place) {
            return cells.begin() + static_cast<std::ptrdiff_t>(place);
        };
        if (!holes_.empty()) {
            inHole_.resize(owners_.size());
        }
        for (const Range& span : holes_) {
            std::fill(at(inHole_, span.first), at(inHole_, span.last), true);
        }
        for (const Range& span : insides_) {
            for (std::size_t cell = span.first; cell < span.last; ++cell) {
                if (holes_.empty() || !inHole_[cell]) {
                    owners_[cell] = zone;
                }
            }
        }
        for (const Range& span : holes_) {
            std::fill(at(inHole_, span.first), at(inHole_, span.last), false);
        }
    }

    bool descending_;
    Axis x_;
    Axis y_;
    std::vector<std::int32_t> owners_;
    /// Of the zone that is being laid.
    Range columns_;
    Range rows_;
    Spans insides_;
    Spans holes_;
    std::vector<Crossing> crossings_;
    std::vector<char> inHole_;
};

}  // namespace

std::optional<std::vector<std::int32_t>>
zonesUnder(const ChannelZones& channel, const CellCentres& centres,
           const std::function<bool(std::size_t zonesDone)>& goOn) {
    Raster raster(centres);
    for (std::size_t i = 0; i < channel.order.size(); ++i) {
        if (!goOn(i)) {
            return std::nullopt;
        }
        const std::int32_t zone = channel.order[i];
        raster.lay(zone, channel.zones[static_cast<std::size_t>(zone)]);
    }
    return raster.take();
}

}  // namespace campora
