// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <string>
#include <vector>

#include "app/named_figure.h"
#include "app/presc/prescription_check.h"
#include "platform/desk.h"

namespace campora {

/// What a person wants to know beside the file.
struct CheckWishes {
    /// In the unit of the products; none: no loads are counted.
    std::optional<double> tank;
    /// A channel after the other; channels beyond have none.
    std::vector<DoseLimits> limits;
};

/// A check as a person reads it.
struct CheckPage {
    /// Whether the file holds what was asked for; none where nothing can be compared.
    std::optional<bool> agrees;
    std::string verdict;
    /// A line each; one that says so when there are none.
    std::vector<std::string> warnings;
    std::vector<NamedFigure> figures;
};

/// Of a file that was read back; null: that could not be.
[[nodiscard]] CheckPage checkPage(const PrescriptionCheck* check, const GridLayer* file,
                                  const CheckWishes& wishes, const Desk& desk);

/// How often the tank is filled for that much product; none without a tank.
[[nodiscard]] std::optional<double> tankLoads(double product, const CheckWishes& wishes);

/// The limits of a channel.
[[nodiscard]] DoseLimits limitsOf(const CheckWishes& wishes, int channel);

}  // namespace campora
