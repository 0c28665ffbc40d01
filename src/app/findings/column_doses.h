// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <vector>

#include "model/dose_source.h"
#include "model/number_column.h"
#include "presc/gph_presc.h"

namespace campora {

/// What a numeric column of a map of zones prescribes, whichever column the map shows. Looks at the
/// map, which must outlive it.
class ColumnDoses final : public DoseSource {
public:
    /// `column`: from 1. Throws `std::out_of_range` for one that is not there.
    ColumnDoses(const GphPresc& zones, int column, ColumnForm form = {})
        : zones_(zones), doses_(zones.values(column, form)) {}

    [[nodiscard]] int doseChannels() const override { return 1; }
    [[nodiscard]] std::optional<float> doseAt(LonLat position, int channel) const override;

private:
    const GphPresc& zones_;
    /// A zone after the other.
    std::vector<std::optional<double>> doses_;
};

}  // namespace campora
