// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <string>

#include "app/open_map.h"
#include "base/texts.h"
#include "findings/work_clock.h"
#include "platform/main_window_controls.h"
#include "platform/user_locale.h"

namespace campora {

class WorkLayer;

/// Tells when the records of a replay were made. The clock of a file is read through once, when the
/// first of its records is replayed.
class ReplayClock {
public:
    /// The map outlives the clock.
    explicit ReplayClock(const OpenMap& map) : map_(map) {}

    /// The open files are others.
    void forget();
    /// When record `n` of a pass of an open file was made.
    [[nodiscard]] ReplayMoment at(const WorkLayer& pass, std::int32_t n);

private:
    void read(const WorkLayer& pass);

    const OpenMap& map_;
    const File* file_ = nullptr;
    const WorkLayer* pass_ = nullptr;
    /// Records of the file before the pass.
    std::size_t before_ = 0;
    WorkClock clock_;
};

/// "29/11/2016 14:03:10   +0:12:05": when a record was made, in the user's form, and how long after
/// the first of its file; "–" for what cannot be told.
[[nodiscard]] std::string replayClockText(const ReplayMoment& moment, const UserLocale& locale);

}  // namespace campora
