// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/gph_track.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include "model/measures.h"
#include "model/ring_geometry.h"
#include "model/swath_geometry.h"

namespace campora {

template <typename Record>
void GphTrack::append(double x, double y, const Record& record) {
    using Records = std::vector<Record>;
    if (points_.empty()) {
        records_.emplace<Records>().reserve(points_.capacity());
    }
    auto* const records = std::get_if<Records>(&records_);
    if (records == nullptr) {
        throw std::invalid_argument("GphTrack: records of two kinds in one track");
    }
    widestSwath_ = std::max(widestSwath_, std::abs(record.trocha()));
    if (!points_.empty() && points_.back() == LonLat{x, y}) {
        records->back() = record;
        return;
    }
    records->push_back(record);
    points_.push_back({x, y});
    bound_.addPoint(x, y);
    growStretches({x, y});
}

/// A step belongs to the stretch of its first point; so a stretch has the first point of the next.
void GphTrack::growStretches(LonLat point) {
    const std::size_t index = points_.size() - 1;
    const auto grow = [point](Stretch& stretch) {
        auto& [least, greatest] = stretch;
        least = {std::min(least.x, point.x), std::min(least.y, point.y)};
        greatest = {std::max(greatest.x, point.x), std::max(greatest.y, point.y)};
    };
    if (!stretches_.empty()) {
        grow(stretches_.back());
    }
    if (index % kStretch == 0) {
        stretches_.push_back({point, point});
    }
}

std::size_t GphTrack::firstThatMayTouch(const ViewTransform& view, std::size_t step) const {
    const auto steps = static_cast<std::size_t>(Gph_count());
    const double reach = kMitreLimit * static_cast<double>(widestSwath_);
    while (step < steps) {
        const Stretch& stretch = stretches_[step / kStretch];
        if (view.mayTouch(stretch.least, stretch.greatest, reach)) {
            return step;
        }
        step = (step / kStretch + 1) * kStretch;
    }
    return steps;
}

void GphTrack::addPoint(double x, double y, const TrackDataRPT& record) {
    append(x, y, record);
}

void GphTrack::addPoint(double x, double y, const TrackDataNBR& record) {
    append(x, y, record);
}

void GphTrack::reserve(std::size_t points) {
    points_.reserve(points);
    if (!points_.empty()) {
        std::visit([points](auto& records) { records.reserve(points); }, records_);
    }
}

const TrackData& GphTrack::pointInfo(std::int32_t index) const {
    return std::visit(
        [index](const auto& records) -> const TrackData& {
            return records.at(static_cast<std::size_t>(index));
        },
        records_);
}

bool GphTrack::isStep(std::int32_t index) const {
    return index >= 0 && index < Gph_count();
}

void GphTrack::trocha(float metres) {
    std::visit(
        [metres](auto& records) {
            for (auto& record : records) {
                record.trocha(metres);
            }
        },
        records_);
    widestSwath_ = std::abs(metres);
}

float GphTrack::getHectareasError(const MapStyle& style, float limit) const {
    const auto* const records = std::get_if<RptRecords>(&records_);
    if (records == nullptr) {
        return 0;  // track files have no specified dose to miss
    }
    double squareMetres = 0;
    for (std::size_t i = 0; i + 1 < points_.size(); ++i) {
        const TrackDataRPT& record = (*records)[i];
        if (record.getError(style.selectedChannel) > limit) {
            squareMetres += stepMetres(points_[i], points_[i + 1]) * record.trocha();
        }
    }
    return static_cast<float>(squareMetres / kSquareMetresPerHectare);
}

bool GphTrack::hasSpecifiedDose() const {
    const auto* const records = std::get_if<RptRecords>(&records_);
    return records != nullptr &&
           std::any_of(records->begin(), records->end(),
                       [](const TrackDataRPT& record) { return record.dosisTotal() > 0; });
}

void GphTrack::clearAlarmas() {
    if (auto* const records = std::get_if<RptRecords>(&records_)) {
        for (TrackDataRPT& record : *records) {
            record.clearAlarmas();
        }
    }
}

float GphTrack::speedN(std::int32_t n) const {
    if (!isStep(n)) {
        return 0;
    }
    const auto i = static_cast<std::size_t>(n);
    return std::visit([i](const auto& records) { return records[i].velocidad(); }, records_);
}

WorkRecord GphTrack::recordN(std::int32_t n) const {
    const auto i = static_cast<std::size_t>(n);
    return std::visit([&](const auto& records) { return records.at(i).workRecord(points_.at(i)); },
                      records_);
}

std::int32_t GphTrack::Gph_count() const {
    return points_.size() < 2 ? 0 : static_cast<std::int32_t>(points_.size() - 1);
}

float GphTrack::Gph_delayN(std::int32_t n) const {
    const auto* const records = std::get_if<RptRecords>(&records_);
    if (records == nullptr || !isStep(n)) {
        return 1;
    }
    const auto i = static_cast<std::size_t>(n);
    const int seconds = secondsBetween((*records)[i].time(), (*records)[i + 1].time());
    return seconds == 0 ? 1 : static_cast<float>(seconds);
}

std::int32_t GphTrack::Gph_mouseOver(const ViewTransform& view, const MapStyle& style,
                                     LonLat position, std::int32_t start) const {
    const auto covers = [&](std::size_t i, const auto& record) {
        const float swath = record.trocha();
        const LonLat from = points_[i];
        const LonLat to = points_[i + 1];
        return (style.drawAll || record.caudal() > 0) && swathMayCover(from, to, swath, position) &&
               view.mayTouch(from, to, kMitreLimit * std::abs(swath)) &&
               pointInRing(swathQuad(points_, i, swath), position);
    };
    if (!view.isFitted()) {
        return -1;
    }
    return std::visit(
        [&](const auto& records) {
            for (std::int32_t i = std::max(start, 0); i < Gph_count(); ++i) {
                const auto index = static_cast<std::size_t>(i);
                if (covers(index, records[index])) {
                    return i;
                }
            }
            return -1;
        },
        records_);
}

std::string GphTrack::Gph_getInfo(const InfoContext& context, std::int32_t n) const {
    return pointInfo(n).resumen(context);
}

}  // namespace campora
