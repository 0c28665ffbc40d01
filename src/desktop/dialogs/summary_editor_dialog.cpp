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

SummaryRowsDialog::SummaryRowsDialog(SummaryRows& rows, Keep keep, const Desk& desk,
                                     QWidget* parent)
    : QDialog(parent), view_(new SummaryRowsView(rows, desk, this)), keep_(std::move(keep)) {
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

void SummaryRowsDialog::accept() {
    view_->acceptFields();
    if (keep_()) {
        QDialog::accept();
    }
}

SummaryEditorDialog::SummaryEditorDialog(SummaryEditor& editor, const Desk& desk, QWidget* parent)
    : SummaryRowsDialog(
          editor.rows(), [&editor] { return editor.accept(); }, desk, parent) {
    setObjectName("frmWrkEdit");
}

void editSummaryFile(std::string_view path, const Desk& desk, QWidget* parent) {
    SummaryEditor editor(path, desk);
    if (editor.wasRead()) {
        SummaryEditorDialog(editor, desk, parent).exec();
    }
}

}  // namespace campora
