// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include "findings/work_way.h"

namespace campora {

/// What is usual in a job, by which the unusual is told. Jobs without what a bound needs have none.
struct UsualWork {
    /// The range of speeds, km/h: the quartiles of the dosed seconds, and on either side one and a
    /// half times the distance between them (the inner fences of Tukey, Exploratory Data Analysis,
    /// 1977), which a quarter of odd seconds cannot move. At least a fifth of the median stands for
    /// the distance: every pass of a machine that holds its speed begins and ends more slowly.
    std::optional<float> slowest;
    std::optional<float> fastest;
    /// Seconds: a step that takes longer lacks records. Five of the usual intervals of the clock,
    /// and not less than `kTurnSeconds`, as consoles skip a few records while they save.
    std::optional<double> longestStep;
    /// Metres: five steps of the usual length (median of those that move), and not less than 25, so
    /// that the coarse positions of a slow machine are no gaps.
    double farthestStep = 0;
    /// Metres: the swath of the greatest part of the dosed way, to the centimetre; 0 for none.
    float swath = 0;
};

/// The bound of that name alone.
[[nodiscard]] std::optional<double> longestStep(const WorkWay& way);

[[nodiscard]] UsualWork usualWork(const WorkWay& way);

/// Whether a swath is another one: centimetres apart, as logs round to one.
[[nodiscard]] bool isOtherSwath(float swath, float usual);

}  // namespace campora
