// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "base/dates.h"

namespace campora {

/// Time as the pacing of long work needs it, and the day.
class Clock {
public:
    virtual ~Clock() = default;

    /// Milliseconds since some start; begins again at 0 after 2^32.
    [[nodiscard]] virtual std::uint32_t ticks() const = 0;
    virtual void sleep(std::uint32_t milliseconds) = 0;
    /// Lets the user's clicks and keys, and paints, that have come up act now.
    virtual void processEvents() = 0;
    /// The day where the user is.
    [[nodiscard]] virtual Date today() const = 0;
};

}  // namespace campora
