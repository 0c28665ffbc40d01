// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <csignal>

#include "base/disk_calls.h"

namespace campora {

/// While it lives, the first interruption (SIGINT, SIGTERM, SIGHUP) does not end the program but
/// asks it to stop, so that what is being written is cleared away; another one, two seconds later
/// or more, ends it at once. What the program was started to ignore stays ignored. At most one at a
/// time.
class InterruptionWatch {
public:
    InterruptionWatch();
    InterruptionWatch(const InterruptionWatch&) = delete;
    InterruptionWatch& operator=(const InterruptionWatch&) = delete;
    ~InterruptionWatch();

    /// A descriptor that can be read from as soon as the program has been asked to stop, for loops
    /// that wait for events; -1 on systems where there is none.
    [[nodiscard]] int descriptor() const { return readEnd_.number(); }

private:
    using Handler = void (*)(int);

#ifdef _WIN32
    static constexpr std::array kSignals{SIGINT, SIGTERM};
#else
    static constexpr std::array kSignals{SIGINT, SIGTERM, SIGHUP};
#endif

    std::array<Handler, kSignals.size()> earlier_{};
    Descriptor readEnd_;
    Descriptor writeEnd_;
};

/// Whether the program has been asked to stop.
[[nodiscard]] bool isInterrupted();

}  // namespace campora
