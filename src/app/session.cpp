// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/session.h"

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <span>
#include <utility>

#include "app/draw_layers.h"
#include "app/legend.h"
#include "app/place_marks.h"
#include "app/settings.h"
#include "app/summary_names.h"
#include "app/window_title.h"
#include "base/numbers.h"
#include "model/file_gph_group.h"
#include "work/color_modes.h"
#include "work/worked_area.h"

namespace campora {

namespace {

/// Image of files without one of their own.
constexpr std::string_view kPlainIcon = "copy";
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

Session::Session(const Platform& platform, Language language, std::string programFolder)
    : platform_(platform),
      texts_(language),
      programFolder_(std::move(programFolder)),
      files_(texts_),
      view_(platform.canvas, platform.window, style_,
            [this](MapContext& context) {
                replay_.stopReplay();
                drawLayers(context, layersFromBelow(lotEditor_.edited()));
                drawPlaceMarks(context, places(), texts_);
                tools_.viewChanged();
            }),
      tools_(platform.canvas, platform.window, view_, style_, files_, texts_, platform.locale,
             [this](File* file) {
                 selectFile(files_.indexOf(file));
                 loadFileList(true);
             }),
      replay_(
          platform.canvas, platform.window, platform.clock, view_, style_, texts_, platform.locale,
          [this] { return getGphList(); },
          [this] {
              tools_.hideInfo();
              tools_.cancelDrag();
          }) {
    style_.scale = &defaultScale_;
    view_.onPictureMoved = [this] {
        replay_.stopReplay();
        tools_.viewChanged();
    };
    style_.unitScale = &unitScale_;
    tools_.onDose = [this](LonLat position) { prescription_.changeDose(position); };
}

void Session::start() {
    const SettingsStore& settings = platform_.settings;
    readStyleSettings(settings, style_);
    printDescription = readText(settings, SettingId::PrintDescription);
    coordType_ = static_cast<CoordType>(readNumber(settings, SettingId::CoordType));
    tools_.setCoordType(coordType_);
    registrations_ = loadRegistrations(programFolder_, platform_.dialogs, texts_);
    reset();
}

void Session::removeFile(const File* file) {
    const std::optional<int> index = files_.indexOf(file);
    if (!index) {
        return;
    }
    const bool wasCurrent = files_.currentFile() == file;
    files_.removeFile(file);
    if (files_.empty()) {
        reset();
        return;
    }
    if (wasCurrent) {
        files_.setCurrentFile(&files_.file(std::min(*index, files_.loadedCount() - 1)));
    }
    loadFileList(true);
    showCurrentFile();
    replay_.prepareReplay();
    const ValueRanges before = ranges_;
    collectRanges();
    if (ranges_ != before || style_.mode == ColorMode::Date || style_.mode == ColorMode::Error) {
        refreshColorScale();  // its classes are the days or doses of the files that are left
    }
    if (recalcGphBound()) {
        view_.ZoomUno();
    } else {
        redraw();
    }
}

void Session::setLanguage(Language language) {
    texts_.setLanguage(language);
    writeLanguageSetting(platform_.settings, language);
    platform_.window.retranslate();
    loadFileList(true);
    showSummary();
    showLegend();
    showFlowStops();
    platform_.window.setPosition({});
    platform_.window.setToolText({});
    tools_.hideInfo();
    platform_.window.commandsChanged();
}

void Session::setCoordType(CoordType type) {
    coordType_ = type;
    writeNumber(platform_.settings, SettingId::CoordType, static_cast<std::int32_t>(type));
    tools_.setCoordType(type);
    platform_.window.commandsChanged();
}

void Session::reset() {
    files_.clearFiles();
    ranges_ = {};
    hasFlowStops_.reset();
    view_.forget();
    redraw();
    MainWindowControls& window = platform_.window;
    window.setFileList({}, std::nullopt);
    window.active(false, true);
    replay_.prepareReplay();
    tools_.reset();
    showFlowStops();
    showSummary();
    showLegend();
    showTitle(versionTitle());
}

void Session::setTitle(bool untitled) {
    const File* const current = files_.currentFile();
    if (untitled) {
        showTitle(untitledTitle());
    } else if (current != nullptr) {
        // What was made here is on no disk yet.
        const std::string path = current->File_path();
        showTitle(path.empty() ? untitledTitle() : fileTitle(path));
    }
}

void Session::showTitle(std::string title) {
    title_ = std::move(title);
    platform_.window.setTitle(title_);
}

std::vector<File*> Session::openFiles() const {
    std::vector<File*> files;
    files.reserve(static_cast<std::size_t>(files_.loadedCount()));
    for (int i = 0; i < files_.loadedCount(); ++i) {
        files.push_back(&files_.file(i));
    }
    return files;
}

std::vector<Gph*> Session::getGphList() const {
    std::vector<Gph*> all;
    for (const File* file : openFiles()) {
        const std::vector<Gph*> layers = file->File_gphList();
        all.insert(all.end(), layers.begin(), layers.end());
    }
    return all;
}

void Session::loadFileList(bool selectCurrent) {
    std::vector<FileListRow> rows;
    for (const File* file : openFiles()) {
        const std::string icon = file->File_icon();
        rows.push_back({file->File_name(), icon.empty() ? std::string(kPlainIcon) : icon});
    }
    platform_.window.setFileList(rows, selectCurrent ? files_.indexOf(files_.currentFile())
                                                     : std::nullopt);
}

void Session::selectFile(std::optional<int> row) {
    if (row && (*row < 0 || *row >= files_.loadedCount())) {
        return;
    }
    files_.setCurrentFile(row ? &files_.file(*row) : nullptr);
    showCurrentFile();
}

void Session::zoomToCurrentFile() {
    if (const File* current = files_.currentFile()) {
        view_.zoomToBox(current->File_bound());
    }
}

void Session::moveCurrentFile(Move where) {
    const File* const current = files_.currentFile();
    if (current == nullptr) {
        return;
    }
    switch (where) {
    case Move::Up:
        files_.moveUp(current);
        break;
    case Move::Down:
        files_.moveDown(current);
        break;
    case Move::Top:
        files_.moveToTop(current);
        break;
    case Move::Bottom:
        files_.moveToBottom(current);
        break;
    }
    loadFileList(true);
    redraw();
}

void Session::removeCurrentFile() {
    const File* const current = files_.currentFile();
    if (current == nullptr || !lots_.mayLose(*current) ||
        (current == prescription_.prescription() && !prescription_.mayClose())) {
        return;
    }
    removeFile(current);
}

void Session::showCurrentFile() {
    showSummary();
    setTitle(false);
    showLegend();
}

std::vector<SummaryRow> Session::summaryRows() const {
    std::vector<SummaryRow> rows;
    if (File* const file = files_.currentFile()) {
        for (const auto& [property, value, unit] : file->File_resumen().entries()) {
            rows.push_back(
                {shownSummaryName(property, texts_), value + " " + shownUnit(unit, texts_)});
        }
    }
    return rows;
}

void Session::showSummary() {
    platform_.window.setSummary(summaryRows());
}

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
    LegendContent legend = campora::legendContent(
        style_, scale, lastKind_.value_or(WorkKind::Sprayer), texts_, platform_.locale);
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

void Session::showFlowStops() {
    const bool remark = hasFlowStops_ == false;
    platform_.window.setWorkStatus(remark ? texts_(TextId::NoFlowStops) : "");
}

void Session::recalcErrorAreas() {
    for (File* file : openFiles()) {
        if (auto* const group = dynamic_cast<FileGphGroup*>(file)) {
            group->calcErrorArea(style_, platform_.locale);
        }
    }
    showSummary();
}

void Session::copyData() {
    std::string text;
    for (const SummaryRow& row : summaryRows()) {
        text.append(row.property).append(" ").append(row.value).append("\r\n");
    }
    if (!text.empty()) {
        platform_.clipboard.setText(text);
    }
}

void Session::canvasResized() {
    if (!view_.totalBound.isSet) {
        redraw();
        return;
    }
    view_.fitView();  // the margins depend on the size of the canvas
    view_.ZoomUno();
}

std::vector<const Gph*> Session::layersFromBelow(const File* without) const {
    std::vector<const Gph*> all;
    for (int i = files_.loadedCount() - 1; i >= 0; --i) {
        if (&files_.file(i) == without) {
            continue;
        }
        const std::vector<Gph*> layers = files_.file(i).File_gphList();
        all.insert(all.end(), layers.begin(), layers.end());
    }
    return all;
}

std::vector<MarkedPlace> Session::places() const {
    std::vector<MarkedPlace> places;
    for (const File* file : openFiles()) {
        places.push_back({file->File_bound(), file->File_name()});
    }
    return places;
}

void Session::plotAll(MapContext& context) const {
    drawLayers(context, layersFromBelow(nullptr));
    drawPlaceMarks(context, places(), texts_);
}

bool Session::plotAll(MapContext& context, Progress& progress) const {
    const std::vector<const Gph*> layers = layersFromBelow(nullptr);
    context.lotsAlone = areLotsAlone(layers);
    int reported = -1;
    for (std::size_t i = 0; i < layers.size(); ++i) {
        const int percent = static_cast<int>(100 * i / layers.size());
        if (percent != std::exchange(reported, percent) && !progress.report(percent)) {
            return false;
        }
        layers[i]->Gph_plot(context);
    }
    for (const Gph* layer : layers) {
        layer->plotOnTop(context);
    }
    drawPlaceMarks(context, places(), texts_);
    return true;
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
