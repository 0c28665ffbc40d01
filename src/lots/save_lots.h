// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/failure.h"
#include "lots/lot.h"

namespace campora {

/// The files into which lots go: `path` for a single one, else numbered from 1 before the ending
/// ("campo-1.lot", "campo-2.lot").
[[nodiscard]] std::vector<std::string> lotPaths(std::string_view path, std::size_t lots);

/// The numbered files of an earlier saving under that path that are none of `saved`, their names
/// joined by ", "; empty when there are none.
[[nodiscard]] std::string olderLots(std::string_view path, std::span<const std::string> saved);

/// Writes each lot into its file, all or none, and answers the files. A failure names the file that
/// could not be written.
[[nodiscard]] Result<std::vector<std::string>> saveLots(std::span<const Lot> lots,
                                                        std::string_view path);

}  // namespace campora
