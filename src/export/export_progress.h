// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "platform/dialogs.h"

namespace campora {

/// Tells the user how far an export is, percent by percent, and hears when the user has enough.
/// A writer that is cancelled leaves no file and answers no failure; `cancelled` tells it from one
/// that is done.
class ExportProgress {
public:
    explicit ExportProgress(Progress& shown) : shown_(shown) {}

    /// How many times `next` will be called.
    void expect(std::int64_t steps) {
        all_ = steps;
        done_ = 0;
        report_ = 0;
    }
    /// One more step is to be done; false when the user has cancelled.
    [[nodiscard]] bool next() {
        if (done_ == report_ && !cancelled_) {
            cancelled_ = !shown_.report(static_cast<int>(100 * done_ / (all_ > 0 ? all_ : 1)));
            report_ += all_ / 100 + 1;
        }
        ++done_;
        return !cancelled_;
    }
    [[nodiscard]] bool cancelled() const { return cancelled_; }

private:
    Progress& shown_;
    std::int64_t all_ = 0;
    std::int64_t done_ = 0;
    /// The step before which the user is told again.
    std::int64_t report_ = 0;
    bool cancelled_ = false;
};

}  // namespace campora
