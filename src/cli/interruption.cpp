// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/interruption.h"

#include <csignal>
#include <ctime>

namespace campora {

namespace {

/// Programs that stop others send their signal to the process and to its group: twice at once.
constexpr std::time_t kOneInterruption = 2;  // seconds

volatile std::sig_atomic_t interrupted = 0;
volatile std::time_t interruptedAt = 0;

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
    }
}

}  // namespace

InterruptionWatch::InterruptionWatch() {
    interrupted = 0;
    earlierInterrupt_ = std::signal(SIGINT, interrupt);
    earlierTerminate_ = std::signal(SIGTERM, interrupt);
    if (earlierInterrupt_ == SIG_IGN) {
        // Whoever started the program in the background keeps it from the keys of the terminal.
        std::signal(SIGINT, SIG_IGN);
    }
}

InterruptionWatch::~InterruptionWatch() {
    std::signal(SIGINT, earlierInterrupt_);
    std::signal(SIGTERM, earlierTerminate_);
    interrupted = 0;
}

bool isInterrupted() {
    return interrupted != 0;
}

}  // namespace campora
