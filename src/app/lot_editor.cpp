// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/lot_editor.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdlib>
#include <utility>

#include "app/lot_commands.h"
#include "app/save_target.h"
#include "app/session.h"
#include "base/number_forms.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "export/kml_export.h"
#include "lots/gph_lote.h"
#include "lots/ring_crossing.h"
#include "lots/save_lots.h"
#include "model/ring_geometry.h"
#include "platform/quiet_dialogs.h"

namespace campora {

namespace {

constexpr std::size_t kFewestVertices = 3;
constexpr int kLotNumbers = 100;
constexpr std::string_view kEnding = ".lot";
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

void LotEditor::open() {
    if (isOpen_) {
        return;
    }
    const File* const current = session_.files().currentFile();
    const Texts& texts = session_.texts();
    const bool edits = current != nullptr && isOneLot(*current) &&
                       session_.platform().dialogs.askYesNo(
                           texts.format(TextId::AskEditLote, {current->File_name()}),
                           MessageIcon::Information, texts(TextId::LoteTitle));
    start(edits ? current : nullptr);
}

void LotEditor::edit(const File& file) {
    if (isOneLot(file) && mayClose()) {
        start(&file);
    }
}

void LotEditor::start(const File* file) {
    draft_ = {};
    path_.clear();
    edited_ = file;
    if (file != nullptr) {
        draft_.start(lotsOf(*file).front());
        path_ = file->File_diskPath();
    }
    isOpen_ = true;
    MapTools& tools = session_.tools();
    tools.setTool(MapTools::Tool::None);
    tools.setVertexOwner(this);
    tools.onClick = [this](CanvasPoint at) { click(at); };
    changed();
    session_.platform().window.commandsChanged();
}

bool LotEditor::close() {
    if (!isOpen_) {
        return true;
    }
    if (!mayClose()) {
        return false;
    }
    isOpen_ = false;
    MapTools& tools = session_.tools();
    tools.setVertexOwner(nullptr);
    tools.onClick = nullptr;
    draft_ = {};
    changed();
    session_.platform().window.commandsChanged();
    return true;
}

bool LotEditor::mayClose() const {
    const Texts& texts = session_.texts();
    return !isOpen_ || !draft_.isChanged() ||
           session_.platform().dialogs.askYesNo(texts(TextId::AskLoseLote),
                                                MessageIcon::Exclamation, texts(TextId::LoteTitle));
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
    path_.clear();  // the next lot must not land in the file of this one
    edited_ = nullptr;
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
    const char symbol = session_.platform().locale.decimalSymbol();
    std::string hectares = fixedNumberText(polygonArea(draft_.vertices()) / 10'000.0, 2);
    std::replace(hectares.begin(), hectares.end(), '.', symbol);
    const double metres = draft_.vertices().size() < 2 ? 0 : ringPerimeter(draft_.vertices());
    return session_.texts().format(TextId::LoteFigures,
                                   {hectares, numberText(roundHalfEven(metres))});
}

bool LotEditor::isWhole() const {
    return draft_.vertices().size() >= kFewestVertices;
}

LonLat LotEditor::middleOfMap() const {
    const auto [width, height] = session_.platform().canvas.size();
    return session_.view().transform().isFitted() ? positionAt({width / 2, height / 2}) : LonLat{};
}

LonLat LotEditor::positionAt(CanvasPoint at) const {
    const LonLat position =
        session_.view().transform().screenToMap(static_cast<float>(at.x), static_cast<float>(at.y));
    return {std::clamp(position.x, -180.0, 180.0), std::clamp(position.y, -90.0, 90.0)};
}

void LotEditor::click(CanvasPoint at) {
    if (std::abs(at.y - pressed_.y) <= kClickReach) {
        add(positionAt(at));
    }
}

std::optional<std::size_t> LotEditor::vertexAt(CanvasPoint at) const {
    const ViewTransform view = session_.view().transform();
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
    const ViewTransform view = session_.view().transform();
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
    if (!session_.view().transform().isFitted()) {
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
    const CanvasPoint place = session_.view().transform().mapToScreen(picked_->x, picked_->y);
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

void LotEditor::changed() {
    crosses_ = ringCrossesItself(draft_.vertices());
    viewChanged();
    if (onChanged) {
        onChanged();
    }
}

void LotEditor::viewChanged() {
    const ViewTransform view = session_.view().transform();
    MapTools& tools = session_.tools();
    showMark();
    if (!isOpen_ || !view.isFitted() || draft_.vertices().empty()) {
        tools.showLot(std::nullopt);
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
    lot.color = session_.style().colors.lote;
    lot.filled = !transparent_;
    tools.showLot(std::move(lot));
}

void LotEditor::showMark() {
    MapTools& tools = session_.tools();
    if (tools.isPositionMarked()) {
        marked_ = false;  // the user looks for a place; the mark is for that
        return;
    }
    const ViewTransform view = session_.view().transform();
    if (isOpen_ && view.isFitted() && draft_.selected()) {
        const auto& [x, y] = draft_.vertices()[*draft_.selected()];
        const CanvasPoint place = view.mapToScreen(x, y);
        tools.showVertex(static_cast<float>(place.x), static_cast<float>(place.y));
        marked_ = true;
    } else if (std::exchange(marked_, false)) {
        tools.hideVertex();
    }
}

void LotEditor::tell(const Failure& failure) const {
    session_.platform().dialogs.message(session_.texts().sentence(failure),
                                        MessageIcon::Exclamation,
                                        session_.texts()(TextId::LoteTitle));
}

bool LotEditor::refuseFewVertices() const {
    if (!isWhole()) {
        tell({TextId::LoteTooFew, {}});
    }
    return !isWhole();
}

std::optional<int> LotEditor::askNumber() const {
    const std::string answer = session_.platform().dialogs.inputBox(
        TextId::AskLoteNumber, session_.texts()(TextId::LoteTitle),
        proposedLotNumber(session_, path_));
    if (trim(answer).empty()) {
        return std::nullopt;
    }
    const double number = typedNumber(answer).value_or(-1);
    if (number < 0 || number >= kLotNumbers || number != std::trunc(number)) {
        tell({TextId::BadLoteNumber, {}});
        return std::nullopt;
    }
    return static_cast<int>(number);
}

void LotEditor::save() {
    if (refuseFewVertices()) {
        return;
    }
    if (const std::optional<int> number = askNumber()) {
        const std::string path = askLotTarget(session_, lotFileName(*number));
        if (!path.empty()) {
            write(path);
        }
    }
}

void LotEditor::saveBack() {
    if (!path_.empty() && !refuseFewVertices()) {
        write(path_);
    }
}

void LotEditor::write(const std::string& path) {
    const LotFile lot{draft_.vertices(), draft_.description()};
    const Result<std::vector<std::string>> saved = saveLots({&lot, 1}, path);
    if (!saved) {
        tell(saved.failure());
        return;
    }
    draft_.markSaved();
    path_ = path;
    // A result of merging that is on no disk yet is what was saved.
    const bool isUntitled = session_.files().indexOf(edited_) && edited_->File_diskPath().empty();
    edited_ = putLotOnMap(session_, path, isUntitled ? edited_ : nullptr);
    session_.platform().window.setToolText(
        session_.texts().format(TextId::LoteSaved, {std::string(fileNamePart(path))}));
    changed();
}

void LotEditor::viewInEarth() {
    if (refuseFewVertices()) {
        return;
    }
    const std::string_view name =
        path_.empty() ? session_.texts()(TextId::LoteTitle) : fileNamePart(path_);
    const std::string stem(
        pathEnding(name) == kEnding ? name.substr(0, name.size() - kEnding.size()) : name);
    const Result<std::string> path = documents_.file(stem + ".kml");
    if (!path) {
        tell(path.failure());
        return;
    }
    const GphLote lot(draft_.vertices(), draft_.description());
    const std::array<const Gph*, 1> layers{&lot};
    NoProgress quiet;
    ExportProgress progress(quiet);
    if (const std::optional<Failure> failure =
            kmlExport(layers, *path, session_.programFolder(), session_.style(), progress)) {
        tell(*failure);
    } else if (!session_.platform().shell.open(*path)) {
        tell({TextId::LoteEarthFailed, {}});
    }
}

}  // namespace campora
