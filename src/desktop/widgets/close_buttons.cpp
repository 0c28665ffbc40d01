// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/close_buttons.h"

#include <utility>

#include <QDialog>
#include <QPushButton>

#include "desktop/platform/qt_text.h"

namespace campora {

CloseButtons::CloseButtons(const Texts& texts, QDialog* parent)
    : QDialogButtonBox(QDialogButtonBox::Close, parent) {
    QPushButton* const close = button(QDialogButtonBox::Close);
    close->setText(toQt(texts(TextId::ButtonClose)));
    close->setDefault(true);
    connect(this, &QDialogButtonBox::rejected, parent, &QDialog::reject);
}

void CloseButtons::addCopying(const char* name, const QString& caption,
                              std::function<void()> copy) {
    QPushButton* const copying = addButton(caption, QDialogButtonBox::ActionRole);
    copying->setObjectName(name);
    copying->setAutoDefault(false);
    connect(copying, &QPushButton::clicked, this, std::move(copy));
}

}  // namespace campora
