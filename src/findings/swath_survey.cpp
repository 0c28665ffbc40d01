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
