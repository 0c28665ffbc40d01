// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include "model/file.h"
#include "model/gph.h"
#include "platform/desk.h"
#include "platform/main_window_controls.h"

namespace campora {

/// What a mode of the map draws in place of the recorded work: something that was computed from
/// it. It refers to nothing that the open files own.
class ModeLayer {
public:
    virtual ~ModeLayer() = default;

    [[nodiscard]] virtual const Gph& layer() const = 0;
    [[nodiscard]] virtual LegendContent legend(const Desk& desk) const = 0;
    /// What it computed, to be shown under the summary of a file, one of those it was made from.
    [[nodiscard]] virtual std::vector<SummaryRow> figures(const File* /*current*/,
                                                          const Desk& /*desk*/) const {
        return {};
    }
};

}  // namespace campora
