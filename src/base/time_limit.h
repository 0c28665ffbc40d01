// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <chrono>
#include <cstddef>
#include <functional>
#include <future>
#include <optional>
#include <thread>
#include <utility>

namespace campora {

/// How long a disk or a network may take for one step before it counts as one that does not answer.
inline constexpr std::chrono::seconds kLongestWait{10};

/// The result of `work`, or none when `progress` has stood still for `limit`: the disk of a
/// computer that was switched off keeps a call of the system waiting for ever, and there is no way
/// to take it back. The thread with the call is left behind then, so `work` owns all that it uses.
template <typename Work>
[[nodiscard]] auto withinLimit(
    Work work, const std::function<std::size_t()>& progress = [] { return std::size_t{0}; },
    std::chrono::milliseconds limit = kLongestWait) -> std::optional<decltype(work())> {
    std::packaged_task<decltype(work())()> task(std::move(work));
    auto result = task.get_future();
    std::thread(std::move(task)).detach();
    std::size_t before = progress();
    while (result.wait_for(limit) != std::future_status::ready) {
        const std::size_t now = progress();
        if (now == before) {
            return std::nullopt;
        }
        before = now;
    }
    return result.get();
}

}  // namespace campora
