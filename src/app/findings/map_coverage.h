// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include "app/loaded_file_list.h"
#include "app/mode_layer.h"
#include "app/open_map.h"
#include "findings/coverage.h"
#include "platform/desk.h"

namespace campora {

/// Work and lots among open files; they belong to the files.
struct CoverageInput {
    std::vector<const WorkLayer*> work;
    std::vector<LotRing> lots;
};

/// Of all files.
[[nodiscard]] CoverageInput coverageInput(const LoadedFileList& files);

/// A figure of the coverage in the user's words. Percentages are of the gross hectares for what was
/// dosed and what was not, of the dosed ones for net ground and overlap, of the net ones for its
/// parts, and for what was left out of the ground that was to be covered.
struct CoverageRow {
    TextId name;
    /// "12.34 ha (5.6 %)", or "–" for one that cannot be told.
    std::string value;
};
[[nodiscard]] std::vector<CoverageRow> coverageRows(const CoverageFigures& figures,
                                                    const Desk& desk);

/// The map of ground covered once, twice, more often and left out. Under the summary stand the
/// figures of its file and, of several, those of all together. Null without work that applied
/// something.
[[nodiscard]] std::unique_ptr<ModeLayer> makeCoverageMode(const OpenMap& map);

}  // namespace campora
