// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <span>
#include <vector>

#include "app/mode_layer.h"
#include "model/dose_source.h"
#include "model/work_layer.h"

namespace campora {

/// A job and what was prescribed for it.
struct PlannedJob {
    std::vector<const WorkLayer*> work;
    /// Null where nothing was.
    const DoseSource* source = nullptr;
};

/// The steps of the jobs, coloured by how far the applied dose is from the prescribed one; what was
/// driven without a dose and what lies outside the prescription have colours of their own. The
/// legend tells `netHa`, those of the steps of all jobs one after the other (`NetWork`), and of
/// what was driven without a dose length times width. `channel`: of the jobs, from 0; none: the
/// total of the channels that both have.
[[nodiscard]] std::unique_ptr<ModeLayer> makeDeviationLayer(std::span<const PlannedJob> jobs,
                                                            std::span<const double> netHa,
                                                            std::optional<int> channel);

}  // namespace campora
