// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/report_check.h"

#include "base/numbers.h"

namespace campora {

void ReportCheck::addKept(LonLat position) {
    ++kept_;
    latitude_.add(position.y);
    longitude_.add(position.x);
    eastward_.add(position.x < 0 ? position.x + 360 : position.x);
}

std::optional<Failure> ReportCheck::refusal() const {
    constexpr int kWidestSpan = 20;
    if (dropped_ > kept_) {
        return Failure{TextId::NotAReportDropped,
                       {numberText(dropped_), numberText(dropped_ + kept_)}};
    }
    const double span =
        std::max(latitude_.degrees(), std::min(longitude_.degrees(), eastward_.degrees()));
    if (span > kWidestSpan) {
        return Failure{TextId::NotAReportSpan, {numberText(kWidestSpan)}};
    }
    return std::nullopt;
}

}  // namespace campora
