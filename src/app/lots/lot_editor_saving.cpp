// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// How a drawn lot leaves its editor: into a file with its number, and to a globe.

#include <array>
#include <cmath>
#include <string_view>

#include "app/lots/lot_editor.h"
#include "app/lots/lot_saving.h"
#include "base/file_endings.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "export/kml_export.h"
#include "lots/gph_lote.h"
#include "lots/save_lots.h"
#include "platform/quiet_dialogs.h"

namespace campora {

namespace {

constexpr std::size_t kFewestVertices = 3;

}  // namespace

bool LotEditor::isWhole() const {
    return draft_.vertices().size() >= kFewestVertices;
}

bool LotEditor::refuseFewVertices() const {
    if (!isWhole()) {
        lotDesk(map_).tell({TextId::LotTooFew, {}});
    }
    return !isWhole();
}

std::optional<int> LotEditor::askNumber() const {
    const std::optional<std::string> answer = lotDesk(map_).askText(
        TextId::AskLotNumber, proposedLotNumber(map_, settings_, path()), path());
    if (!answer || trim(*answer).empty()) {
        return std::nullopt;
    }
    const double number = typedNumber(*answer).value_or(-1);
    if (number < 0 || number >= kLotNumbers || number != std::trunc(number)) {
        lotDesk(map_).tell({TextId::BadLotNumber, {}});
        return std::nullopt;
    }
    return static_cast<int>(number);
}

void LotEditor::save() {
    if (refuseFewVertices()) {
        return;
    }
    if (const std::optional<int> number = askNumber()) {
        const std::string path = askLotTarget(map_, settings_, lotFileName(*number));
        if (!path.empty()) {
            write(path);
        }
    }
}

void LotEditor::saveBack() {
    if (!path().empty() && !refuseFewVertices()) {
        write(std::string(path()));
    }
}

void LotEditor::write(const std::string& target) {
    if (const auto refused = map_.filesInUse(edited()).whyNotTarget(target)) {
        lotDesk(map_).tell(*refused);
        return;
    }
    const Lot lot{draft_.vertices(), draft_.description()};
    const Result<std::vector<std::string>> saved = saveLots({&lot, 1}, target);
    if (!saved) {
        lotDesk(map_).tell(saved.failure());
        return;
    }
    // A result of merging that is on no disk yet is what was saved.
    const File* const untitled = path().empty() ? edited() : nullptr;
    draft_.markSaved(target);
    if (putLotOnMap(map_, display_, target, untitled)) {
        hidden_ = edited();  // drawn without it just now
    }
    display_.window().setToolText(
        map_.desk().texts.format(TextId::LotSaved, {std::string(fileNamePart(target))}));
    changed();
}

void LotEditor::viewInEarth() {
    if (refuseFewVertices()) {
        return;
    }
    std::string name(path().empty() ? map_.desk().texts(TextId::LotTitle) : fileStem(path()));
    const Result<std::string> document = documents_.file(name.append(kKmlEnding));
    if (!document) {
        lotDesk(map_).tell(document.failure());
        return;
    }
    const GphLote lot(draft_.vertices(), draft_.description());
    const std::array<const Gph*, 1> layers{&lot};
    NoProgress quiet;
    ExportProgress progress(quiet);
    if (const std::optional<Failure> failure =
            kmlExport(layers, *document, map_.programFolder(), map_.style(), progress)) {
        lotDesk(map_).tell(*failure);
    } else if (!shell_.open(*document)) {
        lotDesk(map_).tell({TextId::LotEarthFailed, {}});
    }
}

}  // namespace campora
