// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "paint/parallel.h"

#include <algorithm>
#include <atomic>
#include <exception>
#include <mutex>
#include <system_error>
#include <thread>
#include <vector>

namespace campora {

namespace {

constexpr int kMostWorkers = 8;

}  // namespace

int workerCount() {
    return std::clamp(static_cast<int>(std::thread::hardware_concurrency()), 1, kMostWorkers);
}

void inParallel(int count, const std::function<void(int)>& task) {
    std::atomic<int> next{0};
    std::mutex mutex;
    std::exception_ptr failure;
    const auto work = [&] {
        for (int i = next++; i < count; i = next++) {
            try {
                task(i);
            } catch (...) {
                const std::lock_guard lock(mutex);
                failure = failure ? failure : std::current_exception();
            }
        }
    };
    {
        std::vector<std::jthread> helpers;
        const int wanted = std::min(count, workerCount()) - 1;
        try {
            for (int i = 0; i < wanted; ++i) {
                helpers.emplace_back(work);
            }
        } catch (const std::system_error&) {
            // The system has no thread to spare: those that there are do it all.
        }
        work();
    }
    if (failure) {
        std::rethrow_exception(failure);
    }
}

}  // namespace campora
