// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/lot_keys.h"

namespace campora {

namespace {

constexpr LotKey kKeys[] = {
    {Qt::Key_Insert, TextId::LotInsert, &LotEditor::insertAfterSelected},
    {Qt::Key_Delete, TextId::LotDelete, &LotEditor::removeSelected},
    {Qt::Key_Backspace, TextId::LotDelete, &LotEditor::removeSelected},
    {Qt::CTRL | Qt::Key_Z, TextId::EditUndo, &LotEditor::undo},
    {Qt::CTRL | Qt::Key_Y, TextId::EditRedo, &LotEditor::redo},
    {Qt::CTRL | Qt::SHIFT | Qt::Key_Z, TextId::EditRedo, &LotEditor::redo},
};

}  // namespace

std::span<const LotKey> lotKeys() {
    return kKeys;
}

}  // namespace campora
