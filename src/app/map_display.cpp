// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/map_display.h"

#include <algorithm>
#include <optional>
#include <string_view>
#include <utility>

#include "app/plot_all.h"
#include "app/summary_rows.h"
#include "app/window_title.h"

namespace campora {

namespace {

/// Image of files without one of their own.
constexpr std::string_view kPlainIcon = "copy";

std::string remarksOf(const File& file, const Texts& texts) {
    std::string lines;
    for (const Remark& remark : file.remarks()) {
        lines.append(lines.empty() ? "" : "\n").append(texts.sentence(remark));
    }
    return lines;
}

void call(const std::function<void()>& listener) {
    if (listener) {
        listener();
    }
}

}  // namespace

MapDisplay::MapDisplay(OpenMap& map, MapCanvas& canvas, MainWindowControls& window)
    : map_(map),
      canvas_(canvas),
      window_(window),
      view_(canvas, map.style(), [this](MapContext& context) {
          call(beforeDrawing);
          plotAll(map_, context, leftOut ? leftOut() : nullptr);
          call(onDrawn);
      }) {
    view_.onControls = [this](const ViewControls& controls) { window_.setViewControls(controls); };
    view_.onPictureMoved = [this] {
        call(beforeDrawing);
        call(onDrawn);
    };
}

void MapDisplay::refresh() {
    window_.active(true, true);
    call(onFilesChanged);
    loadFileList(true);
    showCurrentFile();
    showFlowStops();
    window_.commandsChanged();
}

void MapDisplay::showWhole() {
    recalcGphBound();
    view_.ZoomUno();
    refresh();
}

void MapDisplay::showChange() {
    if (map_.files().empty()) {
        return;  // shown when the last one went
    }
    refresh();
    if (recalcGphBound()) {
        view_.ZoomUno();
    } else {
        redraw();
    }
}

void MapDisplay::styleChanged() {
    redraw();
    window_.commandsChanged();
}

void MapDisplay::showEmpty() {
    view_.forget();
    redraw();
    window_.setFileList({}, std::nullopt);
    window_.active(false, true);
    call(onFilesChanged);
    call(onEmpty);
    showFlowStops();
    showSummary();
    showLegend();
    showTitle(versionTitle());
}

bool MapDisplay::recalcGphBound() {
    const BoundingBox bound = boundOf(map_);
    if (bound.equals(view_.totalBound)) {
        return false;
    }
    view_.totalBound = bound;
    view_.fitView();
    return true;
}

void MapDisplay::canvasResized() {
    if (!view_.totalBound.isSet) {
        redraw();
        return;
    }
    view_.fitView();  // the margins depend on the size of the canvas
    view_.ZoomUno();
}

void MapDisplay::keepingPlace(const std::function<void()>& change) {
    const CanvasSize size = canvas_.size();
    const LonLat middle = view_.transform().screenToMap(static_cast<float>(size.width) / 2,
                                                        static_cast<float>(size.height) / 2);
    const float scale = view_.scaleX();
    const bool isWhole = scale >= view_.maxScale();
    change();
    if (!isWhole && !map_.files().empty()) {
        const float kept = std::min(scale, view_.maxScale());
        view_.setView(kept, kept, view_.scrollX(), view_.scrollY());
        view_.centreOn(middle);
    }
}

void MapDisplay::loadFileList(bool selectCurrent) {
    const LoadedFileList& files = map_.files();
    std::vector<FileListRow> rows;
    for (const File* file : files.all()) {
        const std::string icon = file->File_icon();
        rows.push_back({file->File_name(), icon.empty() ? std::string(kPlainIcon) : icon,
                        remarksOf(*file, map_.desk().texts)});
    }
    window_.setFileList(rows, selectCurrent ? files.indexOf(files.currentFile()) : std::nullopt);
}

void MapDisplay::showCurrentFile() {
    showSummary();
    setTitle(false);
    showLegend();
}

void MapDisplay::setTitle(bool untitled) {
    const File* const current = map_.files().currentFile();
    if (untitled) {
        showTitle(untitledTitle());
    } else if (current != nullptr) {
        // What was made here is on no disk yet.
        const std::string path = current->File_path();
        showTitle(path.empty() ? untitledTitle() : fileTitle(path));
    }
}

void MapDisplay::showTitle(std::string title) {
    title_ = std::move(title);
    window_.setTitle(title_);
}

std::vector<SummaryRow> MapDisplay::summary() const {
    File* const current = map_.files().currentFile();
    std::vector<SummaryRow> rows = summaryRows(current, map_.desk().texts);
    if (const ModeLayer* const mode = map_.modeLayer()) {
        const std::vector<SummaryRow> figures = mode->figures(current, map_.desk());
        rows.insert(rows.end(), figures.begin(), figures.end());
    }
    return rows;
}

void MapDisplay::showSummary() {
    window_.setSummary(summary());
}

void MapDisplay::showFlowStops() {
    const bool remark = map_.history().hasFlowStops == false;
    window_.setWorkStatus(remark ? map_.desk().texts(TextId::NoFlowStops) : "");
}

LegendContent MapDisplay::legend() const {
    File* const current = map_.files().currentFile();
    const bool hasOwn = current != nullptr && current->File_escalaColores() != nullptr;
    if (const ModeLayer* const mode = map_.modeLayer(); mode != nullptr && !hasOwn) {
        return mode->legend(map_.desk());
    }
    return map_.scales().legend(map_.ranges(), map_.history().lastKind, map_.desk());
}

void MapDisplay::showLegend() {
    scaleChanges_ = map_.scales().shown().onChanged([this] {
        if (!map_.scales().isBusy()) {
            map_.scales().forgetSpread();
            showLegend();
            showSummary();  // a prescription's follows its doses
            redraw();
        }
    });
    window_.setLegend(legend());
}

}  // namespace campora
