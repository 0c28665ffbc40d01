// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// How a drawn lot leaves its editor: into a file with its number, and to a globe.

#include <array>
#include <cmath>
#include <string_view>

#include "app/lots/lot_commands.h"
#include "app/lots/lot_editor.h"
#include "app/session.h"
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
    const std::optional<std::string> answer = session_.platform().dialogs.inputBox(
        {TextId::AskLoteNumber, std::string(session_.texts()(TextId::LoteTitle)),
         proposedLotNumber(session_, path()), std::string(path())});
    if (!answer || trim(*answer).empty()) {
        return std::nullopt;
    }
    const double number = typedNumber(*answer).value_or(-1);
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
    if (!path().empty() && !refuseFewVertices()) {
        write(std::string(path()));
    }
}

void LotEditor::write(const std::string& target) {
    if (const auto refused = session_.filesInUse(edited()).whyNotTarget(target)) {
        tell(*refused);
        return;
    }
    const Lot lot{draft_.vertices(), draft_.description()};
    const Result<std::vector<std::string>> saved = saveLots({&lot, 1}, target);
    if (!saved) {
        tell(saved.failure());
        return;
    }
    // A result of merging that is on no disk yet is what was saved.
    const File* const untitled = path().empty() ? edited() : nullptr;
    draft_.markSaved(target);
    if (putLotOnMap(session_, target, untitled)) {
        hidden_ = edited();  // drawn without it just now
    }
    session_.platform().window.setToolText(
        session_.texts().format(TextId::LoteSaved, {std::string(fileNamePart(target))}));
    changed();
}

void LotEditor::viewInEarth() {
    if (refuseFewVertices()) {
        return;
    }
    std::string name(path().empty() ? session_.texts()(TextId::LoteTitle) : fileStem(path()));
    const Result<std::string> document = documents_.file(name.append(kKmlEnding));
    if (!document) {
        tell(document.failure());
        return;
    }
    const GphLote lot(draft_.vertices(), draft_.description());
    const std::array<const Gph*, 1> layers{&lot};
    NoProgress quiet;
    ExportProgress progress(quiet);
    if (const std::optional<Failure> failure =
            kmlExport(layers, *document, session_.programFolder(), session_.style(), progress)) {
        tell(*failure);
    } else if (!session_.platform().shell.open(*document)) {
        tell({TextId::LoteEarthFailed, {}});
    }
}

}  // namespace campora
