// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>
#include <vector>

#include "model/work_layer.h"

namespace campora {

/// Recorded work with the ground of its steps, on which what was worked again counts once: for the
/// step that worked it first. Works that are made one of these share their ground.
class NetWork {
public:
    /// Burns the ground of all steps: about half a second for a million. The layers are looked at
    /// whenever the steps are.
    explicit NetWork(std::vector<const WorkLayer*> layers);

    [[nodiscard]] const std::vector<const WorkLayer*>& layers() const { return layers_; }
    /// Net hectares, a step after the other through all layers; see `newlyCovered`.
    [[nodiscard]] std::span<const double> hectares() const { return hectares_; }
    /// Whether the layers still have the steps of which this is the ground: looks at every record.
    [[nodiscard]] bool isCurrent() const;

private:
    std::vector<const WorkLayer*> layers_;
    std::vector<double> hectares_;
    std::uint64_t state_;
};

/// Calls `take(from, to)` with the records of every step of a layer, in order.
template <typename Take>
void forEachStep(const WorkLayer& layer, Take take) {
    const std::int32_t records = layer.recordCount();
    if (records < 2) {
        return;
    }
    WorkRecord from = layer.recordN(0);
    for (std::int32_t i = 1; i < records; ++i) {
        const WorkRecord to = layer.recordN(i);
        take(from, to);
        from = to;
    }
}

/// The same for all layers, with the net hectares of the step as the third.
template <typename Take>
void forEachStep(const NetWork& work, Take take) {
    std::size_t step = 0;
    for (const WorkLayer* layer : work.layers()) {
        forEachStep(*layer, [&](const WorkRecord& from, const WorkRecord& to) {
            take(from, to, work.hectares()[step++]);
        });
    }
}

}  // namespace campora
