// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/swath_survey.h"

#include <algorithm>
#include <cmath>
#include <cstdint>

#include "model/geodesy.h"

namespace campora {

namespace {

/// Along the side of a square as large as the job.
constexpr double kCellsAcross = 1000;
/// In the mean swath.
constexpr double kCellsInSwath = 16;
constexpr double kSmallestCell = 0.1;  // metres
constexpr double kLargestCell = 1;
constexpr double kMostCells = 5e8;

void addStep(SwathSurvey& survey, const WorkRecord& record, LonLat to) {
    const LonLat from = record.position;
    const double metres = stepMetres(from, to);
    const double squareMetres = metres * std::abs(static_cast<double>(record.swath));
    SwathStrip& strip = survey.strips.back();
    strip.widths.push_back(0);
    if (!std::isfinite(squareMetres)) {
        return;
    }
    if (!record.worked) {
        survey.undosedSquareMetres += squareMetres;
        return;
    }
    strip.widths.back() = std::abs(record.swath);
    survey.dosedSquareMetres += squareMetres;
    survey.dosedMetres += metres;
    const double dx = (to.x - from.x) * cosineOfLatitude(to.y);
    const double angle = 4 * std::atan2(to.y - from.y, dx);
    survey.east += metres * std::cos(angle);
    survey.north += metres * std::sin(angle);
    for (const LonLat at : {from, to}) {
        survey.least = {std::min(survey.least.x, at.x), std::min(survey.least.y, at.y)};
        survey.greatest = {std::max(survey.greatest.x, at.x), std::max(survey.greatest.y, at.y)};
    }
}

/// From one point to the next, in metres, as far as directions and lengths on a field need it.
struct Way {
    double east = 0;
    double north = 0;

    [[nodiscard]] double length() const { return std::hypot(east, north); }
};

/// Radians between the borders of a step, each of which halves the turn at its point.
double turnOver(const std::vector<Way>& steps, std::size_t step) {
    const Way& before = steps[step > 0 ? step - 1 : 0];
    const Way& after = steps[std::min(step + 1, steps.size() - 1)];
    const double sine = before.east * after.north - before.north * after.east;
    const double cosine = before.east * after.east + before.north * after.north;
    return std::abs(std::atan2(sine, cosine)) / 2;
}

/// Marks a step, from an end of the strip on, when it folds or lies less than half a width behind
/// one that does, which is as far as a swath reaches over.
class FoldMarker {
public:
    FoldMarker(SwathStrip& strip, const std::vector<Way>& steps) : strip_(strip), steps_(steps) {}

    void mark(std::size_t step) {
        const double metres = steps_[step].length();
        const auto width = static_cast<double>(strip_.widths[step]);
        // On the inner side the swath goes back where the borders turn faster than it goes on.
        if (metres < width / 2 * turnOver(steps_, step)) {
            left_ = width / 2;
        }
        if (left_ > 0) {
            strip_.folds[step] = true;
            left_ -= metres;
        }
    }

private:
    SwathStrip& strip_;
    const std::vector<Way>& steps_;
    double left_ = 0;
};

void markFolds(SwathStrip& strip) {
    const std::size_t count = strip.widths.size();
    strip.folds.assign(count, false);
    std::vector<Way> steps(count);
    for (std::size_t i = 0; i < count; ++i) {
        const LonLat from = strip.points[i];
        const LonLat to = strip.points[i + 1];
        steps[i] = {(to.x - from.x) * metresPerDegreeEast(to.y),
                    (to.y - from.y) * METERS_PER_DEGREE};
    }
    FoldMarker forwards(strip, steps);
    for (std::size_t i = 0; i < count; ++i) {
        forwards.mark(i);
    }
    FoldMarker backwards(strip, steps);
    for (std::size_t i = count; i > 0; --i) {
        backwards.mark(i - 1);
    }
}

}  // namespace

SwathSurvey surveySwaths(std::span<const WorkLayer* const> passes) {
    SwathSurvey survey;
    for (const WorkLayer* pass : passes) {
        survey.strips.emplace_back();
        WorkRecord before;
        for (std::int32_t n = 0; n < pass->recordCount(); ++n) {
            const WorkRecord record = pass->recordN(n);
            if (n > 0) {
                addStep(survey, before, record.position);
            }
            survey.strips.back().points.push_back(record.position);
            before = record;
        }
        markFolds(survey.strips.back());
    }
    return survey;
}

GroundLattice latticeFor(const SwathSurvey& survey) {
    double side = kLargestCell;
    if (survey.dosedSquareMetres > 0) {
        const double fine = std::min(std::sqrt(survey.dosedSquareMetres) / kCellsAcross,
                                     survey.meanSwath() / kCellsInSwath);
        side = std::max(std::clamp(fine, kSmallestCell, kLargestCell),
                        std::sqrt(survey.dosedSquareMetres / kMostCells));
    }
    const LonLat middle{(survey.least.x + survey.greatest.x) / 2,
                        (survey.least.y + survey.greatest.y) / 2};
    return {middle, side, std::atan2(survey.north, survey.east) / 4};
}

}  // namespace campora
