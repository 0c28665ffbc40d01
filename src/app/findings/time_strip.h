// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "app/findings/stretch_halo.h"
#include "app/findings/strip_holes.h"
#include "app/findings/strip_texts.h"
#include "app/findings/strip_window.h"
#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open_map.h"
#include "app/work_place.h"
#include "findings/time_series.h"

namespace campora {

/// What a strip looks like; places are columns of it.
struct StripPicture {
    /// Why there is nothing to show; all else is empty then.
    std::string reason;
    /// Alarms: those that have a meaning.
    std::vector<SeriesColumn> columns;
    /// Values at the upper ends of the curves, at least 1.
    double doseTop = 1;
    double speedTop = 1;
    std::string doseLabel;
    std::string speedLabel;
    std::vector<StripTick> ticks;
    /// Where records are missing, and pauses that take less room than they lasted.
    std::vector<StripHoles::Span> missing;
    std::vector<StripHoles::Span> folds;
    /// Why the axis counts records; empty over time.
    std::string axisRemark;
    std::optional<std::pair<double, double>> stretch;
    std::optional<double> cursor;
    std::optional<double> replayed;
    /// What is under the pointer or the cursor, and what was done in the stretch.
    std::string value;
    std::string totals;
};

/// The current file over time: which part is shown, what is brushed, where the cursor stands.
/// Positions of the mouse are columns from the left.
class TimeStrip {
public:
    enum class Key {
        Left,
        Right,
        PageLeft,
        PageRight,
        Home,
        End,
        ZoomIn,
        ZoomOut,
        Go,
        Play,
        Clear
    };

    /// All of it outlives the strip.
    TimeStrip(OpenMap& map, MapDisplay& display, MapTools& tools);
    TimeStrip(const TimeStrip&) = delete;
    TimeStrip& operator=(const TimeStrip&) = delete;
    ~TimeStrip() = default;

    // Each may be empty.

    /// The replay is to be put to a record, or to play from it on.
    std::function<void(const WorkPlace&)> onGo;
    std::function<void(const WorkPlace&)> onPlay;
    /// Pauses the replay; false when it does not play.
    std::function<bool()> onPause;
    /// Something else is brushed here, or nothing any more.
    std::function<void()> onBrushed;
    /// What the strip shows has changed.
    std::function<void()> onChanged;

    /// Whether there is anything open that a strip could show.
    [[nodiscard]] bool hasWork() const;
    /// While it is not shown it reads nothing.
    void setShown(bool shown);
    /// The open files, or what is recorded in them, are others.
    void filesChanged();
    /// Takes up the current file and channel.
    void refresh();
    /// Position of the replay; none while nothing is replayed.
    void setReplayed(std::optional<std::int32_t> position);

    void setWidth(int columns);
    void zoomAt(double column, int steps);
    void scroll(double columns);
    /// Shows what lies between two columns.
    void zoomTo(double from, double to);
    /// The pointer is there; none: elsewhere.
    void point(std::optional<double> column);
    void brush(double from, double to);
    void clearBrush();
    /// Brushes up to a record what another part of the window picks out; clears the brush when it
    /// is of another file.
    void show(const WorkPlace& first, std::size_t last);
    /// Puts the replay there.
    void go(double column);
    /// A key, perhaps with the one that brushes. False when it means nothing.
    bool press(Key key, bool brushes);

    /// The first record that is brushed; none without a brush.
    [[nodiscard]] std::optional<WorkPlace> stretch() const;
    /// `leastTick`: columns between two marks of the axis.
    [[nodiscard]] StripPicture picture(int leastTick) const;
    /// Value and totals in one sentence for a screen reader.
    [[nodiscard]] std::string spoken() const;

private:
    using Records = std::pair<std::size_t, std::size_t>;

    void read(const File& file, bool sameFile);
    void setStretch(std::optional<Records> records);
    void tellBrushed() const;
    void moveTo(std::size_t record, bool brushes);
    /// Where a key moves the cursor; none for one that does not.
    [[nodiscard]] std::optional<std::size_t> targetOf(Key key, std::size_t at) const;
    [[nodiscard]] std::size_t steppedFrom(std::size_t record, double columns) const;
    [[nodiscard]] std::size_t startingPoint() const;
    [[nodiscard]] std::string valueText() const;
    [[nodiscard]] std::string textOf(std::size_t record) const;
    [[nodiscard]] StripWords words() const;
    void addCurves(StripPicture& picture) const;
    void addMarks(StripPicture& picture) const;
    void addShapes(MapOverlay& overlay) const;
    void changed() const;

    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;

    bool shown_ = false;
    bool stale_ = true;
    const File* file_ = nullptr;
    int channel_ = -1;
    bool units_ = false;
    std::vector<const WorkLayer*> passes_;
    std::optional<TimeSeries> series_;
    StripHoles holes_;
    StretchHalo halo_;
    /// Of the whole file; 0 where it cannot be told.
    double meanDose_ = 0;
    StripWindow window_;
    std::optional<double> pointed_;
    std::optional<std::size_t> cursor_;
    /// Where brushing with keys began.
    std::optional<std::size_t> anchor_;
    std::optional<Records> stretch_;
    std::optional<std::int32_t> replayed_;
};

}  // namespace campora
