// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The colour scales of the open work, one for each unit of dose, and the legend that shows them.

#include <algorithm>
#include <cmath>
#include <span>
#include <utility>

#include "app/colours/legend.h"
#include "app/session.h"
#include "base/numbers.h"
#include "model/file_gph_group.h"
#include "work/color_modes.h"
#include "work/worked_area.h"

namespace campora {

namespace {

/// Part of the worked area from which a class leaves nothing to see of the others.
constexpr double kNearlyAll = 0.9;

/// A scale that begins below 0 would waste classes.
void raiseToZero(std::optional<ValueRange<float>>& range) {
    if (range) {
        range->least = std::max(range->least, 0.0F);
    }
}

ValueRanges rangesOf(std::span<File* const> files) {
    ValueRanges ranges;
    for (const File* file : files) {
        if (const auto* const group = dynamic_cast<const FileGphGroup*>(file)) {
            ranges = united(ranges, group->ranges);
        }
    }
    raiseToZero(ranges.flow);
    raiseToZero(ranges.litres);
    raiseToZero(ranges.dose);
    return ranges;
}

}  // namespace

ColorScale& Session::shownScale() {
    File* const current = files_.currentFile();
    ColorScale* const own = current != nullptr ? current->File_escalaColores() : nullptr;
    return own != nullptr ? *own : scaleOf(shownUnits().value_or(false));
}

std::optional<bool> Session::shownUnits() const {
    const File* const current = files_.currentFile();
    std::optional<bool> units = current != nullptr ? countsUnits(*current) : std::nullopt;
    for (const File* file : openFiles()) {
        units = units ? units : countsUnits(*file);
    }
    return units;
}

std::vector<File*> Session::workIn(bool units) const {
    std::vector<File*> files = openFiles();
    std::erase_if(files, [units](const File* file) { return countsUnits(*file) != units; });
    return files;
}

void Session::showLegend() {
    ColorScale& scale = shownScale();
    scaleChanges_ = scale.onChanged([this] {
        if (!loading_) {
            spread_ = {};
            showLegend();
            showSummary();  // a prescription's follows its doses
            redraw();
        }
    });
    platform_.window.setLegend(legendContent());
}

LegendContent Session::legendContent() {
    const ColorScale* const scale = legendScale();
    const bool isMixed = !workIn(true).empty() && !workIn(false).empty();
    // One name is to do for sprayed and sown ground.
    const WorkKind kind = isMixed ? WorkKind::OlderForm : lastKind_.value_or(WorkKind::Sprayer);
    LegendContent legend = campora::legendContent(style_, scale, kind, texts_, platform_.locale);
    if (scale != nullptr) {
        addSpreading(legend, *scale);
    }
    return legend;
}

const ColorScale* Session::legendScale() {
    const ColorScale& scale = shownScale();
    if (&scale != &defaultScale_ && &scale != &unitScale_) {
        return &scale;
    }
    if (files_.empty() || !style_.scaleShown()) {
        return nullptr;
    }
    // Track files have no alarms and keep the colours of their doses in that map.
    const bool hasTracks = ranges_.flow && &scale == &defaultScale_;
    return style_.mode != ColorMode::Alarm || hasTracks ? &scale : nullptr;
}

const Session::Spread& Session::spreadOf(const ColorScale& scale) {
    if (spread_.scale != &scale) {
        std::vector<ValueArea> areas = workedArea(style_, workIn(&scale == &unitScale_));
        spread_ = {&scale, largestShare(scale, areas), false};
        // Only asked where one class has nearly everything.
        spread_.canSpread =
            spread_.largestShare > kNearlyAll && middleOfArea(std::move(areas)).has_value();
    }
    return spread_;
}

void Session::addSpreading(LegendContent& legend, const ColorScale& scale) {
    if (style_.mode != ColorMode::Dose || (&scale != &defaultScale_ && &scale != &unitScale_)) {
        return;
    }
    legend.canSpread = true;
    legend.spread = style_.spreadClasses;
    if (style_.spreadClasses || scale.count() < 2) {
        return;
    }
    const Spread& spread = spreadOf(scale);
    if (spread.largestShare > kNearlyAll) {
        const double percent = std::floor(spread.largestShare * 100);
        legend.remark = texts_.format(TextId::OneClassCovers, {numberText(percent)});
        legend.offer = spread.canSpread ? texts_(TextId::SpreadClasses) : "";
    }
}

void Session::collectRanges() {
    ranges_ = rangesOf(openFiles());
    spread_ = {};
}

void Session::refreshColorScale() {
    loading_ = true;
    if (!setUpScales()) {
        style_.mode = ColorMode::Dose;
        setUpScales();
    }
    loading_ = false;
    showLegend();
}

bool Session::setUpScales() {
    spread_ = {};
    for (const bool units : {false, true}) {
        // A day has one colour, whatever was done on it.
        const std::vector<File*> files =
            style_.mode == ColorMode::Date ? openFiles() : workIn(units);
        if (!setUpColorScale(scaleOf(units), style_, rangesOf(files), files)) {
            return false;
        }
    }
    return true;
}

}  // namespace campora
