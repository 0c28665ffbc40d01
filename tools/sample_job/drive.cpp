// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "sample_job/drive.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <utility>

#include "base/numbers.h"
#include "model/geodesy.h"
#include "sample_job/random.h"

namespace campora::sample {

namespace {

constexpr int kTicksPerSecond = 4;
constexpr int kTicksPerRecord = 2 * kTicksPerSecond;
constexpr double kKmhPerMetreSecond = 3.6;
constexpr double kBrake = 0.9;             ///< metres a second, each second
constexpr double kAccelerate = 0.7;        ///< metres a second, each second
constexpr double kRecordMetres = 9.5;      ///< a record is due after so many metres
constexpr double kRecordCosine = 0.92;     ///< or when the heading has turned by more than this
constexpr double kSwitchMetres = 3;        ///< a record nearer than this to a change moves to it
constexpr double kAlarmMargin = 1.15;      ///< by which a limit is passed before its alarm comes on
constexpr double kNoiseMemory = 0.85;      ///< what is left of a deviation at the next update
constexpr double kPassSpeedSpread = 0.03;  ///< passes differ in speed by this fraction
constexpr double kPassDoseSpread = 0.012;
constexpr double kShownDoseStep = 0.035;  ///< fraction of the dose that changes the reading
constexpr double kShownSpeedStep = 0.45;  ///< km/h that change the reading

/// A value that wanders about 0, between about -1 and 1.
class Wander {
public:
    void update(Pcg32& random) {
        value_ = kNoiseMemory * value_ + (1 - kNoiseMemory) * 2 * random.spread();
    }
    [[nodiscard]] double value() const { return value_; }

private:
    double value_ = 0;
};

/// A reading of the console: it keeps its value until the measured one is `step` away.
class Reading {
public:
    void show(double measured, double step) {
        if (std::abs(measured - shown_) > step) {
            shown_ = measured;
        }
    }
    [[nodiscard]] double shown() const { return shown_; }

private:
    double shown_ = 0;
};

/// Lowers the speeds so that the machine can brake in time for what lies ahead.
Route withBraking(Route route) {
    for (std::size_t i = route.size() - 1; i-- > 0;) {
        const double next = route[i + 1].kmh / kKmhPerMetreSecond;
        const double gap = length(route[i + 1].at - route[i].at);
        const double most = std::sqrt(next * next + 2 * kBrake * gap) * kKmhPerMetreSecond;
        route[i].kmh = std::min(route[i].kmh, most);
    }
    return route;
}

class Driver {
public:
    explicit Driver(const Drive& drive)
        : drive_(drive),
          machine_(drive.machine),
          route_(withBraking(drive.route)),
          random_(drive.seed) {}

    [[nodiscard]] std::vector<JobRecord> run() {
        startPass();
        kmh_ = point().kmh * 0.8;  // The boom opens with the machine already rolling.
        while (step_ + 1 < route_.size()) {
            if (tick_ % kTicksPerRecord == 0) {
                speedWander_.update(random_);
                doseWander_.update(random_);
            }
            move();
            control();
            log();
            ++tick_;
        }
        return std::move(records_);
    }

private:
    [[nodiscard]] const RoutePoint& point() const { return route_[step_]; }
    [[nodiscard]] bool working() const { return point().working; }

    void startPass() {
        pass_ = point().pass;
        passSpeed_ = 1 + kPassSpeedSpread * random_.spread();
        passDose_ = 1 + kPassDoseSpread * random_.spread();
        for (const Pause& pause : drive_.pauses) {
            if (pause.beforePass == pass_) {
                tick_ += pause.minutes * 60 * kTicksPerSecond;
                kmh_ = 0;
            }
        }
    }

    /// Speeds up or slows down and goes on along the route for one tick.
    void move() {
        const double wander = machine_.speedNoise * speedWander_.value();
        const double wanted = point().kmh * passSpeed_ * (1 + wander);
        const double faster = kmh_ + kAccelerate * kKmhPerMetreSecond / kTicksPerSecond;
        kmh_ = std::min(wanted, faster);
        double metres = kmh_ / kKmhPerMetreSecond / kTicksPerSecond;
        moved_ += metres;
        while (step_ + 1 < route_.size()) {
            const double left = length(route_[step_ + 1].at - route_[step_].at) - along_;
            if (metres < left) {
                along_ += metres;
                break;
            }
            metres -= left;
            along_ = 0;
            ++step_;
            if (point().pass != pass_) {
                startPass();
            }
        }
    }

    [[nodiscard]] Place heading() const {
        const std::size_t step = std::min(step_, route_.size() - 2);
        return direction(route_[step + 1].at - route_[step].at);
    }
    [[nodiscard]] Place at() const { return point().at + heading() * along_; }

    [[nodiscard]] std::array<int, kMaxChannels> specified() const {
        std::array<int, kMaxChannels> dose = machine_.dose;
        for (const DoseZone& zone : drive_.doseZones) {
            dose = length(at() - zone.centre) < zone.radius ? zone.dose : dose;
        }
        return dose;
    }

    /// The flow, as the speed in km/h for which it would be right, and the alarms.
    void control() {
        const double wanted = std::clamp(kmh_, machine_.leastKmh, machine_.mostKmh);
        flow_ = wasWorking_ ? flow_ + (wanted - flow_) / (machine_.lagSeconds * kTicksPerSecond)
                            : wanted * machine_.openingFlow;
        wasWorking_ = working();
        alarms_ = 0;
        factor_ = {1, 1};
        if (!working()) {
            return;
        }
        alarms_ |= kmh_ > machine_.fastAlarmKmh ? machine_.fastAlarm : 0;
        alarms_ |= kmh_ * kAlarmMargin < machine_.leastKmh ? machine_.leastFlowAlarm : 0;
        alarms_ |= kmh_ > machine_.mostKmh * kAlarmMargin ? machine_.mostFlowAlarm : 0;
        for (const Incident& incident : drive_.incidents) {
            if (incident.pass == pass_ && incident.box.contains(at())) {
                alarms_ |= incident.alarms;
                factor_ = incident.factor;
            }
        }
    }

    /// Whether a record is due although nothing was switched.
    [[nodiscard]] bool due() const {
        if (dot(heading(), loggedHeading_) < kRecordCosine) {
            return true;
        }
        return tick_ % kTicksPerRecord == 0 &&
               (moved_ >= kRecordMetres || alarms_ != records_.back().alarms);
    }

    void log() {
        const bool switched =
            records_.empty() || working() != loggedWorking_ || factor_ != loggedFactor_;
        if (!switched && !due()) {
            return;
        }
        if (!records_.empty() && moved_ < kSwitchMetres) {
            records_.pop_back();
        }
        loggedWorking_ = working();
        loggedFactor_ = factor_;
        loggedHeading_ = heading();
        moved_ = 0;
        records_.push_back(record(switched));
    }

    [[nodiscard]] JobRecord record(bool switched) {
        JobRecord record;
        setPosition(record);
        record.time = time();
        record.pass = pass_;
        record.alarms = alarms_;
        speedShown_.show(kmh_, switched ? 0 : kShownSpeedStep);
        record.speedTenths = roundToInt32(speedShown_.shown() * 10);
        record.spec = specified();
        for (std::size_t c = 0; working() && c < record.spec.size(); ++c) {
            const double noise = machine_.doseNoise * doseWander_.value();
            const double dose =
                record.spec[c] * flow_ / kmh_ * passDose_ * (1 + noise) * factor_[c];
            doseShown_[c].show(dose, switched ? 0 : kShownDoseStep * record.spec[c]);
            record.real[c] = roundToInt32(doseShown_[c].shown());
        }
        return record;
    }

    void setPosition(JobRecord& record) const {
        const Georeference& place = drive_.place;
        const Place p = at();
        const double east = p.x * place.xAxis.x - p.y * place.xAxis.y;
        const double north = p.x * place.xAxis.y + p.y * place.xAxis.x;
        constexpr double kMicroPerMetre = 1e6 / METERS_PER_DEGREE;
        record.lonMicro = place.lonMicro + roundToInt32(east * kMicroPerMetre / place.cosLatitude);
        record.latMicro = place.latMicro + roundToInt32(north * kMicroPerMetre);
    }

    [[nodiscard]] DateTime time() const {
        const int second = drive_.start.time.secondOfDay() + tick_ / kTicksPerRecord * 2;
        return {drive_.start.date, {second / 3600, second / 60 % 60, second % 60}};
    }

    const Drive& drive_;
    const Machine& machine_;
    Route route_;
    Pcg32 random_;
    std::vector<JobRecord> records_;
    int tick_ = 0;

    std::size_t step_ = 0;  ///< the point of the route last passed
    double along_ = 0;      ///< metres beyond it
    double kmh_ = 0;
    int pass_ = 0;
    double passSpeed_ = 1;
    double passDose_ = 1;
    Wander speedWander_;
    Wander doseWander_;

    double flow_ = 0;
    bool wasWorking_ = false;
    std::uint32_t alarms_ = 0;
    std::array<double, kMaxChannels> factor_{1, 1};

    double moved_ = 0;  ///< metres since the last record
    bool loggedWorking_ = false;
    std::array<double, kMaxChannels> loggedFactor_{1, 1};
    Place loggedHeading_{1, 0};
    Reading speedShown_;
    std::array<Reading, kMaxChannels> doseShown_;
};

}  // namespace

std::vector<JobRecord> logDrive(const Drive& drive) {
    return Driver(drive).run();
}

}  // namespace campora::sample
