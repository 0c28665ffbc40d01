// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/session.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "app/map/draw_layers.h"
#include "app/map/place_marks.h"
#include "app/settings.h"
#include "app/summary_names.h"
#include "app/window_title.h"
#include "base/text.h"
#include "model/file_gph_group.h"
#include "model/shown_summary.h"
#include "work/color_modes.h"

namespace campora {

namespace {

/// Image of files without one of their own.
constexpr std::string_view kPlainIcon = "copy";
/// Value, a blank and the unit.
std::string withUnit(const std::string& value, std::string_view unit, const Texts& texts) {
    return value + " " + shownUnit(unit, texts);
}

SummaryRow summaryRow(const ShownEntry& row, const Texts& texts) {
    const std::string name = shownSummaryName(row.property, texts);
    const std::string value = withUnit(row.value, row.unit, texts);
    switch (row.origin) {
    case ShownEntry::Origin::Edited:
        return {name, texts.format(TextId::EditedValue, {std::string(trim(value))}), true,
                texts.format(TextId::MeasuredValue,
                             {withUnit(row.measuredValue, row.measuredUnit, texts)})};
    case ShownEntry::Origin::Added:
        return {name, value, true, std::string(texts(TextId::AddedByHand))};
    case ShownEntry::Origin::Measured:
        break;
    }
    return {name, value};
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
    const bool hadWork = countsUnits(*file).has_value();
    files_.removeFile(file);
    if (files_.empty()) {
        reset();
        return;
    }
    collectRanges();
    if (wasCurrent) {
        files_.setCurrentFile(&files_.file(std::min(*index, files_.loadedCount() - 1)));
    }
    loadFileList(true);
    showCurrentFile();
    replay_.prepareReplay();
    if (hadWork) {
        refreshColorScale();  // the classes are those of the work that is left
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

std::string Session::remarksOf(const File& file) const {
    std::string lines;
    for (const Remark& remark : file.remarks()) {
        lines.append(lines.empty() ? "" : "\n").append(texts_.sentence(remark));
    }
    return lines;
}

void Session::loadFileList(bool selectCurrent) {
    std::vector<FileListRow> rows;
    for (const File* file : openFiles()) {
        const std::string icon = file->File_icon();
        rows.push_back(
            {file->File_name(), icon.empty() ? std::string(kPlainIcon) : icon, remarksOf(*file)});
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
        for (const ShownEntry& row : shownEntries(file->File_resumen())) {
            rows.push_back(summaryRow(row, texts_));
            rows.back().isDoubtful = row.origin == ShownEntry::Origin::Measured &&
                                     file->File_resumen().isDoubtful(row.property);
            if (rows.back().isDoubtful) {
                rows.back().value.append(" ").append(kDoubtMark);
                rows.back().note = texts_(TextId::FigureInDoubt);
            }
        }
        for (const Remark& remark : file->remarks()) {
            rows.push_back({std::string(texts_(TextId::RemarkName)), texts_.sentence(remark)});
            rows.back().isRemark = true;
        }
    }
    return rows;
}

void Session::showSummary() {
    platform_.window.setSummary(summaryRows());
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

}  // namespace campora
