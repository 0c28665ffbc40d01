// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/dialogs/print_dialog.h"

#include <algorithm>

#include <QComboBox>
#include <QDialogButtonBox>
#include <QFormLayout>
#include <QLabel>
#include <QPushButton>
#include <QSpinBox>
#include <QVBoxLayout>

#include "base/numbers.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

constexpr int kMargin = 16;
constexpr int kGap = 12;
constexpr int kWidth = 380;
constexpr int kMostCopies = 99;
constexpr int kResolutions[] = {150, 300, 600};

}  // namespace

PrintDialog::PrintDialog(const QStringList& printers, const PrintTarget& proposed,
                         const Texts& texts, QWidget* parent)
    : QDialog(parent),
      printer_(new QComboBox(this)),
      copies_(new QSpinBox(this)),
      resolution_(new QComboBox(this)) {
    setObjectName("print");
    setWindowTitle(toQt(texts(TextId::PrintTitle)));
    setMinimumWidth(kWidth);
    fill(printers, proposed, texts);

    auto* const form = new QFormLayout;
    form->setSpacing(kGap);
    form->addRow(toQt(texts(TextId::PrinterLabel)), printer_);
    form->addRow(toQt(texts(TextId::CopiesLabel)), copies_);
    form->addRow(toQt(texts(TextId::ResolutionLabel)), resolution_);
    auto* const buttons =
        new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel, this);
    buttons->button(QDialogButtonBox::Ok)->setText(toQt(texts(TextId::ButtonPrint)));
    buttons->button(QDialogButtonBox::Cancel)->setText(toQt(texts(TextId::ButtonCancel)));
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    connect(printer_, &QComboBox::currentIndexChanged, this, [this] { showCopies(); });

    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->setSpacing(kGap);
    column->addLayout(form);
    if (printers.isEmpty()) {
        auto* const hint = new QLabel(toQt(texts(TextId::NoPrinters)), this);
        hint->setObjectName("noPrinters");
        hint->setWordWrap(true);
        column->addWidget(hint);
    }
    column->addStretch();
    column->addWidget(buttons);
    showCopies();
    printer_->setFocus();
}

void PrintDialog::fill(const QStringList& printers, const PrintTarget& proposed,
                       const Texts& texts) {
    printer_->setObjectName("printer");
    for (const QString& name : printers) {
        printer_->addItem(name, name);
    }
    printer_->addItem(toQt(texts(TextId::PrinterPdf)), QString());
    const int found = printer_->findData(proposed.printer);
    printer_->setCurrentIndex(found < 0 ? printer_->count() - 1 : found);
    copies_->setObjectName("copies");
    copies_->setRange(1, kMostCopies);
    copies_->setValue(proposed.copies);
    copies_->setContextMenuPolicy(Qt::PreventContextMenu);
    resolution_->setObjectName("resolution");
    for (const int dots : kResolutions) {
        resolution_->addItem(toQt(texts.format(TextId::ResolutionDots, {numberText(dots)})), dots);
    }
    resolution_->setCurrentIndex(std::max(0, resolution_->findData(proposed.dotsPerInch)));
}

void PrintDialog::showCopies() {
    copies_->setEnabled(!printer_->currentData().toString().isEmpty());
}

PrintTarget PrintDialog::target() const {
    const QString printer = printer_->currentData().toString();
    return {printer, printer.isEmpty() ? 1 : copies_->value(), resolution_->currentData().toInt()};
}

}  // namespace campora
