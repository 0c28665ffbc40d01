// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "platform/main_window_controls.h"

namespace campora {

/// A main window that keeps what was last set on it.
class ScriptedWindow : public MainWindowControls {
public:
    std::string title;
    std::vector<FileListRow> files;
    std::optional<int> selected;
    std::vector<SummaryRow> summary;
    LegendContent legend;
    ViewControls view;
    bool fileCommands = false;
    std::string workStatus;

    /// Called while the view controls are set, as a scroll bar that reports its own changes does.
    std::function<void()> onViewControls;

    void setTitle(std::string_view text) override { title = text; }
    void setFileList(std::span<const FileListRow> rows, std::optional<int> row) override {
        files.assign(rows.begin(), rows.end());
        selected = row;
    }
    void setSummary(std::span<const SummaryRow> rows) override {
        summary.assign(rows.begin(), rows.end());
    }
    void setLegend(const LegendContent& content) override { legend = content; }
    void setViewControls(const ViewControls& controls) override {
        view = controls;
        if (onViewControls) {
            onViewControls();
        }
    }
    void setFileCommandsEnabled(bool enabled) override { fileCommands = enabled; }
    void setWorkStatus(std::string_view text) override { workStatus = text; }
};

}  // namespace campora
