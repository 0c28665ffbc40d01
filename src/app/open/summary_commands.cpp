// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/summary_commands.h"

#include <cstddef>
#include <utility>
#include <vector>

#include "base/file_endings.h"
#include "base/files.h"
#include "base/paths.h"
#include "work/companion_names.h"
#include "work/edits_file.h"
#include "work/summary_file.h"

namespace campora {

bool SummaryCommands::canEdit() const {
    const File* const file = map_.files().currentFile();
    return file != nullptr && !file->File_diskPath().empty();
}

void SummaryCommands::edit() {
    const std::string source = summaryFile();
    if (!source.empty()) {
        editFile(source);
        reread();
    } else {
        editMeasured(draft(), [this](const SummaryDraft& edited) { return keep(edited); });
    }
}

std::string SummaryCommands::summaryFile() {
    File* const file = map_.files().currentFile();
    if (file == nullptr) {
        return {};
    }
    FileProperties& summary = file->File_resumen();
    const std::string path = file->File_diskPath();
    if (summary.sourcePath.empty() && pathEnding(path) == kTrackEnding) {
        FileProperties found;
        loadSummaryFile(findIgnoringCase(companionNames(path).summaryPath), found);
        if (!found.sourcePath.empty()) {
            summary = std::move(found);
            show();
        }
    }
    return summary.sourcePath;
}

void SummaryCommands::reread() {
    File* const file = map_.files().currentFile();
    if (file == nullptr) {
        return;
    }
    FileProperties& summary = file->File_resumen();
    const std::string path = summary.sourcePath;
    if (canOpen(path)) {
        loadSummaryFile(path, summary);
        show();
    }
}

SummaryDraft SummaryCommands::draft() const {
    std::vector<SummaryEntry> entries;
    if (File* const file = map_.files().currentFile()) {
        for (const ShownEntry& row : shownEntries(file->File_resumen())) {
            entries.push_back({row.property, row.value, row.unit});
        }
    }
    return SummaryDraft(std::move(entries));
}

bool SummaryCommands::keep(const SummaryDraft& draft) {
    File* const file = map_.files().currentFile();
    if (file == nullptr) {
        return false;
    }
    return keep(editsThatMake(draft.rows(), file->File_resumen()));
}

bool SummaryCommands::keep(SummaryEdits edits) {
    File* const file = map_.files().currentFile();
    if (file == nullptr || edits == file->File_resumen().edits) {
        return file != nullptr;
    }
    const Desk& desk = map_.desk();
    const std::string path = file->File_diskPath();
    const ReadEdits there = readEdits(path);
    std::optional<Failure> doubt = there.unused;
    if (!doubt && there.edits != file->File_resumen().edits && there.edits != edits) {
        doubt = Failure{TextId::EditsChangedMeanwhile, {editsPath(path)}};
    }
    if (doubt &&
        !desk.ask(desk.texts.format(TextId::AskReplaceEdits, {desk.texts.sentence(*doubt)}),
                  MessageIcon::Question)) {
        return false;
    }
    if (std::optional<Failure> failure = writeEdits(path, edits)) {
        desk.tellError(because(TextId::EditsNotKept, {path}, std::move(*failure)));
        return false;
    }
    file->File_resumen().edits = std::move(edits);
    file->dropRemarks(TextId::EditsNotUsed);
    display_.loadFileList(true);  // where the remark stood
    show();
    return true;
}

bool SummaryCommands::isEdited(int row) const {
    File* const file = map_.files().currentFile();
    if (file == nullptr || row < 0) {
        return false;
    }
    const std::vector<ShownEntry> shown = shownEntries(file->File_resumen());
    const auto index = static_cast<std::size_t>(row);
    return index < shown.size() && shown[index].origin != ShownEntry::Origin::Measured;
}

bool SummaryCommands::hasEdits() const {
    File* const file = map_.files().currentFile();
    return file != nullptr && !file->File_resumen().edits.empty();
}

void SummaryCommands::backToMeasured(int row) {
    if (isEdited(row)) {
        static_cast<void>(keep(withoutEdit(map_.files().currentFile()->File_resumen(), row)));
    }
}

void SummaryCommands::backToMeasured() {
    if (hasEdits()) {
        static_cast<void>(keep(SummaryEdits()));
    }
}

void SummaryCommands::show() {
    if (map_.style().mode == ColorMode::Error) {
        recalcErrorAreas(map_);  // its entry stands in no file
    }
    display_.showSummary();
}

void SummaryCommands::copyData(Clipboard& clipboard) const {
    std::string text;
    for (const SummaryRow& row : display_.summary()) {
        text.append(row.property).append(" ").append(row.value).append("\r\n");
    }
    if (!text.empty()) {
        clipboard.setText(text);
    }
}

}  // namespace campora
