// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lots/lot_editor.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "app/lots/lot_saving.h"
#include "base/lon_lat.h"
#include "base/number_forms.h"
#include "base/numbers.h"
#include "base/plain_text.h"
#include "lots/file_lots.h"
#include "lots/ring_crossing.h"
#include "model/measures.h"
#include "model/ring_geometry.h"

namespace campora {

namespace {

/// Canvas units; 15 are a pixel.
constexpr double kVertexReach = 120;
constexpr double kHandleReach = 105;
/// A shorter side has no handle: it would be in the way of its vertices.
constexpr double kShortestWithHandle = 600;
/// Up and down; beyond that a click was a drag of the map.
constexpr std::int32_t kClickReach = 45;

double distance(CanvasPoint a, CanvasPoint b) {
    return std::hypot(static_cast<double>(a.x) - b.x, static_cast<double>(a.y) - b.y);
}

}  // namespace

LotEditor::LotEditor(OpenMap& map, MapDisplay& display, MapTools& tools, SettingsStore& settings,
                     Shell& shell)
    : map_(map), display_(display), tools_(tools), settings_(settings), shell_(shell) {
    display_.leftOut = [this] { return edited(); };
}

void LotEditor::open() {
    if (isOpen_) {
        return;
    }
    const File* const current = map_.files().currentFile();
    const Desk desk = lotDesk(map_);
    const bool edits = current != nullptr && isOneLot(*current) &&
                       desk.ask(desk.texts.format(TextId::AskEditLote, {current->File_name()}),
                                MessageIcon::Information);
    start(edits ? current : nullptr);
}

void LotEditor::edit(const File& file) {
    if (isOneLot(file) && mayClose()) {
        start(&file);
    }
}

void LotEditor::start(const File* file) {
    draft_ = {};
    if (file != nullptr) {
        const std::string path = file->File_diskPath();
        draft_.start(lotsOf(*file).front(), {path, path.empty() ? file : nullptr});
    }
    isOpen_ = true;
    tools_.setTool(MapTools::Tool::None);
    tools_.setVertexOwner(this);
    tools_.onClick = [this](CanvasPoint at) { click(at); };
    changed();
    display_.window().commandsChanged();
}

bool LotEditor::close() {
    if (!isOpen_) {
        return true;
    }
    if (!mayClose()) {
        return false;
    }
    isOpen_ = false;
    tools_.setVertexOwner(nullptr);
    tools_.onClick = nullptr;
    draft_ = {};
    changed();
    display_.window().commandsChanged();
    return true;
}

bool LotEditor::mayClose() const {
    const Desk desk = lotDesk(map_);
    return !isOpen_ || !draft_.isChanged() ||
           desk.ask(namingFile(desk.texts(TextId::AskLoseLote), path()));
}

void LotEditor::select(std::optional<std::size_t> index) {
    if (index != draft_.selected()) {
        draft_.select(index);
        changed();
    }
}

void LotEditor::add(LonLat position) {
    draft_.append(position);
    changed();
}

void LotEditor::moveSelected(LonLat position) {
    if (const auto index = draft_.selected()) {
        draft_.moveTo(*index, position);
        changed();
    }
}

void LotEditor::insertAfterSelected() {
    if (const auto index = draft_.selected()) {
        draft_.insertAfter(*index);
        changed();
    }
}

void LotEditor::removeSelected() {
    if (const auto index = draft_.selected()) {
        draft_.remove(*index);
        changed();
    }
}

void LotEditor::clear() {
    draft_.clear();
    changed();
}

void LotEditor::undo() {
    draft_.undo();
    changed();
}

void LotEditor::redo() {
    draft_.redo();
    changed();
}

void LotEditor::setDescription(std::string text) {
    draft_.setDescription(std::move(text));
    if (onChanged) {
        onChanged();
    }
}

void LotEditor::setTransparent(bool transparent) {
    transparent_ = transparent;
    changed();
}

std::string LotEditor::figures() const {
    const char symbol = map_.desk().decimalSymbol();
    std::string hectares =
        fixedNumberText(ringAreaM2(draft_.vertices()) / kSquareMetresPerHectare, 2);
    std::replace(hectares.begin(), hectares.end(), '.', symbol);
    const double metres = draft_.vertices().size() < 2 ? 0 : ringPerimeter(draft_.vertices());
    return map_.desk().texts.format(TextId::LoteFigures,
                                    {hectares, numberText(roundHalfEven(metres))});
}

LonLat LotEditor::middleOfMap() const {
    const auto [width, height] = display_.canvas().size();
    return display_.view().transform().isFitted() ? positionAt({width / 2, height / 2}) : LonLat{};
}

LonLat LotEditor::positionAt(CanvasPoint at) const {
    const LonLat position =
        display_.view().transform().screenToMap(static_cast<float>(at.x), static_cast<float>(at.y));
    return {std::clamp(position.x, -kDateLine, kDateLine), std::clamp(position.y, -kPole, kPole)};
}

void LotEditor::click(CanvasPoint at) {
    if (std::abs(at.y - pressed_.y) <= kClickReach) {
        add(positionAt(at));
    }
}

std::optional<std::size_t> LotEditor::vertexAt(CanvasPoint at) const {
    const ViewTransform view = display_.view().transform();
    std::optional<std::size_t> nearest;
    double least = kVertexReach;
    for (std::size_t i = 0; i < draft_.vertices().size(); ++i) {
        const auto& [x, y] = draft_.vertices()[i];
        const double away = distance(view.mapToScreen(x, y), at);
        if (away <= least) {
            least = away;
            nearest = i;
        }
    }
    return nearest;
}

std::vector<std::optional<CanvasPoint>> LotEditor::handles() const {
    const ViewTransform view = display_.view().transform();
    const std::vector<LonLat>& vertices = draft_.vertices();
    std::vector<std::optional<CanvasPoint>> middles;
    for (std::size_t i = 0; vertices.size() > 1 && i < vertices.size(); ++i) {
        const LonLat& next = vertices[(i + 1) % vertices.size()];
        const CanvasPoint from = view.mapToScreen(vertices[i].x, vertices[i].y);
        const bool isLong = distance(from, view.mapToScreen(next.x, next.y)) >= kShortestWithHandle;
        const LonLat middle = draft_.halfwayFrom(i);
        middles.push_back(isLong ? std::optional(view.mapToScreen(middle.x, middle.y))
                                 : std::nullopt);
    }
    if (middles.size() == 2) {
        middles.pop_back();  // there and back are one side
    }
    return middles;
}

std::optional<std::size_t> LotEditor::handleAt(CanvasPoint at) const {
    const std::vector<std::optional<CanvasPoint>> middles = handles();
    for (std::size_t i = 0; i < middles.size(); ++i) {
        if (middles[i] && distance(*middles[i], at) <= kHandleReach) {
            return i;
        }
    }
    return std::nullopt;
}

bool LotEditor::pickVertex(CanvasPoint at) {
    pressed_ = at;
    if (!display_.view().transform().isFitted()) {
        return false;
    }
    if (const auto index = vertexAt(at)) {
        draft_.beginMove(*index);
    } else if (const auto side = handleAt(at)) {
        draft_.beginInsert(*side);
    } else {
        return false;
    }
    picked_ = draft_.vertices()[*draft_.selected()];
    const CanvasPoint place = display_.view().transform().mapToScreen(picked_->x, picked_->y);
    grip_ = {place.x - at.x, place.y - at.y};
    changed();
    return true;
}

void LotEditor::moveVertex(CanvasPoint to) {
    // Back where it was pressed the vertex is where it was, to the last digit.
    draft_.move(to == pressed_ && picked_ ? *picked_
                                          : positionAt({to.x + grip_.x, to.y + grip_.y}));
    changed();
}

void LotEditor::dropVertex(bool keep) {
    draft_.endMove(keep);
    changed();
}

const File* LotEditor::edited() const {
    if (!isOpen_) {
        return nullptr;
    }
    const LoadedFileList& files = map_.files();
    const auto& [path, entry] = draft_.origin();
    if (!path.empty()) {
        return files.findFile(path);
    }
    // Once it is gone another file may stand where it stood in memory.
    const bool isUntitled = files.indexOf(entry) && entry->File_diskPath().empty();
    return isUntitled && isOneLot(*entry) ? entry : nullptr;
}

void LotEditor::changed() {
    crosses_ = ringCrossesItself(draft_.vertices());
    const File* const hidden = edited();
    if (std::exchange(hidden_, hidden) != hidden) {
        display_.redraw();
    }
    viewChanged();
    if (onChanged) {
        onChanged();
    }
}

void LotEditor::viewChanged() {
    const ViewTransform view = display_.view().transform();
    showMark();
    if (!isOpen_ || !view.isFitted() || draft_.vertices().empty()) {
        tools_.showLot(std::nullopt);
        return;
    }
    MapOverlay::Lot lot;
    for (const auto& [x, y] : draft_.vertices()) {
        lot.vertices.push_back(view.mapToScreen(x, y));
    }
    for (const std::optional<CanvasPoint>& handle : handles()) {
        if (handle) {
            lot.handles.push_back(*handle);
        }
    }
    lot.color = map_.style().colors.lote;
    lot.filled = !transparent_;
    tools_.showLot(std::move(lot));
}

void LotEditor::showMark() {
    if (tools_.isPositionMarked()) {
        marked_ = false;  // the user looks for a place; the mark is for that
        return;
    }
    const ViewTransform view = display_.view().transform();
    if (isOpen_ && view.isFitted() && draft_.selected()) {
        const auto& [x, y] = draft_.vertices()[*draft_.selected()];
        const CanvasPoint place = view.mapToScreen(x, y);
        tools_.showVertex(static_cast<float>(place.x), static_cast<float>(place.y));
        marked_ = true;
    } else if (std::exchange(marked_, false)) {
        tools_.hideVertex();
    }
}

}  // namespace campora
