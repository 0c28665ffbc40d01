// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include <QDialog>

#include "work/summary_editor.h"

namespace campora {

/// The window frame of both summary editors: the rows, accept and cancel.
class SummaryRowsDialog : public QDialog {
public:
    /// The arguments outlive the dialog.
    SummaryRowsDialog(SummaryRows& rows, Dialogs& dialogs, const Texts& texts, QWidget* parent);
};

/// Changes the summary file of a work. Nothing is written before the user accepts.
class SummaryEditorDialog final : public SummaryRowsDialog {
public:
    /// `editor` and the other arguments outlive the dialog.
    SummaryEditorDialog(SummaryEditor& editor, Dialogs& dialogs, const Texts& texts,
                        QWidget* parent);

    /// Stays open when the file cannot be written.
    void accept() override;

private:
    SummaryEditor& editor_;
};

/// Opens the editor of a summary file modally.
void editSummaryFile(std::string_view path, Dialogs& dialogs, const Texts& texts, QWidget* parent);

}  // namespace campora
