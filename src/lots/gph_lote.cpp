// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/gph_lote.h"

#include <algorithm>
#include <stdexcept>
#include <utility>

#include "base/number_forms.h"
#include "model/measures.h"
#include "model/ring_geometry.h"

namespace campora {

namespace {

constexpr int kOutlinePixels = 2;

/// The form "#.#": no zero before the point and none behind it.
std::string areaText(float hectares, char decimalSymbol) {
    std::string text = fixedNumberText(hectares, 1);
    text.erase(text.find_last_not_of('0') + 1);
    text.erase(0, text.find_first_not_of('0'));
    std::replace(text.begin(), text.end(), '.', decimalSymbol);
    return text;
}

}  // namespace

GphLote::GphLote(std::vector<LonLat> vertices, std::string text)
    : description(std::move(text)), vertices_(std::move(vertices)) {
    for (const auto& [x, y] : vertices_) {
        bound_.addPoint(x, y);
    }
}

void GphLote::clear() {
    vertices_.clear();
    bound_.clear();
}

void GphLote::addPoint(double x, double y) {
    vertices_.push_back({x, y});
    bound_.addPoint(x, y);
}

double GphLote::getPointX(std::int32_t i) const {
    return vertices_.at(static_cast<std::size_t>(i)).x;
}

double GphLote::getPointY(std::int32_t i) const {
    return vertices_.at(static_cast<std::size_t>(i)).y;
}

float GphLote::hectares() const {
    return static_cast<float>(polygonArea(vertices_) / kSquareMetresPerHectare);
}

void GphLote::Gph_plot(MapContext& context) const {
    draw(context, context.lotsAlone ? FillStyle::Solid : FillStyle::Hatched,
         context.style.colors.lot, 1);
}

void GphLote::plotOnTop(MapContext& context) const {
    draw(context, FillStyle::Transparent, context.style.colors.lot.darker(), kOutlinePixels);
}

void GphLote::draw(MapContext& context, FillStyle fill, Color pen, int penWidth) const {
    if (vertices_.empty() || !context.view.isFitted() || !context.view.mayTouch(bound_, 0)) {
        return;
    }
    std::vector<CanvasPoint> corners;
    corners.reserve(vertices_.size());
    for (const auto& [x, y] : vertices_) {
        corners.push_back(context.view.mapToScreen(x, y));
    }
    MapCanvas& canvas = context.canvas;
    const Color before = canvas.penColor();
    canvas.setPenColor(pen);
    canvas.setPenWidth(penWidth);
    canvas.setFillStyle(fill);
    canvas.setFillColor(context.style.colors.lot);
    canvas.polygon(corners);
    // Others draw with what they find.
    canvas.setPenColor(before);
    canvas.setPenWidth(1);
    canvas.setFillStyle(FillStyle::Solid);
}

std::int32_t GphLote::Gph_mouseOver(const ViewTransform& /*view*/, const MapStyle& /*style*/,
                                    LonLat position, std::int32_t /*start*/) const {
    return pointInRing(vertices_, position) ? 0 : -1;
}

std::string GphLote::Gph_getInfo(const InfoContext& context, std::int32_t /*n*/) const {
    return context.texts.format(TextId::LotInfo,
                                {areaText(hectares(), context.locale.decimalSymbol())});
}

std::int32_t GphLote::ExportablePolygon_polygonNCount(const MapStyle& /*style*/,
                                                      std::int32_t polygon) const {
    return polygon == 0 && !vertices_.empty() ? getPointCnt() + 1 : 0;
}

LonLat GphLote::ExportablePolygon_polygonNpoint(std::int32_t polygon, std::int32_t point) const {
    if (polygon != 0) {
        throw std::out_of_range("GphLote.polygonNpoint: the only polygon is 0");
    }
    const auto index = static_cast<std::size_t>(point);
    return vertices_.at(point >= getPointCnt() ? 0 : index);
}

}  // namespace campora
