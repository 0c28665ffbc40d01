// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "base/color.h"

namespace campora {

struct ScrollBarState {
    bool visible = false;
    std::int32_t maximum = 1;
    std::int32_t position = 0;

    bool operator==(const ScrollBarState&) const = default;
};

/// Edges beyond which there is more map.
struct EdgeArrows {
    bool up = false;
    bool down = false;
    bool right = false;
    bool left = false;

    bool operator==(const EdgeArrows&) const = default;
};

/// What the view shows around the map.
struct ViewControls {
    ScrollBarState horizontal;
    ScrollBarState vertical;
    EdgeArrows arrows;
    /// Text of the scale bar ("10800m").
    std::string scaleLabel;

    bool operator==(const ViewControls&) const = default;
};

struct FileListRow {
    std::string name;
    /// Key of the image.
    std::string icon;

    bool operator==(const FileListRow&) const = default;
};

struct SummaryRow {
    std::string property;
    std::string value;

    bool operator==(const SummaryRow&) const = default;
};

struct LegendRow {
    Color color;
    std::string text;

    bool operator==(const LegendRow&) const = default;
};

/// The classes of the scale beside the map; without rows there is no scale to show.
struct LegendContent {
    std::string unit;
    std::vector<LegendRow> classes;
    /// What the plain colours of the map mean.
    std::vector<LegendRow> reference;

    bool operator==(const LegendContent&) const = default;
};

/// What the program sets on its main window. The window shows it and decides nothing.
class MainWindowControls {
public:
    virtual ~MainWindowControls() = default;

    virtual void setTitle(std::string_view title) = 0;
    virtual void setFileList(std::span<const FileListRow> rows, std::optional<int> selected) = 0;
    virtual void setSummary(std::span<const SummaryRow> rows) = 0;
    virtual void setLegend(const LegendContent& legend) = 0;
    /// The view changed: scroll bars, arrows and scale bar. Setting a scroll bar must not come back
    /// as a movement by the user.
    virtual void setViewControls(const ViewControls& controls) = 0;
    /// Whether the commands that need an open file can be used.
    virtual void setFileCommandsEnabled(bool enabled) = 0;
    /// A remark on the open work in the status bar; empty for none.
    virtual void setWorkStatus(std::string_view text) = 0;
};

}  // namespace campora
