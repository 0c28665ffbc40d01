// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// While it lives, the first interruption (SIGINT, SIGTERM) does not end the program but asks it to
/// stop, so that what is being written is cleared away; another one, two seconds later or more,
/// ends it at once. At most one at a time.
class InterruptionWatch {
public:
    InterruptionWatch();
    InterruptionWatch(const InterruptionWatch&) = delete;
    InterruptionWatch& operator=(const InterruptionWatch&) = delete;
    ~InterruptionWatch();

private:
    using Handler = void (*)(int);

    Handler earlierInterrupt_;
    Handler earlierTerminate_;
};

/// Whether the program has been asked to stop.
[[nodiscard]] bool isInterrupted();

}  // namespace campora
