// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <string>
#include <utility>

#include "base/texts.h"
#include "findings/time_series.h"
#include "platform/user_locale.h"

namespace campora {

/// How the texts of a strip are written.
struct StripWords {
    const Texts& texts;
    const UserLocale& locale;
    /// The work counts in units of seed, not in litres.
    bool units = false;

    [[nodiscard]] std::string number(double value) const;
    [[nodiscard]] std::string dose(double value) const;
    [[nodiscard]] std::string speed(double value) const;
    /// The alarms that have a meaning for such work.
    [[nodiscard]] std::uint32_t known(std::uint32_t alarms) const;
};

/// "29/11/2016 14:03:10", or "14:03:10", or "Registro 12" over numbers of records.
[[nodiscard]] std::string positionText(const TimeSeries& series, double position,
                                       const StripWords& words);
/// When, with which dose and speed and under which alarms a record was made.
[[nodiscard]] std::string recordText(const TimeSeries& series, std::size_t record,
                                     const StripWords& words);
/// Hectares, product, mean dose and time between two records.
[[nodiscard]] std::string stretchText(const TimeSeries& series,
                                      std::pair<std::size_t, std::size_t> records,
                                      const StripWords& words);

}  // namespace campora
