// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <vector>

#include "platform/dialogs.h"

class QString;
class QWidget;

namespace campora {

class ProgressWindow;

/// Decides who is in front. Only the window of the innermost work shows, and never over a box that
/// the work waits for: it would take what is typed for the box.
class ProgressWindows {
public:
    /// Lives as long as a box stands, and keeps the windows of all work under way from it; they
    /// come back with a later report. Work that begins inside the box, such as a preview, may show.
    class Hidden {
    public:
        explicit Hidden(ProgressWindows& windows);
        Hidden(const Hidden&) = delete;
        Hidden& operator=(const Hidden&) = delete;
        ~Hidden();

    private:
        ProgressWindows& windows_;
    };

    ProgressWindows() = default;
    ProgressWindows(const ProgressWindows&) = delete;
    ProgressWindows& operator=(const ProgressWindows&) = delete;

    /// Work that begins now, over the window that `owner` tells. This must outlive it.
    [[nodiscard]] std::unique_ptr<Progress> start(const std::function<QWidget*()>& owner,
                                                  const QString& caption, const QString& cancel);

private:
    class Work;

    void hideAll();

    /// Innermost last.
    std::vector<ProgressWindow*> open_;
    /// Boxes that stand, one over the other.
    int boxes_ = 0;
};

}  // namespace campora
