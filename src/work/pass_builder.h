// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <functional>
#include <span>

#include "model/file_gph_group.h"
#include "work/pass_rules.h"
#include "work/report_record.h"

namespace campora {

/// Adds a track to the group for every pass; each takes just the memory that its points need.
/// `placements`: one for each record of the file; `recordAt`: the record of that index, called for
/// those on the map. Records are numbered in the order in which they come onto the map.
void addPasses(FileGphGroup& group, std::span<const Placement> placements,
               const std::function<ReportRecord(std::size_t)>& recordAt);

}  // namespace campora
