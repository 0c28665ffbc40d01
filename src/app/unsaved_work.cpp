// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/unsaved_work.h"

#include <algorithm>

#include "base/plain_text.h"
#include "lots/file_lots.h"
#include "presc/gph_presc_vex.h"

namespace campora {

bool mayLose(const File& file, const Desk& desk) {
    if (areUnsavedLots(file)) {
        return desk.titled(TextId::LotTitle)
            .ask(desk.texts.format(TextId::AskLoseMerged, {file.File_name()}));
    }
    const auto* const prescription = dynamic_cast<const GphPrescVex*>(&file);
    return prescription == nullptr || !prescription->dosesChanged() ||
           desk.ask(namingFile(desk.texts(TextId::AskLoseDoses),
                               prescription->channel(0).File_diskPath()));
}

bool mayCloseFiles(const OpenMap& map) {
    std::vector<File*> files = map.files().all();
    // The prescription first: it took the most work.
    std::stable_partition(files.begin(), files.end(), [](const File* file) {
        return dynamic_cast<const GphPrescVex*>(file) != nullptr;
    });
    return std::all_of(files.begin(), files.end(),
                       [&map](const File* file) { return mayLose(*file, map.desk()); });
}

}  // namespace campora
