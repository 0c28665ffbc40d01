// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "sample_job/job.h"

namespace campora::sample {

/// A sprayed field of 46 hectares beside a stream: two rounds and parallel passes with a boom of
/// 28 m at 80 l/ha, a pond and three pylons to go round, a strip missed with the node off, a hasty
/// pass, alarms of every kind, and a pause at noon.
[[nodiscard]] Job sprayingJob();

/// The field next to it, sown with seed (channel 1, in two doses) and fertilizer (channel 2).
[[nodiscard]] Job sowingJob();

}  // namespace campora::sample
