// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <array>
#include <cstddef>
#include <cstdint>
#include <iterator>
#include <span>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "base/numbers.h"
#include "platform/map_canvas.h"

namespace campora {

/// A canvas that writes down what is drawn on it, one line a call, with the state that matters for
/// that call at that moment; changes of state alone leave no line:
///
///     line 0x0000FF width=1 solid: (1,2) (3,4)
///     rectangle filled 0x0000FF: (1,2) (3,4)
///     polypolygon fill=0xFF8080 style=solid pen=0x000000 width=1 solid: (1,2) (3,4) / (5,6) (7,8)
///     text pen=0x000000 top-centre bold: (1,2) "abc"
///     picture up: (1,2) 30x40
///
/// Colours are 0xBBGGRR. Every character of a text is 120 units wide (150 in bold) and 240 high.
class RecordingCanvas : public MapCanvas {
public:
    explicit RecordingCanvas(CanvasSize size) : size_(size) {}

    [[nodiscard]] const std::vector<std::string>& calls() const { return calls_; }
    /// The calls that begin with `kind` ("polygon", "line"...).
    [[nodiscard]] std::vector<std::string> callsOf(std::string_view kind) const {
        std::vector<std::string> found;
        std::copy_if(calls_.begin(), calls_.end(), std::back_inserter(found),
                     [kind](const std::string& call) { return call.starts_with(kind); });
        return found;
    }

    /// Forgets the calls; size and state stay.
    void forget() { calls_.clear(); }
    void resize(CanvasSize size) { size_ = size; }

    [[nodiscard]] PointerShape pointer() const { return pointer_; }

    [[nodiscard]] CanvasSize size() const override { return size_; }
    void clear() override { add("clear " + hex(background_)); }
    void setBackgroundColor(Color color) override { background_ = color; }
    [[nodiscard]] Color backgroundColor() const override { return background_; }
    void setPenColor(Color color) override { pen_ = color; }
    [[nodiscard]] Color penColor() const override { return pen_; }
    void setPenWidth(int pixels) override { penWidth_ = pixels; }
    void setPenStyle(PenStyle style) override { penStyle_ = style; }
    [[nodiscard]] PenStyle penStyle() const override { return penStyle_; }
    void setFillColor(Color color) override { fill_ = color; }
    void setFillStyle(FillStyle style) override { fillStyle_ = style; }

    void line(CanvasPoint from, CanvasPoint to, Color color) override {
        add("line " + hex(color) + penForm() + ":" + place(from) + place(to));
    }
    void rectangle(CanvasPoint corner, CanvasPoint opposite, Color color,
                   RectangleStyle style) override {
        const bool filled = style == RectangleStyle::Filled;
        add((filled ? "rectangle filled " : "rectangle outlined ") + hex(color) +
            (filled ? "" : penForm()) + ":" + place(corner) + place(opposite));
    }
    void point(CanvasPoint at, Color color) override {
        add("point " + hex(color) + " width=" + std::to_string(penWidth_) + ":" + place(at));
    }
    void polygon(std::span<const CanvasPoint> ring) override {
        add("polygon" + fillForm() + ":" + corners(ring));
    }
    void polyPolygon(std::span<const std::span<const CanvasPoint>> rings) override {
        std::string call = "polypolygon" + fillForm() + ":";
        const char* separator = "";
        for (const std::span<const CanvasPoint> ring : rings) {
            call += separator + corners(ring);
            separator = " /";
        }
        add(std::move(call));
    }
    void text(CanvasPoint at, std::string_view text, TextAnchor anchor, bool bold) override {
        add("text pen=" + hex(pen_) +
            (anchor == TextAnchor::TopLeft ? " top-left" : " top-centre") +
            (bold ? " bold:" : ":") + place(at) + " \"" + std::string(text) + "\"");
    }
    [[nodiscard]] CanvasSize textSize(std::string_view text, bool bold) const override {
        const auto characters = std::count_if(text.begin(), text.end(), [](char byte) {
            return (static_cast<unsigned char>(byte) & 0xC0U) != 0x80U;
        });
        return {static_cast<std::int32_t>(characters) * (bold ? 150 : 120), 240};
    }
    void paintPicture(MapPicture picture, CanvasPoint topLeft, CanvasSize size) override {
        constexpr std::array kNames = {"up", "down", "right", "left"};
        add("picture " + std::string(kNames.at(static_cast<std::size_t>(picture))) + ":" +
            place(topLeft) + " " + std::to_string(size.width) + "x" + std::to_string(size.height));
    }
    /// One white pixel: a recording has no picture.
    [[nodiscard]] Picture picture() const override { return {1, 1, {0xFFFFFFFFU}}; }
    void takeSnapshot() override { add("snapshot"); }
    void paintSnapshot(CanvasPoint offset, double factor) override {
        add("paint snapshot:" + place(offset) + (factor == 1 ? "" : " x" + std::to_string(factor)));
    }
    void refresh() override { add("refresh"); }
    void setPointer(PointerShape shape) override { pointer_ = shape; }

private:
    void add(std::string call) { calls_.push_back(std::move(call)); }
    [[nodiscard]] static std::string hex(Color color) { return "0x" + hexText(color.value, 6); }
    [[nodiscard]] static std::string place(CanvasPoint at) {
        return " (" + std::to_string(at.x) + "," + std::to_string(at.y) + ")";
    }
    [[nodiscard]] static std::string corners(std::span<const CanvasPoint> ring) {
        std::string text;
        for (const CanvasPoint& corner : ring) {
            text += place(corner);
        }
        return text;
    }
    [[nodiscard]] std::string fillForm() const {
        return " fill=" + hex(fill_) +
               (fillStyle_ == FillStyle::Solid     ? " style=solid"
                : fillStyle_ == FillStyle::Hatched ? " style=hatched"
                                                   : " style=transparent") +
               " pen=" + hex(pen_) + penForm();
    }
    [[nodiscard]] std::string penForm() const {
        return " width=" + std::to_string(penWidth_) +
               (penStyle_ == PenStyle::Dotted ? " dotted" : " solid");
    }

    CanvasSize size_;
    Color background_{0xFFFFFF};
    Color pen_{0x000000};
    Color fill_{0x000000};
    FillStyle fillStyle_ = FillStyle::Solid;
    PointerShape pointer_ = PointerShape::Arrow;
    int penWidth_ = 1;
    PenStyle penStyle_ = PenStyle::Solid;
    std::vector<std::string> calls_;
};

}  // namespace campora
