// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/turns.h"

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "model/geodesy.h"

namespace campora {

namespace {

/// East and north of one unit; zero where there is no direction.
struct Heading {
    double x = 0;
    double y = 0;
};

/// A piece of a pass that is long enough to have a heading.
struct Leg {
    std::size_t first = 0;
    std::size_t last = 0;
    Heading heading;
};

Heading headingOf(LonLat from, LonLat to) {
    const double x = (to.x - from.x) * cosineOfLatitude(to.y);
    const double y = to.y - from.y;
    const double length = std::sqrt(x * x + y * y);
    return length > 0 ? Heading{x / length, y / length} : Heading{};
}

/// Of `kTurnDegrees`.
constexpr double kTurnCosine = 0.5;
static_assert(kTurnDegrees == 60);

bool isTurn(const Heading& a, const Heading& b) {
    const bool known = (a.x != 0 || a.y != 0) && (b.x != 0 || b.y != 0);
    return known && a.x * b.x + a.y * b.y < kTurnCosine;
}

/// Divides the ways of a job into runs and turns, pass by pass of the log.
class TurnFinder {
public:
    explicit TurnFinder(const WorkWay& way) : way_(way) {}

    [[nodiscard]] WayRuns find() {
        const std::span<const WayRecord> records = way_.records();
        std::size_t first = 0;
        for (std::size_t i = 0; i < records.size(); ++i) {
            if (records[i].endsPass) {
                addPass(first, i);
                first = i + 1;
            }
        }
        joinTurns();
        return std::move(found_);
    }

private:
    /// A run, and whether a turn leads to it from the one before.
    struct Part {
        WayRun run;
        bool afterTurn = false;
    };

    void addPass(std::size_t first, std::size_t last) {
        cutIntoLegs(first, last);
        if (!legs_.empty()) {
            enter(first);
            addRuns(first, last);
            lastHeading_ = legs_.back().heading;
        }
        lastRecord_ = last;
    }

    void cutIntoLegs(std::size_t first, std::size_t last) {
        legs_.clear();
        for (std::size_t start = first, i = first + 1; i <= last; ++i) {
            if (way_.metres(start, i) >= kHeadingMetres || (i == last && legs_.empty())) {
                legs_.push_back({start, i, heading(start, i)});
                start = i;
            }
        }
        if (!legs_.empty()) {
            legs_.back().last = last;
        }
    }

    [[nodiscard]] Heading heading(std::size_t from, std::size_t to) const {
        return headingOf(way_.records()[from].position, way_.records()[to].position);
    }

    /// Whether the way to a pass turned, by the headings before, on the way and after.
    void enter(std::size_t first) {
        if (parts_.empty()) {
            return;
        }
        const Heading after = legs_.front().heading;
        bool turned = isTurn(lastHeading_, after);
        if (way_.metres(lastRecord_, first) >= kHeadingMetres) {
            const Heading jump = heading(lastRecord_, first);
            turned = turned || isTurn(lastHeading_, jump) || isTurn(jump, after);
        }
        turnAhead_ = turnAhead_ || turned;
        if (!turned && first == lastRecord_ + 1) {
            found_.straightOn.push_back(lastRecord_);
        }
    }

    /// Between two legs whose headings differ, and that have no such two between them, lies a turn.
    void addRuns(std::size_t first, std::size_t last) {
        std::size_t runStart = first;
        std::size_t scanned = 0;  // legs before it begin no turn any more
        for (std::size_t leg = 1; leg < legs_.size(); ++leg) {
            const std::optional<std::size_t> before = turnsFrom(leg, scanned);
            if (!before) {
                continue;
            }
            scanned = *before + 1;
            addRun(runStart, legs_[*before].last);
            turnAhead_ = true;
            runStart = std::max(runStart, legs_[leg].first);
        }
        addRun(runStart, last);
    }

    /// The last leg from which the heading turns to that of `leg` in time.
    [[nodiscard]] std::optional<std::size_t> turnsFrom(std::size_t leg, std::size_t least) const {
        // A damaged clock can put any number of legs into the same seconds.
        constexpr std::size_t kMostLegs = 200;
        least = std::max(least, leg - std::min(leg, kMostLegs));
        for (std::size_t i = leg; i-- > least;) {
            if (way_.assumedSeconds(legs_[i].last, legs_[leg].first) > kTurnSeconds) {
                break;
            }
            if (isTurn(legs_[i].heading, legs_[leg].heading)) {
                return i;
            }
        }
        return std::nullopt;
    }

    void addRun(std::size_t first, std::size_t last) {
        if (last > first) {
            parts_.push_back({{first, last}, turnAhead_});
            turnAhead_ = false;
        }
    }

    void joinTurns() {
        for (std::size_t i = 0; i < parts_.size(); ++i) {
            const bool beforeTurn = i + 1 < parts_.size() ? parts_[i + 1].afterTurn : turnAhead_;
            if (parts_[i].afterTurn && beforeTurn && isPartOfTurn(parts_[i].run)) {
                continue;
            }
            found_.turns += parts_[i].afterTurn ? 1 : 0;
            found_.runs.push_back(withoutMargins(parts_[i], beforeTurn));
        }
        found_.turns += turnAhead_ ? 1 : 0;
    }

    /// The run of a part from its first dose after a turn to its last one before a turn.
    [[nodiscard]] WayRun withoutMargins(const Part& part, bool beforeTurn) const {
        const auto [first, last] = part.run;
        std::size_t start = first;
        std::size_t end = last;
        while (start < last && !way_.records()[start].dosed) {
            ++start;
        }
        while (end > first && !way_.records()[end - 1].dosed) {
            --end;
        }
        if (start == last) {
            return part.run;
        }
        const bool startsInTurn = part.afterTurn && way_.metres(first, start) < kTurnMargin;
        const bool endsInTurn = beforeTurn && way_.metres(end, last) < kTurnMargin;
        return {startsInTurn ? start : first, endsInTurn ? end : last};
    }

    [[nodiscard]] bool isPartOfTurn(const WayRun& run) const {
        const auto steps = way_.records().subspan(run.first, run.last - run.first);
        return way_.assumedSeconds(run.first, run.last) <= kTurnSeconds &&
               std::none_of(steps.begin(), steps.end(),
                            [](const WayRecord& record) { return record.dosed; });
    }

    const WorkWay& way_;
    WayRuns found_;
    std::vector<Leg> legs_;
    std::vector<Part> parts_;
    bool turnAhead_ = false;
    Heading lastHeading_;
    std::size_t lastRecord_ = 0;
};

}  // namespace

WayRuns leaveOutTurns(const WorkWay& way) {
    return TurnFinder(way).find();
}

std::optional<double> headingDegrees(LonLat from, LonLat to) {
    const Heading heading = headingOf(from, to);
    if (heading.x == 0 && heading.y == 0) {
        return std::nullopt;
    }
    const double degrees = std::atan2(heading.x, heading.y) * 180 / kPi;
    return degrees < 0 ? degrees + 360 : degrees;
}

}  // namespace campora
