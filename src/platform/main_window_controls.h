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
#include "platform/map_overlay.h"

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
    /// What is to be said about the file, a line each; mostly empty.
    std::string remarks = {};

    bool operator==(const FileListRow&) const = default;
};

struct SummaryRow {
    std::string property;
    std::string value;
    /// What a person put there in place of what was measured, or beside it.
    bool edited = false;
    /// Says so in words, with the measured value.
    std::string note = {};
    /// A remark on the file, not a figure: a sentence.
    bool isRemark = false;
    /// A figure that counts values that cannot be; `value` ends with a mark.
    bool isDoubtful = false;

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
    /// What the user may do with the classes.
    bool classesCanChange = false;
    bool valuesCanChange = false;
    /// Caption of the command that changes a value.
    std::string valueChangeCaption;
    /// Whether the classes can be spread over most of the worked area, and whether they are.
    bool canSpread = false;
    bool spread = false;
    /// Whether they lie around a dose that was prescribed.
    bool aroundTarget = false;
    /// A remark on the classes; empty for none.
    std::string remark = {};
    /// Caption of a button under the remark that spreads the classes; empty for none.
    std::string offer = {};

    bool operator==(const LegendContent&) const = default;
};

/// When what is replayed was done; none of it without a clock that can tell.
struct ReplayMoment {
    /// Since 30 December 1899, or since midnight for a time without a date.
    std::optional<std::int64_t> second;
    bool hasDate = false;
    /// Seconds since the first record of the file.
    std::optional<std::int64_t> elapsed;

    bool operator==(const ReplayMoment&) const = default;
};

struct ReplayState {
    /// Something open can be replayed.
    bool available = false;
    bool playing = false;
    /// In elements.
    std::int32_t maximum = 0;
    std::int32_t position = 0;
    /// A quarter of the milliseconds between two elements.
    int speed = 0;
    /// Of the element that was replayed last.
    ReplayMoment moment = {};

    bool operator==(const ReplayState&) const = default;
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
    /// Enables or disables what works on the map: tools, canvas, edit menu, saving, scroll bars,
    /// file list. With `replayControls` the replay follows; without, the file menu follows and the
    /// replay stays as it is, so that a running one can be stopped.
    virtual void active(bool enabled, bool replayControls) = 0;
    /// A switch, a mode or the language changed: what menus and buttons show is to be asked anew.
    virtual void commandsChanged() = 0;
    /// All texts are to be shown in the language that `Texts` has now.
    virtual void retranslate() = 0;
    virtual void setReplay(const ReplayState& state) = 0;
    /// Speed at the replayed point; empty while it is not read out.
    virtual void setSpeedReadout(std::string_view text) = 0;
    virtual void setOverlay(const MapOverlay& overlay) = 0;
    /// The pointer's position in the status bar.
    virtual void setPosition(std::string_view text) = 0;
    /// What the tool in use measures, in the status bar.
    virtual void setToolText(std::string_view text) = 0;
    /// A remark on the open work in the status bar; empty for none.
    virtual void setWorkStatus(std::string_view text) = 0;
};

}  // namespace campora
