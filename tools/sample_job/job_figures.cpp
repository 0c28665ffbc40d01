// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "sample_job/job_figures.h"

#include <cmath>
#include <cstddef>

#include "base/numbers.h"
#include "model/geodesy.h"

namespace campora::sample {

namespace {

constexpr int kLongestGapSeconds = 3600;
constexpr double kSquareMetresPerHectare = 10000;

double stepMetres(const JobRecord& a, const JobRecord& b) {
    constexpr double kMetresPerMicro = METERS_PER_DEGREE / 1e6;
    const double shrink = std::cos(toRadians(b.latMicro / 1e6));
    const double x = (b.lonMicro - a.lonMicro) * kMetresPerMicro * shrink;
    const double y = (b.latMicro - a.latMicro) * kMetresPerMicro;
    return std::sqrt(x * x + y * y);
}

}  // namespace

JobFigures figuresOf(const Job& job) {
    JobFigures sums;
    int seconds = 0;
    double doses = job.records.front().real[0];
    double speeds = job.records.front().speedTenths / 10.0;
    for (std::size_t i = 1; i < job.records.size(); ++i) {
        const JobRecord& from = job.records[i - 1];
        const JobRecord& to = job.records[i];
        const double hectares =
            stepMetres(from, to) * job.swathCm / 100.0 / kSquareMetresPerHectare;
        sums.hectares += hectares;
        sums.litres += hectares * from.real[0];
        doses += to.real[0];
        speeds += to.speedTenths / 10.0;
        const int gap = secondsBetween(from.time.time, to.time.time);
        seconds += gap > kLongestGapSeconds ? 0 : gap;
    }
    const auto steps = static_cast<double>(job.records.size() - 1);
    sums.averageDose = doses / steps;
    sums.averageKmh = speeds / steps;
    sums.minutes = roundToInt32(seconds / 60.0);
    return sums;
}

}  // namespace campora::sample
