// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/property_editor.h"

#include "desktop/dialogs/summary_editor_dialog.h"

namespace campora {

void editProperties(SummaryRows rows, const std::function<bool(const SummaryRows&)>& keep,
                    const Desk& desk, QWidget* parent) {
    SummaryRowsDialog dialog(
        rows, [&] { return keep(rows); }, desk, parent);
    dialog.setObjectName("frmProperties");
    dialog.exec();
}

}  // namespace campora
