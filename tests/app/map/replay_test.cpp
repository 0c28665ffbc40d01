// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/replay.h"

#include <memory>
#include <tuple>

#include <gtest/gtest.h>

#include "app/work_place.h"
#include "support/named_file.h"
#include "support/recording_canvas.h"
#include "support/scripted_platform.h"
#include "support/scripted_window.h"
#include "support/work_records.h"
#include "work/gph_track.h"

namespace campora {
namespace {

using State = Replay::State;

/// Writes its name when it is drawn whole, and "nameN" for element N.
class Steps : public NamedLayer {
public:
    Steps(const std::string& name, std::int32_t count)
        : NamedLayer(name), name_(name), count_(count) {}

    [[nodiscard]] std::int32_t Gph_count() const override { return count_; }
    [[nodiscard]] bool Gph_animable() const override { return count_ > 0; }
    bool Gph_plotN(MapContext& context, std::int32_t n) const override {
        context.canvas.text({}, name_ + std::to_string(n), TextAnchor::TopLeft, false);
        return true;
    }

    void plotOnTop(MapContext& context) const override {
        if (count_ == 0) {
            context.canvas.point({}, {});
        }
    }

private:
    std::string name_;
    std::int32_t count_;
};

/// A file of any layers, without a box.
struct LayersFile : NamedFile {
    LayersFile() : NamedFile("capas") { bound = {}; }

    std::vector<std::unique_ptr<Gph>> layers;

    [[nodiscard]] std::vector<Gph*> File_gphList() const override {
        std::vector<Gph*> all;
        for (const auto& layer : layers) {
            all.push_back(layer.get());
        }
        return all;
    }
};

/// A window whose slider reports what it is told as a movement by the user.
class EchoingWindow : public ScriptedWindow {
public:
    Replay* replayTold = nullptr;
    void setReplay(const ReplayState& state) override {
        ScriptedWindow::setReplay(state);
        if (replayTold != nullptr) {
            replayTold->seek(state.position);
        }
    }
};

/// A prescription "p" between two tracks, "a" of 3 steps and "b" of 5.
struct ReplayDesk {
    ReplayDesk() : layers(addFile().layers) {
        display.beforeDrawing = [this] {
            replay.stopReplay();
            canvas.text({}, "map", TextAnchor::TopLeft, false);
        };
        display.leftOut = [this] { return file; };
        layers.push_back(std::make_unique<Steps>("a", 3));
        layers.push_back(std::make_unique<Steps>("p", 0));
        layers.push_back(std::make_unique<Steps>("b", 5));
        window.replayTold = &replay;
        replay.setSpeed(0);
        replay.prepareReplay();
    }

    LayersFile& addFile() {
        auto made = std::make_unique<LayersFile>();
        file = made.get();
        map.addFile(std::move(made), false);
        return *file;
    }
    /// What was drawn since the last call: the names in order, "|" for a cleared canvas.
    std::string drawn() {
        std::string names;
        for (const std::string& call : canvas.calls()) {
            if (call.starts_with("clear")) {
                names += "| ";
            } else if (call.starts_with("text")) {
                const std::size_t name = call.find('"') + 1;
                names += call.substr(name, call.size() - name - 1) + " ";
            }
        }
        canvas.forget();
        return names;
    }
    /// Does something when events have acted so many times from now.
    void after(int events, std::function<void()> act) {
        const int when = clock.events + events;
        clock.onEvents = [when, act](int count) {
            if (count == when) {
                act();
            }
        };
    }
    [[nodiscard]] ReplayState at(std::int32_t position, bool playing = false) const {
        return {true, playing, 8, position, replay.speed()};
    }

    RecordingCanvas canvas{{1000, 500}};
    EchoingWindow window;
    ScriptedClock clock;
    Texts texts{Language::Spanish};
    FixedLocale locale{','};
    ScriptedDialogs dialogs;
    int hidden = 0;
    OpenMap map{{dialogs, texts, locale}, ""};
    MapDisplay display{map, canvas, window};
    MapView& view = display.view();
    LayersFile* file = nullptr;
    std::vector<std::unique_ptr<Gph>>& layers;
    Replay replay{map, display, clock, [this] { ++hidden; }};
};

struct ReplayTest : testing::Test, ReplayDesk {};

TEST_F(ReplayTest, PlaysEveryElementOnceAfterWhatDoesNotMove) {
    EXPECT_EQ(window.replay, at(0));
    std::vector<std::int32_t> positions;
    clock.onEvents = [&](int) {
        EXPECT_FALSE(window.mapActive);
        EXPECT_FALSE(window.fileMenuActive);
        EXPECT_TRUE(window.replay.playing);
        positions.push_back(window.replay.position);
    };
    replay.play();
    const std::vector<std::string> calls = canvas.calls();
    EXPECT_TRUE(calls.at(calls.size() - 2).starts_with("point")) << "what lies on top of all";
    EXPECT_GT(canvas.callsOf("point").size(), 5U) << "and after each element";
    EXPECT_EQ(drawn(), "| p a0 a1 a2 b0 b1 b2 b3 b4 ");
    EXPECT_EQ(positions, (std::vector<std::int32_t>{0, 1, 2, 2, 4, 5, 6, 7}));
    EXPECT_EQ(window.replay, at(0));
    EXPECT_EQ(replay.state(), State::Idle);
    EXPECT_TRUE(window.mapActive);
    EXPECT_TRUE(window.fileMenuActive);
    EXPECT_EQ(hidden, 1);

    layers.erase(layers.begin());
    layers.pop_back();
    replay.prepareReplay();
    EXPECT_EQ(window.replay, ReplayState{}) << "nothing to replay";
    replay.play();
    EXPECT_EQ(drawn(), "");
}

TEST(Replay, SeeksAndPausesAndPlaysOn) {
    const char* const all = "| p a0 a1 a2 b0 b1 b2 b3 b4 ";
    // Where to, what is drawn, the position and what is drawn when it plays on.
    const std::tuple<std::int32_t, const char*, State, std::int32_t, const char*> rows[] = {
        {1, "| p a0 a1 a2 ", State::Paused, 2, "a2 b0 b1 b2 b3 b4 "},
        {4, "| p a b0 b1 b2 ", State::Paused, 5, "b2 b3 b4 "},
        {7, "| p a b0 b1 b2 b3 b4 ", State::Idle, 0, all},
        {8, "| p a b ", State::Idle, 8, all},
    };
    for (const auto& [target, drawn, state, position, playedOn] : rows) {
        SCOPED_TRACE(target);
        ReplayDesk d;
        d.replay.setSpeed(250);
        d.replay.seek(target);
        EXPECT_EQ(d.clock.sleeps.size(), 0U);
        EXPECT_EQ(d.drawn(), drawn);
        EXPECT_EQ(d.replay.state(), state);
        EXPECT_EQ(d.window.replay, d.at(position));
        d.replay.play();
        EXPECT_EQ(d.drawn(), playedOn);
        EXPECT_EQ(d.replay.state(), State::Idle);
    }
}

TEST(Replay, WhatTheUserDoesMeanwhileActsOnTheReplayThatRuns) {
    using Act = std::function<void(Replay&)>;
    const Act play = [](Replay& r) { r.play(); };
    const Act stop = [](Replay& r) { r.stop(); };
    const Act redraw = [](Replay& r) { r.stopReplay(); };
    const auto slider = [](std::int32_t to) { return [to](Replay& r) { r.seek(to); }; };
    const Act jump = [](Replay& r) { r.jumpTo(4); };
    const Act from = [](Replay& r) { r.playFrom(4); };
    // What happens when "a1" is drawn, what is drawn in all, and where it pauses; 0: it is over.
    const std::tuple<const char*, std::vector<Act>, const char*, std::int32_t> rows[] = {
        {"pause", {play}, "| p a0 a1 ", 1},
        {"stop", {stop}, "| p a0 a1 | map ", 0},
        {"a redraw", {redraw}, "| p a0 a1 ", 0},
        {"the slider", {slider(6)}, "| p a0 a1 a2 b0 b1 b2 b3 b4 ", 0},
        {"stop and play", {stop, play}, "| p a0 a1 | map | p a0 a1 a2 b0 b1 b2 b3 b4 ", 0},
        {"pause and slider", {play, slider(4)}, "| p a0 a1 | p a b0 b1 b2 ", 5},
        {"a jump", {jump}, "| p a0 a1 | p a b0 b1 b2 b3 b4 ", 0},
        {"pause and jump", {play, jump}, "| p a0 a1 | p a b0 b1 b2 ", 5},
        {"pause and play from", {play, from}, "| p a0 a1 | p a b0 b1 b2 b3 b4 ", 0},
    };
    for (const auto& row : rows) {
        const auto& [name, acts, drawn, pausedAt] = row;
        SCOPED_TRACE(name);
        ReplayDesk d;
        d.after(2, [&] {
            for (const Act& act : std::get<1>(row)) {
                act(d.replay);
            }
        });
        d.replay.play();
        EXPECT_EQ(d.drawn(), drawn);
        EXPECT_EQ(d.replay.state(), pausedAt > 0 ? State::Paused : State::Idle);
        EXPECT_EQ(d.window.replay, d.at(pausedAt));
        EXPECT_TRUE(d.window.mapActive);
    }
}

TEST_F(ReplayTest, ASeekGivesWayToANewerOneAndIsFinishedBeforePlaying) {
    after(1, [&] {
        replay.seek(1);
        replay.seek(4);
    });
    replay.seek(2);
    EXPECT_EQ(drawn(), "| p a0 | p a b0 b1 b2 ");
    EXPECT_EQ(window.replay, at(5));

    after(1, [&] { replay.play(); });
    replay.seek(0);
    EXPECT_EQ(drawn(), "| p a0 a1 a1 a2 b0 b1 b2 b3 b4 ");

    after(1, [&] {
        replay.play();
        replay.stop();
    });
    replay.seek(5);
    EXPECT_EQ(drawn(), "| p a b0 | map ");
    EXPECT_EQ(window.replay, at(0));
}

TEST_F(ReplayTest, TellsSpeedAndTimeOfTheElement) {
    auto track = std::make_unique<GphTrack>();
    for (int i = 0; i < 4; ++i) {
        TrackDataRPT::Fields fields = reportFields(100);
        fields.speed = 10.5F + static_cast<float>(i);
        fields.time = i == 0 ? TimeOfDay{23, 59, 58} : TimeOfDay{0, 0, 2 + i};
        const LonLat at = atMetres(0, 10.0 * i);
        track->addPoint(at.x, at.y, TrackDataRPT(fields));
    }
    layers.clear();
    layers.push_back(std::move(track));
    view.totalBound = layers.front()->Gph_bound();
    view.fitView();
    view.ZoomUno();
    replay.prepareReplay();
    replay.setSpeedShown(true);
    EXPECT_EQ(window.speed, "");
    replay.seek(0);
    EXPECT_EQ(window.speed, "11,5 km/h");
    EXPECT_EQ(replayClockText(window.replay.moment, locale), "00:00:03   +0:00:05");
    replay.stop();
    EXPECT_EQ(window.speed, "");
    EXPECT_EQ(replayClockText(window.replay.moment, locale), "–   –");
}

TEST_F(ReplayTest, FindsTheRecordsOfAFile) {
    layers.erase(layers.begin(), layers.end() - 1);  // five steps that are no records
    LayersFile& second = addFile();
    for (const int points : {3, 1, 4}) {
        auto track = std::make_unique<GphTrack>();
        for (int i = 0; i < points; ++i) {
            const LonLat at = atMetres(0, 10.0 * i);
            track->addPoint(at.x, at.y, reportRecord(100));
        }
        second.layers.push_back(std::move(track));
    }
    // Record, its position, and the record that is replayed there.
    const std::tuple<std::size_t, std::optional<std::int32_t>, std::size_t> rows[] = {
        {0, 5, 0}, {1, 6, 1}, {2, 6, 1}, {4, 7, 4}, {6, 9, 6}, {7, 9, 6}, {8, std::nullopt, 0},
    };
    for (const auto& [record, position, replayed] : rows) {
        SCOPED_TRACE(record);
        EXPECT_EQ(replayPosition(map, {&second, record}), position);
        const auto place = position ? placeInWork(map, *position) : placeInWork(map, 10);
        ASSERT_EQ(place.has_value(), position.has_value());
        if (place) {
            EXPECT_EQ(place->file, &second);
            EXPECT_EQ(place->record, replayed);
        }
    }
    EXPECT_EQ(placeInWork(map, 2).has_value(), false);
}

}  // namespace
}  // namespace campora
