// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "findings/net_work.h"

#include <bit>
#include <utility>

#include "findings/coverage.h"

namespace campora {

namespace {

/// A number that is another one when anything is that ground comes from.
std::uint64_t stateOf(std::span<const WorkLayer* const> layers) {
    constexpr std::uint64_t kFactor = 0x9E3779B97F4A7C15;
    constexpr int kTurn = 29;
    std::uint64_t state = 0;
    const auto add = [&](std::uint64_t word) {
        state = std::rotl((state ^ word) * kFactor, kTurn);
    };
    for (const WorkLayer* layer : layers) {
        const std::int32_t count = layer->recordCount();
        add(static_cast<std::uint64_t>(count));
        for (std::int32_t n = 0; n < count; ++n) {
            const WorkRecord record = layer->recordN(n);
            add(std::bit_cast<std::uint64_t>(record.position.x));
            add(std::bit_cast<std::uint64_t>(record.position.y));
            add(std::uint64_t{std::bit_cast<std::uint32_t>(record.swath)} << 1U |
                (record.worked ? 1U : 0U));
        }
    }
    return state;
}

}  // namespace

NetWork::NetWork(std::vector<const WorkLayer*> layers)
    : layers_(std::move(layers)), hectares_(newlyCovered(layers_)), state_(stateOf(layers_)) {}

bool NetWork::isCurrent() const {
    return stateOf(layers_) == state_;
}

}  // namespace campora
