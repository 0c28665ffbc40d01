// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/interruption.h"

#include <cerrno>
#include <cstddef>
#include <ctime>

#ifndef _WIN32
#include <fcntl.h>
#include <unistd.h>
#endif

namespace campora {

namespace {

/// Programs that stop others send their signal to the process and to its group: twice at once.
constexpr std::time_t kOneInterruption = 2;  // seconds

volatile std::sig_atomic_t interrupted = 0;
volatile std::time_t interruptedAt = 0;
volatile std::sig_atomic_t wakeDescriptor = -1;

/// Wakes a loop that waits for events.
void wake() {
#ifndef _WIN32
    const int before = errno;
    static_cast<void>(::write(wakeDescriptor, "", 1) == 0);
    errno = before;
#endif
}

extern "C" void interrupt(int signal) {
    const std::time_t now = std::time(nullptr);
    if (interrupted != 0 && now - interruptedAt >= kOneInterruption) {
        std::signal(signal, SIG_DFL);
        std::raise(signal);
        return;
    }
    std::signal(signal, interrupt);  // some systems have restored the default action
    if (interrupted == 0) {
        interruptedAt = now;
        interrupted = 1;
        wake();
    }
}

}  // namespace

InterruptionWatch::InterruptionWatch() {
    interrupted = 0;
#ifndef _WIN32
    int ends[2] = {-1, -1};
    if (::pipe(ends) == 0) {
        readEnd_ = Descriptor(ends[0]);
        writeEnd_ = Descriptor(ends[1]);
        for (const int end : ends) {
            static_cast<void>(::fcntl(end, F_SETFD, FD_CLOEXEC));
            static_cast<void>(::fcntl(end, F_SETFL, O_NONBLOCK));
        }
    }
#endif
    wakeDescriptor = writeEnd_.number();
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        earlier_[i] = std::signal(kSignals[i], interrupt);
        if (earlier_[i] == SIG_IGN) {
            // Whoever started the program in the background keeps it from the keys of the
            // terminal, or from its end.
            std::signal(kSignals[i], SIG_IGN);
        }
    }
}

InterruptionWatch::~InterruptionWatch() {
    for (std::size_t i = 0; i < kSignals.size(); ++i) {
        std::signal(kSignals[i], earlier_[i]);
    }
    wakeDescriptor = -1;
    interrupted = 0;
}

bool isInterrupted() {
    return interrupted != 0;
}

}  // namespace campora
