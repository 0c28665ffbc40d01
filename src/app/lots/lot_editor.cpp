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

LotEditor::LotEditor(OpenMap& map, MapDisplay& display, MapTools& tools, SettingsStore& settings,
                     Shell& shell)
    : map_(map),
      display_(display),
      tools_(tools),
      settings_(settings),
      shell_(shell),
      vertexTool_(map, display, tools, draft_, [this] { changed(); }) {
    display_.leftOut = [this] { return edited(); };
}

void LotEditor::open() {
    if (isOpen_) {
        return;
    }
    const File* const current = map_.files().currentFile();
    const Desk desk = lotDesk(map_);
    const bool edits = current != nullptr && isOneLot(*current) &&
                       desk.ask(desk.texts.format(TextId::AskEditLot, {current->File_name()}),
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
    tools_.setTool(ToolId::Pan);
    tools_.layOver(&vertexTool_);
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
    tools_.layOver(nullptr);
    draft_ = {};
    changed();
    display_.window().commandsChanged();
    return true;
}

bool LotEditor::mayClose() const {
    const Desk desk = lotDesk(map_);
    return !isOpen_ || !draft_.isChanged() ||
           desk.ask(namingFile(desk.texts(TextId::AskLoseLot), path()));
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
    vertexTool_.setFilled(!transparent);
    changed();
}

std::string LotEditor::figures() const {
    const char symbol = map_.desk().decimalSymbol();
    std::string hectares =
        fixedNumberText(ringAreaM2(draft_.vertices()) / kSquareMetresPerHectare, 2);
    std::replace(hectares.begin(), hectares.end(), '.', symbol);
    const double metres = draft_.vertices().size() < 2 ? 0 : ringPerimeter(draft_.vertices());
    return map_.desk().texts.format(TextId::LotFigures,
                                    {hectares, numberText(roundHalfEven(metres))});
}

LonLat LotEditor::middleOfMap() const {
    const auto [width, height] = display_.canvas().size();
    return display_.view().transform().isFitted() ? vertexTool_.positionAt({width / 2, height / 2})
                                                  : LonLat{};
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
    vertexTool_.viewChanged();
    tools_.showOverlay();
    if (onChanged) {
        onChanged();
    }
}

}  // namespace campora
