// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

namespace campora::sample {

/// PCG32 (XSH RR 64/32): M. E. O'Neill, "PCG: A family of simple fast space-efficient statistically
/// good algorithms for random number generation", Harvey Mudd College, HMC-CS-2014-0905, 2014.
/// Same numbers for the same seed on every machine.
class Pcg32 {
public:
    explicit Pcg32(std::uint64_t seed) : state_(seed + kIncrement) { (void)next(); }

    [[nodiscard]] std::uint32_t next() {
        const std::uint64_t old = state_;
        state_ = old * 6364136223846793005ULL + kIncrement;
        const auto mixed = static_cast<std::uint32_t>(((old >> 18U) ^ old) >> 27U);
        const auto turn = static_cast<std::uint32_t>(old >> 59U);
        return (mixed >> turn) | (mixed << ((32U - turn) & 31U));
    }

    /// Even over -1 (included) to 1 (not included).
    [[nodiscard]] double spread() { return static_cast<double>(next()) / 2147483648.0 - 1; }

private:
    static constexpr std::uint64_t kIncrement = 1442695040888963407ULL;
    std::uint64_t state_;
};

}  // namespace campora::sample
