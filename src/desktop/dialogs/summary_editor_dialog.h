// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string_view>

#include <QDialog>

#include "app/open/summary_editor.h"

namespace campora {

class SummaryDraftView;

/// The window frame of both summary editors: the draft, accept and cancel. What stands in the
/// fields counts when the user accepts.
class SummaryDraftDialog : public QDialog {
public:
    /// Keeps the draft that the user accepted; the dialog stays open when it answers false.
    using Keep = std::function<bool()>;

    /// The arguments outlive the dialog.
    SummaryDraftDialog(SummaryDraft& draft, Keep keep, const Desk& desk, QWidget* parent);

    void accept() override;

private:
    SummaryDraftView* view_;
    Keep keep_;
};

/// Changes the summary file of a work. Nothing is written before the user accepts.
class SummaryEditorDialog final : public SummaryDraftDialog {
public:
    /// `editor` and the other arguments outlive the dialog.
    SummaryEditorDialog(SummaryEditor& editor, const Desk& desk, QWidget* parent);
};

/// Opens the editor of a summary file modally; one that cannot be read is told and not opened.
void editSummaryFile(std::string_view path, const Desk& desk, QWidget* parent);

/// Opens an editor of a summary that was measured and has no file, modally. What the user accepts
/// is handed to `keep`; the editor stays open when it answers false.
void editMeasuredSummary(SummaryDraft draft, const std::function<bool(const SummaryDraft&)>& keep,
                         const Desk& desk, QWidget* parent);

}  // namespace campora
