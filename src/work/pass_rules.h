// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <limits>
#include <optional>

#include "base/lon_lat.h"

namespace campora {

/// A step in degrees of latitude both ways; zero for one that does not move.
struct StepDirection {
    double x = 0;
    double y = 0;
};

[[nodiscard]] StepDirection stepDirection(LonLat from, LonLat to);

/// The angle between two steps that follow each other, in degrees: 0 straight on, 90 a right angle,
/// and 0 for an exact reversal, or where a step does not move, too.
[[nodiscard]] float turningAngle(const StepDirection& arriving, const StepDirection& leaving);

/// Whether the angle is more than 90 degrees; the same answer in much less time.
[[nodiscard]] bool turnsSharply(const StepDirection& arriving, const StepDirection& leaving);

/// What becomes of a record on its way to the map.
enum class Placement : std::uint8_t {
    LeftOut,
    Opens,      ///< first point of a new pass
    Turns,      ///< second point of a new pass that begins at the point before
    Continues,  ///< next point of the pass
    Stays,      ///< still at the point before, whose record it replaces
};

/// Whether the machine worked on its way to the record.
[[nodiscard]] constexpr bool isStep(Placement placement) {
    return placement >= Placement::Turns;
}

/// Metres. A step of more than three swath widths ends a pass, but none up to `shortestBreak` does.
/// A single record farther than `glitch` from its neighbours is a mistake of the receiver.
struct PassLimits {
    double shortestBreak = 0;
    double glitch = std::numeric_limits<double>::infinity();
};

inline constexpr PassLimits kReportLimits{50, 10'000};
inline constexpr PassLimits kTableLimits{};

/// Divides the records of a work into passes, one after the other in the order of the file, and
/// adds up what was worked.
class PassSplitter {
public:
    explicit PassSplitter(PassLimits limits) : limits_(limits) {}

    /// `swath`: metres. The area of a step is as wide as the record it starts from.
    Placement place(LonLat position, float swath);

    /// Length times width of every step: ground that was worked twice counts twice.
    [[nodiscard]] double squareMetres() const { return squareMetres_; }
    [[nodiscard]] std::int64_t steps() const { return steps_; }

private:
    [[nodiscard]] Placement placeStep(const StepDirection& step, bool stays) const;
    [[nodiscard]] bool isGlitch(LonLat position, double metres) const;

    PassLimits limits_;
    /// The last record that was kept, and the step that led to it.
    std::optional<LonLat> last_;
    StepDirection lastStep_;
    float lastSwath_ = 0;
    /// The record before, when it was left out.
    std::optional<LonLat> dropped_;
    double squareMetres_ = 0;
    std::int64_t steps_ = 0;
};

}  // namespace campora
