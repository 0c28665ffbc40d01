// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <string_view>

#include "presc/grid_layer.h"
#include "presc/pre_grid.h"

namespace campora {

/// The grid of a PRE file. A cell's stored corner is its north-west one.
class GphPRE final : public GridLayer {
public:
    /// `path` names the file; `symbol`: decimal, of the figures in the summary.
    GphPRE(std::string_view path, PreGrid grid, Color background, char symbol);

    [[nodiscard]] std::string_view Gph_kind() const override { return "GphPRE"; }
    [[nodiscard]] std::string File_icon() const override { return "dosis2"; }
};

}  // namespace campora
