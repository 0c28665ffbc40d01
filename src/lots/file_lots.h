// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "lots/lot.h"
#include "model/file.h"

namespace campora {

/// The lots of a file; empty when it holds anything else.
[[nodiscard]] std::vector<Lot> lotsOf(const File& file);
[[nodiscard]] bool isOneLot(const File& file);
/// Whether the file holds lots that are on no disk yet: a result of merging.
[[nodiscard]] bool areUnsavedLots(const File& file);

}  // namespace campora
