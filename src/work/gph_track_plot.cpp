// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// How a track draws itself: steps that follow each other with one flow, width and colour become one
// polygon.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <span>

#include "model/geodesy.h"
#include "model/outline_rule.h"
#include "model/swath_geometry.h"
#include "work/gph_track.h"

namespace campora {

namespace {

constexpr double kPixelUnits = 15;

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
          records_(records),
          sides_(points),
          pixel_(kPixelUnits * static_cast<double>(context.view.scaleY()) / METERS_PER_DEGREE) {}

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

    /// Draws the run that is being collected, if any: what follows is not drawn or looks otherwise.
    void finishRun() {
        if (!run_) {
            return;
        }
        drawRun(isFlowSmall_);
        run_.reset();
        drawn_ = true;
        drawCentrelines();
    }

    /// Draws what is left; whether anything was drawn at all.
    bool finish() {
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
    /// What all steps of a run have in common. Flows of less than a pixel each that follow each
    /// other in one colour and width are drawn as one run, without ink, which none of them alone
    /// would have; the flow is then the last one.
    struct Run {
        float flow;
        float swath;
        Color color;
    };

    [[nodiscard]] bool isBelowPixel(std::size_t from, std::size_t to) const {
        return std::abs(points_[to].x - points_[from].x) < pixel_ &&
               std::abs(points_[to].y - points_[from].y) < pixel_;
    }

    [[nodiscard]] bool goesOn(const Run& step, std::size_t i) const {
        return run_->swath == step.swath && run_->color == step.color &&
               (run_->flow == step.flow || (isFlowSmall_ && isBelowPixel(i, i + 1)));
    }

    void beginFlow(std::size_t point, std::size_t edge) {
        flowPoint_ = point;
        flowEdge_ = edge;
        isFlowSmall_ = true;
    }

    void addToRun(std::size_t i, const Run& step) {
        if (run_ && !goesOn(step, i)) {
            finishRun();
        }
        if (!run_) {
            run_ = step;
            beginFlow(i, 0);
            addEdge(i);
        } else if (run_->flow != step.flow) {
            run_->flow = step.flow;
            beginFlow(i, ring_.size() - 1);
        }
        addEdge(i + 1);
        isFlowSmall_ = isFlowSmall_ && isBelowPixel(flowPoint_, i + 1);
        if (flowEdge_ > 0 && !isFlowSmall_) {
            splitRun();
        }
    }

    /// Draws the run up to where its last flow began, which has become too long for it.
    void splitRun() {
        const auto edge = static_cast<std::ptrdiff_t>(flowEdge_);
        std::vector<CanvasPoint> left(ring_.begin() + edge, ring_.end());
        std::vector<CanvasPoint> right(rightSide_.begin() + edge, rightSide_.end());
        ring_.resize(flowEdge_ + 1);
        rightSide_.resize(flowEdge_ + 1);
        drawRun(true);
        ring_.swap(left);
        rightSide_.swap(right);
        flowEdge_ = 0;
    }

    void drawRun(bool ofSmallFlows) {
        const bool inInk =
            style_.drawBorders && !ofSmallFlows && isOutlined(ring_, rightSide_, leastOutlined_);
        ring_.insert(ring_.end(), rightSide_.rbegin(), rightSide_.rend());
        canvas_.setFillColor(run_->color);
        canvas_.setPenColor(inInk ? ink_ : run_->color);
        canvas_.polygon(ring_);
        ring_.clear();
        rightSide_.clear();
    }

    void addEdge(std::size_t point) {
        const float swath = run_->swath;
        // The edge between two runs of one width belongs to both.
        if (!lastEdge_ || lastEdge_->point != point || lastEdge_->swath != swath) {
            const auto [at, leftCosine, rightCosine] = sides_.corners(point, swath);
            lastEdge_ = {point, swath, view_.mapToScreen(at.left.x, at.left.y, leftCosine),
                         view_.mapToScreen(at.right.x, at.right.y, rightCosine)};
        }
        ring_.push_back(lastEdge_->left);
        rightSide_.push_back(lastEdge_->right);
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

    SwathSides sides_;
    const double pixel_;  // degrees of latitude
    std::optional<Run> run_;
    std::size_t flowPoint_ = 0;  // where the last flow of the run began
    std::size_t flowEdge_ = 0;   // its place in the sides
    bool isFlowSmall_ = true;    // it has stayed within a pixel
    std::optional<Edge> lastEdge_;
    std::vector<CanvasPoint> ring_;  // the left side until the run is finished
    std::vector<CanvasPoint> rightSide_;
    std::vector<std::size_t> dotted_;  // steps of the run that get a centreline
    bool drawn_ = false;
};

/// Calls `draw` with a painter of the track's kind of records; what it answers.
template <typename Draw>
bool withPainter(MapContext& context, const GphTrack& track, Draw draw) {
    return std::visit(
        [&](const auto& records) {
            TrackPainter painter(context, std::span(track.points()), std::span(records));
            draw(painter);
            return painter.finish();
        },
        track.records());
}

}  // namespace

void GphTrack::Gph_plot(MapContext& context) const {
    const ViewTransform& view = context.view;
    if (view.isFitted() && Gph_count() > 0 && view.mayTouch(bound_, kMitreLimit * widestSwath_)) {
        withPainter(context, *this, [&](auto& painter) {
            const auto steps = static_cast<std::size_t>(Gph_count());
            for (std::size_t i = 0; i < steps; ++i) {
                const std::size_t next = i % kStretch == 0 ? firstThatMayTouch(view, i) : i;
                if (next != i) {
                    painter.finishRun();
                }
                i = next;
                if (i < steps) {
                    painter.drawStep(i);
                }
            }
        });
    }
}

bool GphTrack::Gph_plotN(MapContext& context, std::int32_t n) const {
    if (!context.view.isFitted() || !isStep(n)) {
        return false;
    }
    const auto i = static_cast<std::size_t>(n);
    return withPainter(context, *this, [i](auto& painter) { painter.drawStep(i); });
}

}  // namespace campora
