// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/time_strip.h"

#include <algorithm>
#include <cmath>

#include "app/figure_text.h"
#include "work/color_modes.h"

namespace campora {

namespace {

/// What a step of the wheel leaves of the window.
constexpr double kZoom = 0.8;
/// Part of the window that a page goes on.
constexpr double kPage = 0.5;
/// Times its mean from which on a value goes beyond the picture.
constexpr double kFarAboveMean = 3;

/// A round number at or above a value: 1, 1.5, 2, 3, 4, 5, 6 or 8 times a power of ten.
double roundTop(double value) {
    if (!(value > 0)) {
        return 1;
    }
    const double power = std::pow(10, std::floor(std::log10(value)));
    for (const double times : {1.0, 1.5, 2.0, 3.0, 4.0, 5.0, 6.0, 8.0}) {
        if (times * power >= value) {
            return times * power;
        }
    }
    return 10 * power;
}

/// The top for values of that mean: one that is far off does not flatten all others.
double topOf(double greatest, double mean) {
    return roundTop(mean > 0 ? std::min(greatest, kFarAboveMean * mean) : greatest);
}

double greatestOf(const SeriesRange& range) {
    return range.empty() ? 0 : static_cast<double>(range.greatest);
}

}  // namespace

TimeStrip::TimeStrip(OpenMap& map, MapDisplay& display, MapTools& tools)
    : map_(map), display_(display), tools_(tools) {
    tools_.addOverlay([this](MapOverlay& overlay) { addShapes(overlay); });
}

bool TimeStrip::hasWork() const {
    const std::vector<File*> files = map_.files().all();
    return std::any_of(files.begin(), files.end(),
                       [](const File* file) { return !workLayers(*file).empty(); });
}

void TimeStrip::setShown(bool shown) {
    shown_ = shown;
    refresh();
    tools_.showOverlay();
}

void TimeStrip::filesChanged() {
    stale_ = true;
    passes_.clear();
    halo_ = {};
}

void TimeStrip::refresh() {
    const File* const current = shown_ ? map_.files().currentFile() : nullptr;
    const int channel = map_.style().selectedChannel;
    if (!shown_ || (!stale_ && current == file_ && channel == channel_)) {
        return;
    }
    const bool sameFile = current == file_;
    file_ = current;
    channel_ = channel;
    stale_ = false;
    if (current != nullptr) {
        read(*current, sameFile);
    } else {
        series_.reset();
        passes_.clear();
        setStretch(std::nullopt);
    }
    changed();
}

void TimeStrip::read(const File& file, bool sameFile) {
    const std::size_t before = series_ && sameFile ? series_->size() : 0;
    passes_ = workLayers(file);
    units_ = countsUnits(file).value_or(false);
    series_.emplace(passes_, channel_);
    holes_ = StripHoles(passes_);
    halo_ = StretchHalo(passes_);
    if (series_->size() == 0) {
        series_.reset();
    }
    meanDose_ = series_ ? series_->totals(0, series_->size() - 1).meanDose.value_or(0) : 0;
    if (series_ && series_->size() == before) {
        return;
    }
    cursor_.reset();
    anchor_.reset();
    pointed_.reset();
    setStretch(std::nullopt);
    if (series_) {
        window_.setWhole(series_->positionOf(0), series_->positionOf(series_->size() - 1) + 1);
    }
}

void TimeStrip::setReplayed(std::optional<std::int32_t> position) {
    if (position != replayed_) {
        replayed_ = position;
        changed();
    }
}

void TimeStrip::setWidth(int columns) {
    window_.setWidth(columns);
    changed();
}

void TimeStrip::zoomAt(double column, int steps) {
    window_.zoomAt(column, std::pow(kZoom, steps));
    changed();
}

void TimeStrip::scroll(double columns) {
    window_.scroll(columns);
    changed();
}

void TimeStrip::zoomTo(double from, double to) {
    window_.show(window_.positionAt(std::min(from, to)), window_.positionAt(std::max(from, to)));
    changed();
}

void TimeStrip::point(std::optional<double> column) {
    pointed_ = column;
    changed();
}

void TimeStrip::brush(double from, double to) {
    if (!series_) {
        return;
    }
    const std::size_t last = series_->recordAt(window_.positionAt(std::max(from, to)));
    const std::size_t first = series_->firstFrom(window_.positionAt(std::min(from, to)));
    tellBrushed();
    setStretch(Records{std::min(first, last), last});
    cursor_ = last;
    anchor_ = std::min(first, last);
    changed();
}

void TimeStrip::clearBrush() {
    anchor_.reset();
    setStretch(std::nullopt);
    changed();
}

void TimeStrip::setStretch(std::optional<Records> records) {
    if (records != stretch_) {
        stretch_ = records;
        tools_.showOverlay();
        display_.window().commandsChanged();
    }
}

void TimeStrip::go(double column) {
    if (series_) {
        cursor_ = series_->recordAt(window_.positionAt(column));
        anchor_.reset();
        changed();
        press(Key::Go, false);
    }
}

void TimeStrip::show(const WorkPlace& first, std::size_t last) {
    if (!shown_ || stale_ || !series_ || first.file != file_ || last >= series_->size()) {
        clearBrush();
        return;
    }
    setStretch(Records{first.record, last});
    cursor_ = anchor_ = first.record;
    pointed_.reset();
    window_.reveal(series_->positionOf(last));
    window_.reveal(series_->positionOf(first.record));
    changed();
}

void TimeStrip::tellBrushed() const {
    if (onBrushed) {
        onBrushed();
    }
}

bool TimeStrip::press(Key key, bool brushes) {
    if (!series_) {
        return false;
    }
    const std::size_t at = startingPoint();
    if (const std::optional<std::size_t> target = targetOf(key, at)) {
        moveTo(*target, brushes);
    } else if (key == Key::ZoomIn || key == Key::ZoomOut) {
        const double column = window_.columnOf(series_->positionOf(at));
        zoomAt(std::clamp(column, 0.0, static_cast<double>(window_.width())),
               key == Key::ZoomIn ? 1 : -1);
    } else if (key == Key::Go && onGo) {
        onGo({file_, at});
    } else if (key == Key::Play && onPlay && !(onPause && onPause())) {
        onPlay(stretch().value_or(WorkPlace{file_, at}));
    } else if (key == Key::Clear) {
        tellBrushed();
        clearBrush();
    }
    return true;
}

std::optional<std::size_t> TimeStrip::targetOf(Key key, std::size_t at) const {
    switch (key) {
    case Key::Left:
        return steppedFrom(at, -1);
    case Key::Right:
        return steppedFrom(at, 1);
    case Key::PageLeft:
        return steppedFrom(at, -kPage * window_.width());
    case Key::PageRight:
        return steppedFrom(at, kPage * window_.width());
    case Key::Home:
        return 0;
    case Key::End:
        return series_->size() - 1;
    default:
        return std::nullopt;
    }
}

std::size_t TimeStrip::startingPoint() const {
    return std::min(cursor_.value_or(series_->recordAt(window_.from())), series_->size() - 1);
}

std::size_t TimeStrip::steppedFrom(std::size_t record, double columns) const {
    const double to = series_->positionOf(record) + columns * window_.perColumn();
    const std::size_t found = series_->recordAt(to);
    if (columns > 0) {
        return std::min(std::max(found, record + 1), series_->size() - 1);
    }
    return std::min(found, record > 0 ? record - 1 : 0);
}

void TimeStrip::moveTo(std::size_t record, bool brushes) {
    if (brushes) {
        const std::size_t anchor = anchor_.value_or(startingPoint());
        anchor_ = anchor;
        tellBrushed();
        setStretch(Records{std::min(anchor, record), std::max(anchor, record)});
    } else {
        anchor_.reset();
    }
    cursor_ = record;
    pointed_.reset();
    window_.reveal(series_->positionOf(record));
    changed();
}

std::optional<WorkPlace> TimeStrip::stretch() const {
    return stretch_ && series_ && shown_ ? std::optional(WorkPlace{file_, stretch_->first})
                                         : std::nullopt;
}

StripWords TimeStrip::words() const {
    return {map_.desk().texts, map_.desk().locale, units_};
}

std::string TimeStrip::valueText() const {
    if (!pointed_) {
        return cursor_ ? textOf(*cursor_) : std::string();
    }
    const double position = window_.positionAt(*pointed_);
    std::vector<SeriesColumn> under(1);
    series_->columns(position, position + window_.perColumn(), under);
    if (under[0].lastRecord != SeriesColumn::kNoRecord) {
        return textOf(under[0].lastRecord);
    }
    const std::string hole = holes_.text(*series_, series_->recordAt(position), words());
    return positionText(*series_, position, words())
        .append("  ·  ")
        .append(hole.empty() ? kNoFigure : hole);
}

/// Also what comes after it, since a cursor goes from record to record.
std::string TimeStrip::textOf(std::size_t record) const {
    const std::string hole = holes_.text(*series_, record, words());
    std::string text = recordText(*series_, record, words());
    return hole.empty()
               ? text
               : text.append("  ·  ").append(map_.desk().texts.format(TextId::StripThen, {hole}));
}

StripPicture TimeStrip::picture(int leastTick) const {
    StripPicture picture;
    const Texts& texts = map_.desk().texts;
    if (!series_) {
        picture.reason = texts(TextId::StripNoRecords);
        return picture;
    }
    addCurves(picture);
    addMarks(picture);
    const WorkClock& clock = series_->clock();
    picture.ticks = stripTicks(window_, series_->isOverTime() ? clock.kind() : RecordClock::None,
                               series_->folds(), leastTick, map_.desk().locale);
    picture.missing = holes_.missing(*series_, window_);
    picture.folds = foldedSpans(*series_, window_);
    if (!series_->isOverTime()) {
        picture.axisRemark =
            texts(clock.runsBackwards() ? TextId::StripClockBack : TextId::StripNoClock);
    }
    picture.value = valueText();
    if (stretch_) {
        picture.totals = stretchText(*series_, *stretch_, words());
    }
    return picture;
}

void TimeStrip::addCurves(StripPicture& picture) const {
    const StripWords words = this->words();
    picture.columns.resize(static_cast<std::size_t>(window_.width()));
    series_->columns(window_.from(), window_.to(), picture.columns);
    for (SeriesColumn& column : picture.columns) {
        column.alarms = words.known(column.alarms);
        if (series_->meanSpeed() == 0) {
            column.speed = {};  // none was recorded
        }
    }
    const SeriesColumn& whole = series_->whole();
    const double greatest = std::max(greatestOf(whole.dose), greatestOf(whole.specified));
    picture.doseTop = topOf(greatest, meanDose_);
    picture.speedTop = topOf(greatestOf(whole.speed), series_->meanSpeed());
    picture.doseLabel = greatest > 0 ? words.dose(picture.doseTop) : std::string(kNoFigure);
    picture.speedLabel =
        series_->meanSpeed() > 0 ? words.speed(picture.speedTop) : std::string(kNoFigure);
}

void TimeStrip::addMarks(StripPicture& picture) const {
    const auto columnOf = [this](std::size_t record) {
        return window_.columnOf(series_->positionOf(record));
    };
    if (stretch_) {
        picture.stretch = {columnOf(stretch_->first), columnOf(stretch_->second)};
    }
    if (cursor_) {
        picture.cursor = columnOf(*cursor_);
    }
    const auto place = replayed_ ? placeInWork(map_, *replayed_) : std::nullopt;
    if (place && place->file == file_ && place->record < series_->size()) {
        picture.replayed = columnOf(place->record);
    }
}

std::string TimeStrip::spoken() const {
    if (!series_) {
        return std::string(map_.desk().texts(TextId::StripNoRecords));
    }
    const std::string value = valueText();
    const std::string totals = stretch_ ? stretchText(*series_, *stretch_, words()) : "";
    return value.empty() || totals.empty() ? value + totals : value + ". " + totals;
}

void TimeStrip::addShapes(MapOverlay& overlay) const {
    if (shown_ && stretch_ && !passes_.empty() && map_.files().indexOf(file_)) {
        halo_.addTo(overlay, *stretch_, display_.view().transform());
    }
}

void TimeStrip::changed() const {
    if (onChanged) {
        onChanged();
    }
}

}  // namespace campora
