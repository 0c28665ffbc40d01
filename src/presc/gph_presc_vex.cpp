// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/gph_presc_vex.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "base/numbers.h"
#include "model/grid_geometry.h"
#include "model/measures.h"
#include "presc/channel_summary.h"
#include "presc/dose_raster.h"
#include "presc/grid_layer.h"
#include "presc/layer_zones.h"

namespace campora {

namespace {

/// "Archivo (C 2)" for channel 1. Summaries are data: their names are the same in every language.

}  // namespace

void GphPrescVex::addChannel(std::unique_ptr<GphPresc> presc) {
    if (presc->Gph_bound().isSet) {
        bound_.addBoundingBox(presc->Gph_bound());
    }
    changes_.push_back(presc->escalaColor().onChanged([this] { summaryIsStale_ = true; }));
    channels_.push_back(std::move(presc));
    counts_.clear();
    summaryIsStale_ = true;
}

std::vector<ChannelZones> GphPrescVex::zones() const {
    std::vector<ChannelZones> zones;
    for (const std::unique_ptr<GphPresc>& channel : channels_) {
        zones.push_back(zonesOf(*channel));
    }
    return zones;
}

void GphPrescVex::setRule(GridRule rule) {
    rule_ = std::move(rule);
    counts_.clear();
    summaryIsStale_ = true;
}

void GphPrescVex::countCells() {
    counts_.assign(channels_.size(), {});
    const std::vector<ChannelZones> channels = zones();
    const BoundingBox bound = boundOf(channels);
    if (!bound.isSet || wholeMetresPerDegree(bound.maxY) <= 0 ||
        wholeMetresPerDegree(bound.minY) <= 0) {
        return;
    }
    countedMetres_ = rule_.metres;
    GridSize size = gridSize(bound, countedMetres_);
    while (size.columns * size.rows > kMostGridCells) {
        countedMetres_ *= 2;
        size = gridSize(bound, countedMetres_);
    }
    const GridLayout layout = gridLayout(rule_.kind, bound, countedMetres_, size);
    for (std::size_t i = 0; i < channels.size(); ++i) {
        counts_[i].ofZone.resize(channels[i].zones.size());
        const auto owners =
            zonesUnder(channels[i], layout.centres, [](std::size_t /*zonesDone*/) { return true; });
        for (const std::int32_t owner : *owners) {
            ++(owner == kNoZone ? counts_[i].outside
                                : counts_[i].ofZone[static_cast<std::size_t>(owner)]);
        }
    }
}

GphPrescVex::Figures GphPrescVex::figures(std::size_t channel) const {
    const DoseScale scale = doseScaleOf(rule_.kind);
    const CellCount& count = counts_[channel];
    const std::vector<GphPolygonMulti>& zones = channels_[channel]->polygons();
    double dosed = 0;
    double steps = 0;
    const auto add = [&](std::int64_t cells, double dose) {
        dosed += dose != 0 ? static_cast<double>(cells) : 0;
        steps += dose * static_cast<double>(cells);
    };
    for (std::size_t zone = 0; zone < count.ofZone.size(); ++zone) {
        add(count.ofZone[zone], scale.stepsOf(zones[zone].dosis));
    }
    add(count.outside, channel < rule_.fallback.size() ? rule_.fallback[channel] : 0);
    const double cellM2 = countedMetres_ * countedMetres_;
    return {cellM2 * dosed / kSquareMetresPerHectare,
            steps / scale.steps * (cellM2 / kSquareMetresPerHectare)};
}

void GphPrescVex::setCurrentChannel(int channel) {
    static_cast<void>(channels_.at(static_cast<std::size_t>(channel)));
    current_ = channel;
}

std::optional<float> GphPrescVex::doseAt(LonLat position, int channel) const {
    const GphPolygonMulti* const zone =
        channels_.at(static_cast<std::size_t>(channel))->getPolygonAtPoint(position.x, position.y);
    return zone == nullptr ? std::nullopt : std::optional(zone->dosis);
}

ColorScale* GphPrescVex::File_escalaColores() {
    return channels_.empty() ? nullptr : &channel(current_).escalaColor();
}

FileProperties& GphPrescVex::File_resumen() {
    if (!std::exchange(summaryIsStale_, false)) {
        return summary_;
    }
    if (counts_.empty()) {
        countCells();
    }
    summary_.clear();
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        const GphPresc& presc = *channels_[i];
        const int column = presc.columnaDosis();
        summary_.addProperty(channelEntry("Archivo", i), presc.name(), "");
        summary_.addProperty(channelEntry("Columna", i),
                             column == GphPresc::kNoColumn
                                 ? ""
                                 : presc.columnNames().at(static_cast<std::size_t>(column) - 1),
                             "");
    }
    for (std::size_t i = 0; i < channels_.size(); ++i) {
        const Figures sums = figures(i);
        summary_.addProperty(channelEntry("Superficie", i), summaryFigure(sums.hectares, symbol_),
                             "Has");
        summary_.addProperty(channelEntry("Producto total", i),
                             summaryFigure(sums.product, symbol_), "unid");
    }
    return summary_;
}

std::vector<Gph*> GphPrescVex::File_gphList() const {
    if (channels_.empty()) {
        return {};
    }
    return {channels_[static_cast<std::size_t>(current_)].get()};
}

bool GphPrescVex::dosesChanged() const {
    return std::any_of(channels_.begin(), channels_.end(),
                       [](const auto& channel) { return channel->dosesChanged(); });
}

void GphPrescVex::dosesSaved() {
    for (const std::unique_ptr<GphPresc>& channel : channels_) {
        channel->dosesSaved();
    }
}

}  // namespace campora
