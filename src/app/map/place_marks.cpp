// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/place_marks.h"

#include <algorithm>
#include <array>
#include <cstdint>
#include <cstdlib>
#include <optional>
#include <string_view>
#include <utility>
#include <vector>

#include "app/overlay_layout.h"
#include "base/numbers.h"

namespace campora {

namespace {

constexpr std::int32_t kPixel = 15;
/// Places that are smaller both ways are marked; their frames have this size.
constexpr std::int32_t kSmall = 12 * kPixel;
constexpr std::int32_t kReach = kSmall / 2;
/// From a frame to its name, and from a name to the edge of its plate.
constexpr std::int32_t kGap = 3 * kPixel;
constexpr std::int32_t kPadding = 2 * kPixel;
/// Where the scale bar stands, with its text.
constexpr CanvasPoint kBarCorner{overlay::kBarRight.x + 2 * kGap,
                                 overlay::kTickLeftBottom.y + kGap};

struct Plate {
    CanvasPoint from;
    CanvasPoint to;
};

bool overlap(const Plate& a, const Plate& b) {
    return a.from.x < b.to.x && b.from.x < a.to.x && a.from.y < b.to.y && b.from.y < a.to.y;
}

struct Mark {
    CanvasPoint middle;
    std::string_view name;
    int others = 0;
};

/// The middle of a place that is small, and on the canvas.
std::optional<CanvasPoint> smallPlace(const BoundingBox& box, const ViewTransform& view) {
    if (!view.mayTouch(box, 0)) {
        return std::nullopt;
    }
    const CanvasPoint low = view.mapToScreen(box.minX, box.minY);
    const CanvasPoint high = view.mapToScreen(box.maxX, box.maxY);
    if (std::abs(std::int64_t{high.x} - low.x) >= kSmall ||
        std::abs(std::int64_t{high.y} - low.y) >= kSmall) {
        return std::nullopt;
    }
    const CanvasPoint middle{low.x + (high.x - low.x) / 2, low.y + (high.y - low.y) / 2};
    const auto [width, height] = view.canvas();
    const bool isSeen = middle.x >= 0 && middle.x <= width && middle.y >= 0 && middle.y <= height;
    return isSeen ? std::optional(middle) : std::nullopt;
}

std::vector<Mark> marksOf(std::span<const MarkedPlace> places, const ViewTransform& view) {
    std::vector<Mark> marks;
    for (const auto& [bound, name] : places) {
        const std::optional<CanvasPoint> at = smallPlace(bound, view);
        if (!at) {
            continue;
        }
        const auto near = std::find_if(marks.begin(), marks.end(), [&at](const Mark& mark) {
            return std::abs(mark.middle.x - at->x) < kSmall &&
                   std::abs(mark.middle.y - at->y) < kSmall;
        });
        if (near != marks.end()) {
            ++near->others;
        } else {
            marks.push_back({*at, name});
        }
    }
    return marks;
}

/// Beside, below or above the frame, where nothing is in the way.
std::optional<Plate> roomFor(const Mark& mark, CanvasSize text, CanvasSize canvas,
                             const std::vector<Plate>& taken) {
    const auto [x, y] = mark.middle;
    const std::int32_t width = text.width + 2 * kPadding;
    const std::int32_t height = text.height + 2 * kPadding;
    const std::int32_t away = kReach + kGap;
    const std::array<CanvasPoint, 4> corners{{{x + away, y - height / 2},
                                              {x - away - width, y - height / 2},
                                              {x - width / 2, y + away},
                                              {x - width / 2, y - away - height}}};
    for (const CanvasPoint& corner : corners) {
        const Plate plate{corner, {corner.x + width, corner.y + height}};
        const bool isInside = corner.x >= 0 && corner.y >= 0 && plate.to.x <= canvas.width &&
                              plate.to.y <= canvas.height;
        if (isInside && std::none_of(taken.begin(), taken.end(), [&plate](const Plate& other) {
                return overlap(plate, other);
            })) {
            return plate;
        }
    }
    return std::nullopt;
}

}  // namespace

void drawPlaceMarks(const MapContext& context, std::span<const MarkedPlace> places,
                    const Texts& texts) {
    if (!context.view.isFitted()) {
        return;
    }
    MapCanvas& canvas = context.canvas;
    const auto [ink, back] = std::pair(context.style.colors.fore, context.style.colors.back);
    const std::vector<Mark> marks = marksOf(places, context.view);
    std::vector<Plate> taken{{{0, 0}, kBarCorner}};
    for (const auto& [middle, name, others] : marks) {
        const Plate frame{{middle.x - kReach, middle.y - kReach},
                          {middle.x + kReach, middle.y + kReach}};
        canvas.rectangle(frame.from, frame.to, ink, RectangleStyle::Outlined);
        taken.push_back(frame);
    }
    canvas.setPenColor(ink);
    for (const Mark& mark : marks) {
        const std::string text =
            mark.others == 0 ? std::string(mark.name)
                             : texts.format(TextId::TitleAndOthers,
                                            {std::string(mark.name), numberText(mark.others)});
        const auto plate = roomFor(mark, canvas.textSize(text, false), canvas.size(), taken);
        if (plate) {
            canvas.rectangle(plate->from, plate->to, back, RectangleStyle::Filled);
            canvas.text({plate->from.x + kPadding, plate->from.y + kPadding}, text,
                        TextAnchor::TopLeft, false);
            taken.push_back(*plate);
        }
    }
}

}  // namespace campora
