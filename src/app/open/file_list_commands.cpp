// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_list_commands.h"

#include "app/unsaved_work.h"

namespace campora {

void FileListCommands::selectFile(std::optional<int> row) {
    LoadedFileList& files = map_.files();
    if (row && (*row < 0 || *row >= files.loadedCount())) {
        return;
    }
    files.setCurrentFile(row ? &files.file(*row) : nullptr);
    display_.showCurrentFile();
}

void FileListCommands::zoomToCurrentFile() {
    if (const File* current = map_.files().currentFile()) {
        display_.view().zoomToBox(current->File_bound());
    }
}

void FileListCommands::moveCurrentFile(Move where) {
    LoadedFileList& files = map_.files();
    const File* const current = files.currentFile();
    if (current == nullptr) {
        return;
    }
    switch (where) {
    case Move::Up:
        files.moveUp(current);
        break;
    case Move::Down:
        files.moveDown(current);
        break;
    case Move::Top:
        files.moveToTop(current);
        break;
    case Move::Bottom:
        files.moveToBottom(current);
        break;
    }
    display_.loadFileList(true);
    display_.redraw();
}

void FileListCommands::removeCurrentFile() {
    const File* const current = map_.files().currentFile();
    if (current != nullptr && mayLose(*current, map_.desk())) {
        map_.removeFile(current);
        display_.showChange();
    }
}

}  // namespace campora
