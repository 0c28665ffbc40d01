// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "presc/grid_layer.h"
#include "presc/vrt_grid.h"

namespace campora {

/// The grid of a VRT file. A cell's stored corner is its south-west one.
class GphVRT final : public GridLayer {
public:
    /// `path` names the file; `symbol`: decimal, of the figures in the summary.
    GphVRT(std::string_view path, VrtGrid grid, Color background, char symbol);

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphVRT"; }
    [[nodiscard]] std::string File_icon() const override { return "vrtfile"; }
};

}  // namespace campora
