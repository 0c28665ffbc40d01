// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// How a track draws itself: steps that follow each other with one flow, width and colour become one
// polygon.

#include <cmath>
#include <cstdint>
#include <optional>
#include <span>

#include "model/outline_rule.h"
#include "work/gph_track.h"
#include "work/swath_geometry.h"

namespace campora {

namespace {

/// Draws steps of one track, in order. Templated on the kind of record so that nothing in the loop
/// over the steps is a virtual call but what the canvas does.
template <typename Record>
class TrackPainter {
public:
    TrackPainter(MapContext& context, std::span<const LonLat> points,
                 std::span<const Record> records)
        : canvas_(context.canvas),
          view_(context.view),
          style_(context.style),
          leastOutlined_(context.leastOutlined),
          ink_(context.canvas.penColor()),
          points_(points),
          records_(records) {}

    /// Steps `first` to `last` - 1; whether anything of them was drawn.
    bool draw(std::size_t first, std::size_t last) {
        for (std::size_t i = first; i < last; ++i) {
            drawStep(i);
        }
        finishRun();
        canvas_.setPenColor(ink_);
        return drawn_;
    }

private:
    /// The sides of the swath on the canvas at a point, for swaths of that width.
    struct Edge {
        std::size_t point;
        float swath;
        CanvasPoint left;
        CanvasPoint right;
    };
    /// What all steps of a run have in common.
    struct Run {
        float flow;
        float swath;
        Color color;

        bool operator==(const Run&) const = default;
    };

    void drawStep(std::size_t i) {
        const Record& record = records_[i];
        const float swath = record.trocha();
        if (!view_.mayTouch(points_[i], points_[i + 1], kMitreLimit * std::abs(swath))) {
            finishRun();
            return;
        }
        const float flow = record.caudal();
        if (style_.drawAll || flow > 0) {
            addToRun(i, {flow, swath, record.color(style_)});
        } else {
            finishRun();
        }
        if (flow <= 0 && style_.drawDotted) {
            dotted_.push_back(i);
        }
        if (!run_) {
            drawCentrelines();
        }
    }

    void addToRun(std::size_t i, const Run& step) {
        if (run_ && *run_ != step) {
            finishRun();
        }
        if (!run_) {
            run_ = step;
            addEdge(i);
        }
        addEdge(i + 1);
    }

    void addEdge(std::size_t point) {
        const float swath = run_->swath;
        // The edge between two runs of one width belongs to both.
        if (!lastEdge_ || lastEdge_->point != point || lastEdge_->swath != swath) {
            const SwathCorners corners = swathCorners(points_, point, swath);
            lastEdge_ = {point, swath, view_.mapToScreen(corners.left.x, corners.left.y),
                         view_.mapToScreen(corners.right.x, corners.right.y)};
        }
        ring_.push_back(lastEdge_->left);
        rightSide_.push_back(lastEdge_->right);
    }

    void finishRun() {
        if (!run_) {
            return;
        }
        ring_.insert(ring_.end(), rightSide_.rbegin(), rightSide_.rend());
        const bool inInk = style_.drawBorders && isOutlined(ring_, leastOutlined_);
        canvas_.setFillColor(run_->color);
        canvas_.setPenColor(inInk ? ink_ : run_->color);
        canvas_.polygon(ring_);
        ring_.clear();
        rightSide_.clear();
        run_.reset();
        drawn_ = true;
        drawCentrelines();
    }

    /// The dotted lines lie on top of the swath of their own steps.
    void drawCentrelines() {
        for (const std::size_t i : dotted_) {
            drawCentreline(points_[i], points_[i + 1]);
        }
        dotted_.clear();
    }

    void drawCentreline(LonLat from, LonLat to) {
        const PenStyle before = canvas_.penStyle();
        canvas_.setPenStyle(PenStyle::Dotted);
        canvas_.line(view_.mapToScreen(from.x, from.y), view_.mapToScreen(to.x, to.y),
                     style_.colors.noDraw);
        canvas_.setPenStyle(before);
        drawn_ = true;
    }

    MapCanvas& canvas_;
    const ViewTransform& view_;
    const MapStyle& style_;
    const std::int32_t leastOutlined_;
    const Color ink_;
    std::span<const LonLat> points_;
    std::span<const Record> records_;

    std::optional<Run> run_;
    std::optional<Edge> lastEdge_;
    std::vector<CanvasPoint> ring_;  // the left side until the run is finished
    std::vector<CanvasPoint> rightSide_;
    std::vector<std::size_t> dotted_;  // steps of the run that get a centreline
    bool drawn_ = false;
};

bool drawSteps(MapContext& context, const GphTrack& track, std::size_t first, std::size_t last) {
    return std::visit(
        [&](const auto& records) {
            return TrackPainter(context, std::span(track.points()), std::span(records))
                .draw(first, last);
        },
        track.records());
}

}  // namespace

void GphTrack::Gph_plot(MapContext& context) const {
    const ViewTransform& view = context.view;
    if (view.isFitted() && Gph_count() > 0 && view.mayTouch(bound_, kMitreLimit * widestSwath_)) {
        drawSteps(context, *this, 0, points_.size() - 1);
    }
}

bool GphTrack::Gph_plotN(MapContext& context, std::int32_t n) const {
    if (!context.view.isFitted() || !isStep(n)) {
        return false;
    }
    const auto i = static_cast<std::size_t>(n);
    return drawSteps(context, *this, i, i + 1);
}

}  // namespace campora
