// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>
#include <QStringList>

#include "base/texts.h"

class QComboBox;
class QSpinBox;

namespace campora {

/// Where a page goes, and how.
struct PrintTarget {
    /// Name of the printer; empty for a PDF file.
    QString printer;
    int copies = 1;
    int dotsPerInch = 600;
};

/// Asks for the printer, or a PDF file, which is always there.
class PrintDialog final : public QDialog {
    Q_OBJECT

public:
    /// `printers`: the names of those that are there. `proposed`: what stands first in the
    /// controls; a printer that is not there gives way to the PDF file.
    PrintDialog(const QStringList& printers, const PrintTarget& proposed, const Texts& texts,
                QWidget* parent);

    [[nodiscard]] PrintTarget target() const;

private:
    void fill(const QStringList& printers, const PrintTarget& proposed, const Texts& texts);
    void showCopies();

    QComboBox* printer_;
    QSpinBox* copies_;
    QComboBox* resolution_;
};

}  // namespace campora
