// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/summary_editor_dialog.h"

#include <QHBoxLayout>
#include <QPushButton>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/summary_draft_view.h"

namespace campora {

namespace {

constexpr QSize kSize{560, 460};

}  // namespace

SummaryDraftDialog::SummaryDraftDialog(SummaryDraft& draft, Keep keep, const Desk& desk,
                                       QWidget* parent)
    : QDialog(parent), view_(new SummaryDraftView(draft, desk, this)), keep_(std::move(keep)) {
    setWindowTitle(toQt(desk.texts(TextId::EditSummary)));
    auto* const accept = new QPushButton(toQt(desk.texts(TextId::ButtonOk)), this);
    accept->setObjectName("cmdAcept");
    accept->setAutoDefault(false);  // Enter belongs to the fields
    auto* const cancel = new QPushButton(toQt(desk.texts(TextId::ButtonCancel)), this);
    cancel->setObjectName("CmdCancel");
    cancel->setAutoDefault(false);
    connect(accept, &QPushButton::clicked, this, [this] { this->accept(); });
    connect(cancel, &QPushButton::clicked, this, [this] { reject(); });
    auto* const buttons = new QHBoxLayout;
    buttons->addStretch();
    buttons->addWidget(accept);
    buttons->addWidget(cancel);
    auto* const column = new QVBoxLayout(this);
    column->addWidget(view_, 1);
    column->addLayout(buttons);
    resize(kSize);
}

void SummaryDraftDialog::accept() {
    view_->acceptFields();
    if (keep_()) {
        QDialog::accept();
    }
}

SummaryEditorDialog::SummaryEditorDialog(SummaryEditor& editor, const Desk& desk, QWidget* parent)
    : SummaryDraftDialog(
          editor.draft(), [&editor] { return editor.accept(); }, desk, parent) {
    setObjectName("frmWrkEdit");
}

void editSummaryFile(std::string_view path, const Desk& desk, QWidget* parent) {
    SummaryEditor editor(path, desk);
    if (editor.wasRead()) {
        SummaryEditorDialog(editor, desk, parent).exec();
    }
}

void editMeasuredSummary(SummaryDraft draft, const std::function<bool(const SummaryDraft&)>& keep,
                         const Desk& desk, QWidget* parent) {
    SummaryDraftDialog dialog(
        draft, [&] { return keep(draft); }, desk, parent);
    dialog.setObjectName("frmProperties");
    dialog.exec();
}

}  // namespace campora
