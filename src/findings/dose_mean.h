// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cmath>
#include <optional>

namespace campora {

/// Mean and spread of doses, each with the ground that got it; adds up without losing digits where
/// a million doses are nearly alike (West, Communications of the ACM 22 (9), 1979).
class DoseMean {
public:
    /// Any unit of ground; doses that are no number, and doses on no ground, do not count.
    void add(double dose, double ground) {
        if (!(ground > 0) || !std::isfinite(dose)) {
            return;
        }
        ground_ += ground;
        const double off = dose - mean_;
        mean_ += off * ground / ground_;
        squares_ += ground * off * (dose - mean_);
    }
    /// None without ground.
    [[nodiscard]] std::optional<double> mean() const {
        return ground_ > 0 ? std::optional(mean_) : std::nullopt;
    }
    /// Standard deviation of the dose over the ground; none without ground.
    [[nodiscard]] std::optional<double> deviation() const {
        return ground_ > 0 ? std::optional(std::sqrt(std::max(squares_, 0.0) / ground_))
                           : std::nullopt;
    }

private:
    double ground_ = 0;
    double mean_ = 0;
    double squares_ = 0;
};

}  // namespace campora
