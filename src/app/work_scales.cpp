// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/work_scales.h"

#include <algorithm>
#include <cmath>
#include <utility>

#include "app/colours/legend.h"
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

}  // namespace

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

WorkScales::WorkScales(const LoadedFileList& files, MapStyle& style)
    : files_(files), style_(style) {
    style_.scale = &litres_;
    style_.unitScale = &units_;
}

ColorScale& WorkScales::shown() {
    File* const current = files_.currentFile();
    ColorScale* const own = current != nullptr ? current->File_escalaColores() : nullptr;
    return own != nullptr ? *own : of(shownUnits().value_or(false));
}

std::optional<bool> WorkScales::shownUnits() const {
    const File* const current = files_.currentFile();
    std::optional<bool> units = current != nullptr ? countsUnits(*current) : std::nullopt;
    for (const File* file : files_.all()) {
        units = units ? units : countsUnits(*file);
    }
    return units;
}

std::vector<File*> WorkScales::workIn(bool units) const {
    std::vector<File*> files = files_.all();
    std::erase_if(files, [units](const File* file) { return countsUnits(*file) != units; });
    return files;
}

LegendContent WorkScales::legend(const ValueRanges& ranges, std::optional<WorkKind> lastKind,
                                 const Desk& desk) {
    const ColorScale* const scale = used(ranges);
    const bool isMixed = !workIn(true).empty() && !workIn(false).empty();
    // One name is to do for sprayed and sown ground.
    const WorkKind kind = isMixed ? WorkKind::OlderForm : lastKind.value_or(WorkKind::Sprayer);
    LegendContent legend = legendContent(style_, scale, kind, desk.texts, desk.locale);
    if (scale != nullptr) {
        addSpreading(legend, *scale, desk.texts);
    }
    return legend;
}

const ColorScale* WorkScales::used(const ValueRanges& ranges) {
    const ColorScale& scale = shown();
    if (!isOfWork(scale)) {
        return &scale;
    }
    if (files_.empty() || !style_.scaleShown()) {
        return nullptr;
    }
    // Track files have no alarms and keep the colours of their doses in that map.
    const bool hasTracks = ranges.flow && &scale == &litres_;
    return style_.mode != ColorMode::Alarm || hasTracks ? &scale : nullptr;
}

const WorkScales::Spread& WorkScales::spreadOf(const ColorScale& scale) {
    if (spread_.scale != &scale) {
        std::vector<ValueArea> areas = workedArea(style_, workIn(&scale == &units_));
        spread_ = {&scale, largestShare(scale, areas), false};
        // Only asked where one class has nearly everything.
        spread_.canSpread =
            spread_.largestShare > kNearlyAll && middleOfArea(std::move(areas)).has_value();
    }
    return spread_;
}

void WorkScales::addSpreading(LegendContent& legend, const ColorScale& scale, const Texts& texts) {
    if (style_.mode != ColorMode::Dose || !isOfWork(scale)) {
        return;
    }
    legend.canSpread = true;
    legend.spread = style_.spreadClasses;
    legend.aroundTarget = style_.targetDose.has_value();
    if (legend.aroundTarget) {
        return;
    }
    if (style_.spreadClasses || scale.count() < 2) {
        return;
    }
    const Spread& spread = spreadOf(scale);
    if (spread.largestShare > kNearlyAll) {
        const double percent = std::floor(spread.largestShare * 100);
        legend.remark = texts.format(TextId::OneClassCovers, {numberText(percent)});
        legend.offer = spread.canSpread ? texts(TextId::SpreadClasses) : "";
    }
}

void WorkScales::refresh() {
    busy_ = true;
    if (!setUp()) {
        style_.mode = ColorMode::Dose;
        static_cast<void>(setUp());
    }
    busy_ = false;
}

bool WorkScales::setUp() {
    forgetSpread();
    for (const bool units : {false, true}) {
        // A day has one colour, whatever was done on it.
        const std::vector<File*> files =
            style_.mode == ColorMode::Date ? files_.all() : workIn(units);
        if (!setUpColorScale(of(units), style_, rangesOf(files), files)) {
            return false;
        }
    }
    return true;
}

void WorkScales::useRamp(Color start, std::optional<Color> middle, Color end) {
    for (ColorScale* const scale : {&litres_, &units_}) {
        scale->degrade(start, middle, end, false);
    }
}

void WorkScales::setContent(Content content) {
    busy_ = true;
    litres_.setContent(std::move(content.litres));
    units_.setContent(std::move(content.units));
    busy_ = false;
    forgetSpread();
}

}  // namespace campora
