// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/property_editor.h"

#include "desktop/summary_editor_dialog.h"
#include "work/summary_editor.h"

namespace campora {

bool editProperties(FileProperties& summary, Dialogs& dialogs, const Texts& texts,
                    QWidget* parent) {
    SummaryRows rows = rowsOf(summary);
    SummaryRowsDialog dialog(rows, dialogs, texts, parent);
    dialog.setObjectName("frmProperties");
    if (dialog.exec() != QDialog::Accepted) {
        return false;
    }
    applyRows(rows, summary);
    return true;
}

}  // namespace campora
