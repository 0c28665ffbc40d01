// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map/replay.h"

#include <algorithm>
#include <cstddef>
#include <limits>
#include <utility>

#include "base/numbers.h"
#include "model/shown_number.h"
#include "model/work_layer.h"

namespace campora {

namespace {

/// Milliseconds between two elements for each step of the speed slider.
constexpr std::uint32_t kPauseStep = 4;
/// Parts of a pause between which events act.
constexpr double kPauseParts = 8;

/// The window is locked and another replay kept from starting while this lives.
class Lock {
public:
    Lock(MainWindowControls& window, bool& busy) : window_(window), busy_(busy) {
        busy_ = true;
        window_.active(false, false);
    }
    ~Lock() {
        window_.active(true, false);
        busy_ = false;
    }
    Lock(const Lock&) = delete;
    Lock& operator=(const Lock&) = delete;

private:
    MainWindowControls& window_;
    bool& busy_;
};

}  // namespace

Replay::Replay(const OpenMap& map, MapDisplay& display, Clock& clock,
               std::function<void()> hideInfo)
    : map_(map),
      canvas_(display.canvas()),
      window_(display.window()),
      clock_(clock),
      view_(display.view()),
      style_(map.style()),
      texts_(map.desk().texts),
      locale_(map.desk().locale),
      hideInfo_(std::move(hideInfo)),
      moments_(map) {}

void Replay::prepareReplay() {
    std::int64_t total = 0;
    for (const Gph* layer : map_.getGphList()) {
        total += layer->Gph_animable() ? layer->Gph_count() : 0;
    }
    constexpr std::int64_t kMost = std::numeric_limits<std::int32_t>::max();
    stopReplay();
    moments_.forget();
    shown_ = {total > 0, false, static_cast<std::int32_t>(std::min(total, kMost)), 0, speed_, {}};
    show();
}

void Replay::stopReplay() {
    next_.reset();
    state_ = State::Idle;
    forgetElement();
    if (shown_.playing || shown_.position != 0) {
        shown_.playing = false;
        shown_.position = 0;
        show();
    }
}

void Replay::stop() {
    stopReplay();
    view_.setView(view_.scaleX(), view_.scaleY(), view_.scrollX(), view_.scrollY());
}

void Replay::play() {
    if (!shown_.available) {
        return;
    }
    view_.settle();  // which would stop the replay later
    const bool wasPlaying = state_ == State::Playing;
    shown_.playing = !wasPlaying;
    show();
    if (wasPlaying) {
        state_ = State::Paused;
    } else if (busy_ && state_ == State::Paused) {
        state_ = State::Playing;  // paused a moment ago: the loop has not seen it
    } else {
        start({false, 0});
    }
}

void Replay::seek(std::int32_t position) {
    if (showing_ || !shown_.available || state_ == State::Playing) {
        return;
    }
    view_.settle();
    shown_.playing = false;
    shown_.position = std::clamp(position, 0, shown_.maximum);
    start({true, shown_.position});
}

void Replay::jumpTo(std::int32_t position) {
    if (state_ == State::Playing) {
        playFrom(position);
    } else {
        seek(position);
    }
}

void Replay::playFrom(std::int32_t position) {
    if (showing_ || !shown_.available) {
        return;
    }
    view_.settle();
    state_ = State::Idle;  // what runs ends, and what is on the canvas is drawn anew
    shown_.playing = true;
    shown_.position = std::clamp(position, 0, shown_.maximum - 1);
    show();
    start({false, shown_.position});
}

void Replay::setSpeed(int value) {
    speed_ = std::clamp(value, 0, kLongestPause);
    shown_.speed = speed_;
    show();
}

void Replay::setSpeedShown(bool shown) {
    speedShown_ = shown;
    showSpeed();
}

void Replay::start(Round wanted) {
    next_ = wanted;
    if (busy_) {
        return;  // the loop that runs sees to it
    }
    const Lock lock(window_, busy_);
    hideInfo_();
    while (next_) {
        const Round current = *std::exchange(next_, std::nullopt);
        run(current);
    }
    plotOnTop();
    canvas_.refresh();
}

void Replay::plotOnTop() {
    const ViewTransform view = view_.transform();
    MapContext context{canvas_, view, style_};
    for (const Gph* layer : map_.getGphList()) {
        layer->plotOnTop(context);
    }
}

void Replay::run(const Round& wanted) {
    Round round = wanted;
    if (!wanted.seek && shown_.position < shown_.maximum) {
        round.position = shown_.position;
    }
    while (drawFrom(round) == Outcome::RanOut) {
        if (!repeat || wanted.seek) {
            state_ = State::Idle;
            shown_.playing = next_.has_value();
            const bool toTheEnd = wanted.seek && wanted.position >= shown_.maximum;
            shown_.position = toTheEnd ? shown_.maximum : 0;
            forgetElement();
            show();
            return;
        }
        state_ = State::Idle;
        shown_.position = 0;
        show();
        round.position = 0;
    }
}

Replay::Outcome Replay::drawFrom(const Round& wanted) {
    const ViewTransform view = view_.transform();
    MapContext context{canvas_, view, style_};
    // What a pause left on the canvas is not drawn again: layers below it would cover it.
    const bool resumes = state_ == State::Paused && !wanted.seek;
    if (!resumes) {
        canvas_.clear();
    }
    canvas_.setPenWidth(1);
    canvas_.setPenColor(style_.colors.fore);
    canvas_.setFillStyle(FillStyle::Solid);
    Walk walk;
    for (const Gph* layer : map_.getGphList()) {
        if (layer->Gph_animable()) {
            walk.layers.push_back(layer);
            continue;
        }
        walk.still.push_back(layer);
        if (!resumes) {
            layer->Gph_plot(context);
        }
    }
    for (; walk.current < walk.layers.size(); ++walk.current) {
        const Gph* const layer = walk.layers[walk.current];
        const std::int32_t count = layer->Gph_count();
        if (walk.before + count > wanted.position) {
            break;
        }
        if (!resumes) {
            layer->Gph_plot(context);
        }
        walk.before += count;
    }
    state_ = wanted.seek ? State::Seeking : State::Playing;
    auto position = static_cast<std::int32_t>(wanted.position - walk.before);
    std::int32_t first = resumes ? position : 0;
    for (; walk.current < walk.layers.size(); ++walk.current) {
        if (drawElements(context, walk, position, first, wanted.seek) == Outcome::Interrupted) {
            return Outcome::Interrupted;
        }
        walk.before += walk.layers[walk.current]->Gph_count();
        position = 0;
        first = 0;
    }
    return Outcome::RanOut;
}

Replay::Outcome Replay::drawElements(MapContext& context, Walk& walk, std::int32_t position,
                                     std::int32_t first, bool seeking) {
    const Gph* const layer = walk.layers[walk.current];
    const std::int32_t count = layer->Gph_count();
    for (std::int32_t n = first; n < count; ++n) {
        const bool isPast = n > position;
        if (layer->Gph_plotN(context, n) && isPast) {
            if (!seeking) {
                waitMs(kPauseStep * static_cast<std::uint32_t>(speed_));
            }
            if (!isCancelled()) {
                for (const Gph* still : walk.still) {
                    still->plotOnTop(context);
                }
                showElement(walk, n);
            }
        }
        if (isInterrupted()) {
            return Outcome::Interrupted;
        }
        if (seeking && isPast) {
            state_ = State::Paused;
            return Outcome::Interrupted;
        }
        clock_.processEvents();
        if (isInterrupted()) {
            return Outcome::Interrupted;
        }
    }
    return Outcome::RanOut;
}

void Replay::showElement(const Walk& walk, std::int32_t n) {
    const auto* const work = dynamic_cast<const WorkLayer*>(walk.layers[walk.current]);
    elementSpeed_ = work != nullptr ? std::optional(work->speedN(n)) : std::nullopt;
    showSpeed();
    shown_.moment = work != nullptr ? moments_.at(*work, n) : ReplayMoment{};
    shown_.position =
        static_cast<std::int32_t>(std::min<std::int64_t>(walk.before + n, shown_.maximum));
    show();
    canvas_.refresh();
}

void Replay::forgetElement() {
    elementSpeed_.reset();
    showSpeed();
    shown_.moment = {};
}

bool Replay::isCancelled() const {
    // Playing on after a seek waits for its end; another round does not.
    return state_ == State::Idle || (next_ && next_->seek);
}

void Replay::waitMs(std::uint32_t milliseconds) {
    const std::uint32_t begin = clock_.ticks();
    // Unsigned differences stay right when the ticks begin again at 0.
    const auto isOver = [&] { return clock_.ticks() - begin >= milliseconds; };
    const auto part = static_cast<std::uint32_t>(
        std::max(roundToInt32(static_cast<double>(milliseconds) / kPauseParts), 1));
    while (!isOver()) {
        clock_.processEvents();
        if (busy_ && isInterrupted()) {
            return;
        }
        clock_.sleep(part);
    }
}

void Replay::showSpeed() {
    std::string text;
    if (speedShown_ && elementSpeed_) {
        text = texts_.format(TextId::SpeedReadout, {shownNumber(*elementSpeed_, locale_)});
    }
    if (text != speedText_) {
        speedText_ = std::move(text);
        window_.setSpeedReadout(speedText_);
    }
}

void Replay::show() {
    showing_ = true;
    window_.setReplay(shown_);
    showing_ = false;
}

}  // namespace campora
