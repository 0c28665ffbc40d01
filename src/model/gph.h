// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/texts.h"
#include "model/bounding_box.h"
#include "model/map_style.h"
#include "model/view_transform.h"
#include "platform/map_canvas.h"
#include "platform/user_locale.h"

namespace campora {

/// Figures from four pixels of a screen on are outlined in ink.
inline constexpr std::int32_t kLeastOutlined = 60;

/// What a layer needs to draw itself.
struct MapContext {
    MapCanvas& canvas;
    const ViewTransform& view;
    const MapStyle& style;
    /// Canvas units that a swath, cell or zone must be wide and high to have an outline in ink; a
    /// smaller one is outlined in its own colour, so that what is dense is not drawn black.
    std::int32_t leastOutlined = kLeastOutlined;
    /// Every layer of the map is a lot, which may then hide what lies under it.
    bool lotsAlone = false;
};

/// What a layer needs to put itself into words.
struct InfoContext {
    const Texts& texts;
    const UserLocale& locale;
    const MapStyle& style;
};

/// A drawable layer. Elements count from 0.
class Gph {
public:
    virtual ~Gph() = default;

    /// The class name ("GphTrack"), as the batch program prints it.
    [[nodiscard]] virtual std::string_view Gph_kind() const = 0;
    /// Number of elements (steps of a track, cells, polygons): the unit of replay.
    [[nodiscard]] virtual std::int32_t Gph_count() const = 0;
    [[nodiscard]] virtual const BoundingBox& Gph_bound() const = 0;
    /// Whether the layer is replayed element by element rather than drawn whole first.
    [[nodiscard]] virtual bool Gph_animable() const = 0;
    /// Several threads may call it at once, each with a canvas of its own.
    virtual void Gph_plot(MapContext& context) const = 0;
    /// Draws what lies on top of every layer of the map, after all of them have been plotted.
    virtual void plotOnTop(MapContext& /*context*/) const {}
    /// Draws element n alone; true when it drew it.
    virtual bool Gph_plotN(MapContext& context, std::int32_t n) const = 0;
    /// Seconds from element n to the next in the recorded work; 0 for layers without times.
    [[nodiscard]] virtual float Gph_delayN(std::int32_t n) const = 0;
    /// Index of the first element from `start` on at `position`, -1 when there is none.
    [[nodiscard]] virtual std::int32_t Gph_mouseOver(const ViewTransform& view,
                                                     const MapStyle& style, LonLat position,
                                                     std::int32_t start) const = 0;
    /// Lines ended by CR LF that describe element n; empty when there is nothing to say.
    [[nodiscard]] virtual std::string Gph_getInfo(const InfoContext& context,
                                                  std::int32_t n) const = 0;
};

}  // namespace campora
