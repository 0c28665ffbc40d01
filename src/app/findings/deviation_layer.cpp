// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/deviation_layer.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <string>
#include <utility>

#include "app/figure_text.h"
#include "base/numbers.h"
#include "findings/compare.h"
#include "model/outline_rule.h"
#include "model/still_layer.h"
#include "model/swath_geometry.h"

namespace campora {

namespace {

/// Classes by deviation, least first, and two that are not judged.
constexpr std::array<double, 6> kBounds{-20, -10, -5, 5, 10, 20};  // per cent
constexpr std::uint8_t kClose = 3;
constexpr std::uint8_t kFarAbove = 6;
constexpr std::uint8_t kUndosed = 7;
constexpr std::uint8_t kUnprescribed = 8;
constexpr std::size_t kClasses = 9;

/// From blue over cream to brown: their order is seen by people who confuse red with green, and in
/// shades of grey they grow darker to both sides.
constexpr std::array<Color, kClasses> kColors{
    Color::rgb(0x1B, 0x4F, 0x9C), Color::rgb(0x5B, 0x9B, 0xD5), Color::rgb(0xB4, 0xD6, 0xEE),
    Color::rgb(0xFF, 0xF6, 0xCC), Color::rgb(0xFB, 0xC3, 0x6B), Color::rgb(0xE0, 0x82, 0x14),
    Color::rgb(0x7F, 0x3B, 0x08), Color::rgb(0x70, 0x70, 0x70), Color::rgb(0xCF, 0xCF, 0xCF)};

std::uint8_t classOf(const ComparedDose& dose) {
    if (!dose.prescribed) {
        return kUnprescribed;
    }
    const std::optional<double> deviation = dose.deviation();
    if (!deviation) {
        return dose.applied > 0 ? kFarAbove : kClose;  // where nothing was to be applied
    }
    if (std::abs(*deviation) <= kBounds[kClose]) {
        return kClose;
    }
    // A bound belongs to the class nearer to 0.
    const auto* const below =
        *deviation < 0 ? std::upper_bound(kBounds.begin(), kBounds.end(), *deviation,
                                          [](double value, double bound) { return value < bound; })
                       : std::lower_bound(kBounds.begin(), kBounds.end(), *deviation);
    return static_cast<std::uint8_t>(below - kBounds.begin());
}

/// What a step got and was to get in all of the channels together; said of none of them: nothing.
ComparedDose totalOf(const WorkRecord& record, LonLat middle, const DoseSource& source,
                     std::span<const ChannelPair> channels) {
    ComparedDose total;
    for (const ChannelPair& channel : channels) {
        if (const std::optional<float> dose = source.doseAt(middle, channel.ofSource)) {
            total.prescribed = total.prescribed.value_or(0) + *dose;
            const auto ofJob = static_cast<std::size_t>(channel.ofJob);
            total.applied += ofJob < record.channels ? record.applied[ofJob] : 0;
        }
    }
    return total;
}

/// The steps of a pass and their classes.
struct ClassedPass {
    std::vector<LonLat> points;
    std::vector<float> swaths;
    std::vector<std::uint8_t> classes;
    BoundingBox bound;
    float widest = 0;
};

/// Draws the steps of a pass; neighbours of one class and width are one figure.
class ClassPainter {
public:
    /// `undosed`: the steps without a dose, or all others.
    ClassPainter(MapContext& context, const ClassedPass& pass, bool undosed)
        : context_(context),
          pass_(pass),
          undosed_(undosed),
          sides_(pass.points),
          ink_(context.canvas.penColor()) {}

    void draw() {
        for (std::size_t i = 0; i < pass_.classes.size(); ++i) {
            const float swath = pass_.swaths[i];
            const bool isShown = (pass_.classes[i] == kUndosed) == undosed_;
            if (!isShown || !context_.view.mayTouch(pass_.points[i], pass_.points[i + 1],
                                                    kMitreLimit * std::abs(swath))) {
                finish(i);
                continue;
            }
            if (isOpen_ && (pass_.classes[i] != pass_.classes[i - 1] ||
                            pass_.swaths[i] != pass_.swaths[i - 1])) {
                finish(i);
            }
            if (!std::exchange(isOpen_, true)) {
                addEdge(i, swath);
            }
            addEdge(i + 1, swath);
        }
        finish(pass_.classes.size());
        context_.canvas.setPenColor(ink_);
    }

private:
    void addEdge(std::size_t point, float swath) {
        const auto [at, leftCosine, rightCosine] = sides_.corners(point, swath);
        left_.push_back(context_.view.mapToScreen(at.left.x, at.left.y, leftCosine));
        right_.push_back(context_.view.mapToScreen(at.right.x, at.right.y, rightCosine));
    }

    /// `next`: the first step behind those that are collected.
    void finish(std::size_t next) {
        if (!std::exchange(isOpen_, false)) {
            return;
        }
        const Color color = kColors[pass_.classes[next - 1]];
        const bool inInk =
            context_.style.drawBorders && isOutlined(left_, right_, context_.leastOutlined);
        left_.insert(left_.end(), right_.rbegin(), right_.rend());
        context_.canvas.setFillColor(color);
        context_.canvas.setPenColor(inInk ? ink_ : color);
        context_.canvas.polygon(left_);
        left_.clear();
        right_.clear();
    }

    MapContext& context_;
    const ClassedPass& pass_;
    bool undosed_;
    SwathSides sides_;
    Color ink_;
    bool isOpen_ = false;
    std::vector<CanvasPoint> left_;
    std::vector<CanvasPoint> right_;
};

class DeviationLayer final : public StillLayer, public ModeLayer {
public:
    /// `netHa`: of the steps of this job and of those behind it, which are left.
    void add(const PlannedJob& job, std::optional<int> channel, std::span<const double>& netHa) {
        const std::vector<ChannelPair> channels =
            job.source == nullptr ? std::vector<ChannelPair>{}
                                  : channelPairs(job.work, *job.source, channel);
        for (const WorkLayer* layer : job.work) {
            add(*layer, job.source, channels, netHa);
        }
    }
    [[nodiscard]] bool isEmpty() const { return passes_.empty(); }

    [[nodiscard]] std::string_view Gph_kind() const override { return "DeviationLayer"; }
    [[nodiscard]] std::int32_t Gph_count() const override { return steps_; }
    [[nodiscard]] const BoundingBox& Gph_bound() const override { return bound_; }
    void Gph_plot(MapContext& context) const override {
        // A turn without a dose hides nothing of what was done.
        if (context.style.drawAll) {
            plot(context, true);
        }
        plot(context, false);
    }

    [[nodiscard]] const Gph& layer() const override { return *this; }
    [[nodiscard]] LegendContent legend(const Desk& desk) const override;

private:
    void plot(MapContext& context, bool undosed) const {
        for (const ClassedPass& pass : passes_) {
            if (context.view.isFitted() &&
                context.view.mayTouch(pass.bound, kMitreLimit * static_cast<double>(pass.widest))) {
                ClassPainter(context, pass, undosed).draw();
            }
        }
    }
    void add(const WorkLayer& layer, const DoseSource* source,
             std::span<const ChannelPair> channels, std::span<const double>& netHa) {
        ClassedPass pass;
        forEachStep(layer, [&](const WorkRecord& from, const WorkRecord& to) {
            if (pass.points.empty()) {
                addPoint(pass, from.position);
            }
            addPoint(pass, to.position);
            const ComparedDose dose = source == nullptr
                                          ? ComparedDose()
                                          : totalOf(from, stepMiddle(from, to), *source, channels);
            const std::uint8_t ofStep = from.worked ? classOf(dose) : kUndosed;
            pass.classes.push_back(ofStep);
            pass.swaths.push_back(from.swath);
            pass.widest = std::max(pass.widest, std::abs(from.swath));
            hectares_[ofStep] += from.worked ? netHa.front() : stepHectares(from, to);
            netHa = netHa.subspan(1);
        });
        if (!pass.classes.empty()) {
            steps_ += static_cast<std::int32_t>(pass.classes.size());
            bound_.addBoundingBox(pass.bound);
            passes_.push_back(std::move(pass));
        }
    }
    static void addPoint(ClassedPass& pass, LonLat point) {
        pass.points.push_back(point);
        pass.bound.addPoint(point.x, point.y);
    }

    std::vector<ClassedPass> passes_;
    BoundingBox bound_;
    std::int32_t steps_ = 0;
    std::array<double, kClasses> hectares_{};
};

/// With its sign, a true minus.
std::string signedText(double percent) {
    return (percent < 0 ? "−" : "+") + numberText(std::abs(percent));
}

LegendContent DeviationLayer::legend(const Desk& desk) const {
    const FigureText figure(desk.locale);
    const auto hectares = [&](std::size_t ofClass) { return figure.number(hectares_[ofClass], 2); };
    const Texts& texts = desk.texts;
    LegendContent legend;
    legend.unit = texts(TextId::DeviationUnit);
    legend.classes.push_back(
        {kColors[0],
         texts.format(TextId::DeviationBelow, {numberText(-kBounds.front()), hectares(0)})});
    for (std::size_t i = 1; i < kBounds.size(); ++i) {
        legend.classes.push_back({kColors[i], texts.format(TextId::DeviationBetween,
                                                           {signedText(kBounds[i - 1]),
                                                            signedText(kBounds[i]), hectares(i)})});
    }
    legend.classes.push_back(
        {kColors[kFarAbove],
         texts.format(TextId::DeviationAbove, {numberText(kBounds.back()), hectares(kFarAbove)})});
    legend.reference = {
        {kColors[kUndosed], texts.format(TextId::DeviationUndosed, {hectares(kUndosed)})},
        {kColors[kUnprescribed],
         texts.format(TextId::DeviationUnprescribed, {hectares(kUnprescribed)})}};
    return legend;
}

}  // namespace

std::unique_ptr<ModeLayer> makeDeviationLayer(std::span<const PlannedJob> jobs,
                                              std::span<const double> netHa,
                                              std::optional<int> channel) {
    auto made = std::make_unique<DeviationLayer>();
    for (const PlannedJob& job : jobs) {
        made->add(job, channel, netHa);
    }
    return made->isEmpty() ? nullptr : std::move(made);
}

}  // namespace campora
