// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string_view>

#include <QDialog>

#include "app/open/summary_editor.h"

namespace campora {

class SummaryRowsView;

/// The window frame of both summary editors: the rows, accept and cancel. What stands in the fields
/// counts when the user accepts.
class SummaryRowsDialog : public QDialog {
public:
    /// Keeps the rows that the user accepted; the dialog stays open when it answers false.
    using Keep = std::function<bool()>;

    /// The arguments outlive the dialog.
    SummaryRowsDialog(SummaryRows& rows, Keep keep, const Desk& desk, QWidget* parent);

    void accept() override;

private:
    SummaryRowsView* view_;
    Keep keep_;
};

/// Changes the summary file of a work. Nothing is written before the user accepts.
class SummaryEditorDialog final : public SummaryRowsDialog {
public:
    /// `editor` and the other arguments outlive the dialog.
    SummaryEditorDialog(SummaryEditor& editor, const Desk& desk, QWidget* parent);
};

/// Opens the editor of a summary file modally; one that cannot be read is told and not opened.
void editSummaryFile(std::string_view path, const Desk& desk, QWidget* parent);

}  // namespace campora
