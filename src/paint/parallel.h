// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

namespace campora {

/// Threads that share work well: as many as run at once here, but not more than 8.
[[nodiscard]] int workerCount();

/// Calls task(0) to task(count - 1), each once, from that many threads; returns when all are done.
/// What a task throws is thrown on then, the first of several.
void inParallel(int count, const std::function<void(int)>& task);

}  // namespace campora
