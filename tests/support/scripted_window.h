// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <variant>
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
    /// What the map's own commands and the replay are told to be.
    bool mapActive = false;
    bool replayActive = false;
    bool fileMenuActive = true;
    int commandChanges = 0;
    int retranslations = 0;
    ReplayState replay;
    std::string speed;
    MapOverlay overlay;
    /// The shape of that type that lies over the map.
    template <class Shape>
    [[nodiscard]] std::optional<Shape> laid() const {
        for (const MapShape& shape : overlay) {
            if (const auto* const found = std::get_if<Shape>(&shape)) {
                return *found;
            }
        }
        return std::nullopt;
    }
    std::string position;
    std::string toolText;
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
    void active(bool enabled, bool replayControls) override {
        mapActive = enabled;
        (replayControls ? replayActive : fileMenuActive) = enabled;
    }
    void commandsChanged() override { ++commandChanges; }
    void retranslate() override { ++retranslations; }
    void setReplay(const ReplayState& state) override { replay = state; }
    void setSpeedReadout(std::string_view text) override { speed = text; }
    void setOverlay(const MapOverlay& shown) override { overlay = shown; }
    void setPosition(std::string_view text) override { position = text; }
    void setToolText(std::string_view text) override { toolText = text; }
    void setWorkStatus(std::string_view text) override { workStatus = text; }
};

}  // namespace campora
