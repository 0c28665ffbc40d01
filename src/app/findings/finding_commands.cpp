// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/finding_commands.h"

#include <algorithm>
#include <cstdlib>
#include <utility>

#include "app/findings/find_in_files.h"
#include "model/geodesy.h"
#include "model/work_layer.h"

namespace campora {

namespace {

/// Metres of ground around a stretch that fills the map, so that one sees where it is.
constexpr double kAround = 20;
/// Canvas units to the edge of the canvas, so that the ends of a halo can be seen.
constexpr std::int32_t kRim = 10;

BoundingBox boxAround(const std::vector<LonLat>& stretch) {
    BoundingBox box;
    for (const LonLat& point : stretch) {
        const double east = kAround / metresPerDegreeEast(point.y);
        const double north = kAround / METERS_PER_DEGREE;
        box.addPoint(point.x - east, point.y - north);
        box.addPoint(point.x + east, point.y + north);
    }
    return box;
}

/// Number of a record of a file; none when the layer is not one of its work.
std::optional<std::size_t> recordOf(const File& file, const Gph& layer, std::int32_t n) {
    std::size_t before = 0;
    for (const WorkLayer* work : workLayers(file)) {
        if (work == &layer) {
            return before + static_cast<std::size_t>(std::max(n, 0));
        }
        before += static_cast<std::size_t>(work->recordCount());
    }
    return std::nullopt;
}

}  // namespace

FindingCommands::FindingCommands(OpenMap& map, MapDisplay& display, MapTools& tools)
    : map_(map), display_(display), tools_(tools) {
    tools_.addOverlay([this](MapOverlay& overlay) { addShapes(overlay); });
}

FindingCommands::WorkState FindingCommands::workState() const {
    WorkState state;
    state.errorLimit = map_.style().errorLimit;
    for (const File* file : map_.files().all()) {
        state.files.push_back(file);
        for (const WorkLayer* layer : workLayers(*file)) {
            if (layer->recordCount() > 0) {
                state.records += static_cast<std::size_t>(layer->recordCount());
                state.swaths += static_cast<double>(layer->recordN(0).swath);
            }
        }
    }
    return state;
}

bool FindingCommands::hasWork() const {
    const std::vector<File*> files = map_.files().all();
    return std::any_of(files.begin(), files.end(),
                       [](const File* file) { return !workLayers(*file).empty(); });
}

std::shared_ptr<FindingTable> FindingCommands::find(Kind kind) const {
    auto table = std::make_shared<FindingTable>(kind, map_.desk());
    const float limit = map_.style().errorLimit;
    for (const File* file : map_.files().all()) {
        if (kind == Kind::Passes) {
            table->addFile(file->File_name(), passesOf(*file, limit));
        } else {
            table->addFile(file->File_name(), problemsOf(*file, limit),
                           workKindOf(*file).value_or(WorkKind::Seeder));
        }
    }
    return table;
}

std::shared_ptr<const FindingTable> FindingCommands::sharedTable(Kind kind) {
    if (!isFound(kind)) {
        found(kind) = {find(kind), workState(), std::nullopt};
        hideStretch();
    }
    return found(kind).table;
}

bool FindingCommands::isFound(Kind kind) const {
    return found(kind).table != nullptr && found(kind).work == workState();
}

void FindingCommands::filesChanged() {
    found_ = {};
    hideStretch();
}

void FindingCommands::sortBy(Kind kind, std::size_t column, bool descending) {
    static_cast<void>(table(kind));
    found(kind).table->sortBy(column, descending);
}

std::optional<std::size_t> FindingCommands::selected(Kind kind) const {
    const Found& known = found(kind);
    return known.selected && isFound(kind) ? std::optional(known.table->rowAt(*known.selected))
                                           : std::nullopt;
}

void FindingCommands::select(Kind kind, std::optional<std::size_t> row) {
    const FindingTable& rows = table(kind);
    if (!row || *row >= rows.rowCount()) {
        found(kind).selected.reset();
        hideStretch();
        return;
    }
    found(kind).selected = rows.place(*row);
    showStretch(rows.stretch(*row));
}

void FindingCommands::showStretch(const FoundStretch& stretch) {
    const File& file = map_.files().file(static_cast<int>(stretch.file));
    stretch_ = positionsOf(workLayers(file), stretch.firstRecord, stretch.endRecord);
    tools_.showOverlay();
    if (!std::exchange(shown_, WorkPlace{&file, stretch.firstRecord})) {
        display_.window().commandsChanged();
    }
    if (onShown) {
        onShown(*shown_, stretch.endRecord);
    }
}

void FindingCommands::hideStretch() {
    shown_.reset();
    if (!stretch_.empty()) {
        stretch_.clear();
        tools_.showOverlay();
    }
}

void FindingCommands::zoomTo(Kind kind, std::size_t row) {
    select(kind, row);
    if (!stretch_.empty()) {
        display_.view().zoomToBox(boxAround(stretch_));
    }
}

void FindingCommands::stepProblem(bool forward) {
    const FindingTable& rows = table(Kind::Problems);
    if (const std::optional<std::size_t> row = rows.neighbour(selected(Kind::Problems), forward)) {
        select(Kind::Problems, row);
        bringIntoView();
    }
    if (onSelected) {
        onSelected(Kind::Problems);
    }
}

/// The whole stretch comes into view: at the scale that is shown where it fits, else at a coarser
/// one.
void FindingCommands::bringIntoView() {
    BoundingBox ground;
    for (const LonLat& point : stretch_) {
        ground.addPoint(point.x, point.y);
    }
    if (!ground.isSet) {
        return;
    }
    const ViewTransform view = display_.view().transform();
    const CanvasSize canvas = display_.canvas().size();
    const CanvasPoint lower = view.mapToScreen(ground.minX, ground.minY);
    const CanvasPoint upper = view.mapToScreen(ground.maxX, ground.maxY);
    const bool isInView = lower.x >= kRim && lower.y <= canvas.height - kRim &&
                          upper.x <= canvas.width - kRim && upper.y >= kRim;
    const bool fits = upper.x - lower.x <= canvas.width - 2 * kRim &&
                      lower.y - upper.y <= canvas.height - 2 * kRim;
    if (!fits) {
        display_.view().zoomToBox(boxAround(stretch_));
    } else if (!isInView) {
        display_.view().centreOn(
            {(ground.minX + ground.maxX) / 2, (ground.minY + ground.maxY) / 2});
    }
}

std::optional<TextId> FindingCommands::whyNoProblem() const {
    if (!hasWork()) {
        return TextId::NoWorkOpen;
    }
    const bool isNone = isFound(Kind::Problems) && found(Kind::Problems).table->rowCount() == 0;
    return isNone ? std::optional(TextId::NoProblemsFound) : std::nullopt;
}

std::optional<TextId> FindingCommands::whyEmpty(Kind kind) {
    if (!hasWork()) {
        return TextId::NoWorkOpen;
    }
    if (table(kind).rowCount() > 0) {
        return std::nullopt;
    }
    return kind == Kind::Passes ? TextId::NoPassesFound : TextId::NoProblemsFound;
}

void FindingCommands::selectAt(const Gph& layer, std::int32_t n) {
    const File* const file = map_.files().ownerOf(&layer);
    const std::optional<int> index = map_.files().indexOf(file);
    const std::optional<std::size_t> record =
        file == nullptr ? std::nullopt : recordOf(*file, layer, n);
    if (!index || !record) {
        return;
    }
    for (const Kind kind : {Kind::Passes, Kind::Problems}) {
        if (!isFound(kind)) {
            continue;
        }
        select(kind, table(kind).rowOf(static_cast<std::size_t>(*index), *record));
        if (onSelected) {
            onSelected(kind);
        }
    }
}

void FindingCommands::addShapes(MapOverlay& overlay) const {
    constexpr std::int32_t kPixel = 15;
    if (stretch_.empty()) {
        return;
    }
    const ViewTransform view = display_.view().transform();
    HaloLine halo;
    for (const LonLat& point : stretch_) {
        const CanvasPoint at = view.mapToScreen(point.x, point.y);
        if (halo.points.empty() || std::abs(at.x - halo.points.back().x) > kPixel ||
            std::abs(at.y - halo.points.back().y) > kPixel) {
            halo.points.push_back(at);
        }
    }
    const CanvasPoint end = view.mapToScreen(stretch_.back().x, stretch_.back().y);
    if (end != halo.points.back()) {
        halo.points.push_back(end);
    }
    overlay.emplace_back(std::move(halo));
}

}  // namespace campora
