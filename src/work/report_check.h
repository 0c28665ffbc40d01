// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <algorithm>
#include <cstddef>
#include <limits>
#include <optional>

#include "base/failure.h"
#include "base/lon_lat.h"

namespace campora {

/// Tells bytes that are plainly no report from those of one: positions of one job lie together, and
/// most of its records have one.
class ReportCheck {
public:
    void addKept(LonLat position);
    void addDropped(std::size_t records = 1) { dropped_ += records; }
    /// Why it is no report; none when it may be one.
    [[nodiscard]] std::optional<Failure> refusal() const;

private:
    /// Least and greatest of a coordinate.
    struct Span {
        double least = std::numeric_limits<double>::infinity();
        double greatest = -std::numeric_limits<double>::infinity();

        void add(double value) {
            least = std::min(least, value);
            greatest = std::max(greatest, value);
        }
        [[nodiscard]] double degrees() const { return greatest - least; }
    };

    Span latitude_;
    Span longitude_;
    /// Counted from 0 to 360, for fields on the date line.
    Span eastward_;
    std::size_t kept_ = 0;
    std::size_t dropped_ = 0;
};

}  // namespace campora
