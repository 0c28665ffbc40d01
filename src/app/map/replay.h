// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <functional>
#include <optional>
#include <string>
#include <vector>

#include "app/map/replay_clock.h"
#include "app/map_display.h"
#include "app/map_view.h"
#include "app/open_map.h"
#include "base/texts.h"
#include "model/gph.h"
#include "model/map_style.h"
#include "platform/clock.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"
#include "platform/user_locale.h"

namespace campora {

class WorkLayer;

/// Draws the open work again in the order in which it was done. Positions count the elements of the
/// layers that can be replayed, from 0, in the order of the layer list.
///
/// `play` and `seek` return when the replay pauses, stops or ends. Until then they let pending
/// events act, and whatever these call here takes effect on the replay that runs; a second one
/// never starts inside the first.
class Replay {
public:
    enum class State { Idle = 0, Playing = 1, Paused = 2, Seeking = 3 };
    /// Range of the speed and where it starts: a quarter of the milliseconds between two elements.
    static constexpr int kLongestPause = 250;
    static constexpr int kUsualPause = 12;

    /// All of it outlives the replay; the open files stay while it runs. `hideInfo`: takes the
    /// information box off the map.
    Replay(const OpenMap& map, MapDisplay& display, Clock& clock, std::function<void()> hideInfo);

    /// Begin again after the end, until stopped.
    bool repeat = false;

    [[nodiscard]] State state() const { return state_; }
    [[nodiscard]] const ReplayState& shown() const { return shown_; }
    [[nodiscard]] int speed() const { return speed_; }
    /// Whether the speed at the replayed point is read out.
    [[nodiscard]] bool speedShown() const { return speedShown_; }

    /// The open files are others.
    void prepareReplay();
    /// Back to the start; a replay that runs ends. Called by every full redraw.
    void stopReplay();
    /// The play button: plays from the position of the slider, or pauses.
    void play();
    /// The stop button.
    void stop();
    /// The user moved the slider: draws everything up to there and pauses. Without effect while the
    /// replay plays.
    void seek(std::int32_t position);
    /// As `seek` for a replay that does not play; one that plays goes on from there.
    void jumpTo(std::int32_t position);
    /// Plays from a position on, whatever it does now.
    void playFrom(std::int32_t position);
    /// The user moved the speed slider; values beyond its range count as its ends.
    void setSpeed(int value);
    void setSpeedShown(bool shown);
    /// Reads the speed ("velocidad") out, or no longer.
    void mnuEditViewVel() { setSpeedShown(!speedShown_); }

    /// Lets pending events act for so many milliseconds, or until the replay no longer plays.
    void waitMs(std::uint32_t milliseconds);

private:
    /// Once through the layers: up to a position at once, or played from it on.
    struct Round {
        bool seek = false;
        std::int32_t position = 0;
    };
    /// Where the walk over the replayable layers is.
    struct Walk {
        std::vector<const Gph*> layers;
        std::vector<const Gph*> still;  // those that are drawn whole before it begins
        std::size_t current = 0;
        std::int64_t before = 0;  // elements of the layers before the current one
    };
    enum class Outcome { Interrupted, RanOut };

    void start(Round wanted);
    void plotOnTop();
    void run(const Round& wanted);
    [[nodiscard]] Outcome drawFrom(const Round& wanted);
    [[nodiscard]] Outcome drawElements(MapContext& context, Walk& walk, std::int32_t position,
                                       std::int32_t first, bool seeking);
    void showElement(const Walk& walk, std::int32_t n);
    /// Nothing is replayed: neither speed nor moment.
    void forgetElement();
    /// What runs is to leave canvas and slider alone.
    [[nodiscard]] bool isCancelled() const;
    [[nodiscard]] bool isInterrupted() const { return state_ == State::Paused || isCancelled(); }
    void showSpeed();
    void show();

    const OpenMap& map_;
    MapCanvas& canvas_;
    MainWindowControls& window_;
    Clock& clock_;
    MapView& view_;
    const MapStyle& style_;
    const Texts& texts_;
    const UserLocale& locale_;
    std::function<void()> hideInfo_;
    ReplayClock moments_;

    State state_ = State::Idle;
    ReplayState shown_;
    int speed_ = kUsualPause;
    bool speedShown_ = false;
    /// km/h at the element that was replayed last.
    std::optional<float> elementSpeed_;
    std::string speedText_;
    bool busy_ = false;
    /// While set, the window is being told a position and may report it back.
    bool showing_ = false;
    /// What is to be done when the loop that runs has ended.
    std::optional<Round> next_;
};

}  // namespace campora
