// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <string>

#include <QDialog>

#include "base/texts.h"
#include "pages/page_setup.h"

class QCheckBox;
class QComboBox;
class QGroupBox;
class QPlainTextEdit;
class QRadioButton;
class QSpinBox;

namespace campora {

/// Paper, orientation, margins and contents of printed pages.
class PageSetupDialog final : public QDialog {
    Q_OBJECT

public:
    /// `texts` outlives the dialog.
    PageSetupDialog(const PageSetup& setup, const std::string& description, const Texts& texts,
                    QWidget* parent);

    /// As the controls stand.
    [[nodiscard]] PageSetup setup() const;
    /// Lines ended by LF.
    [[nodiscard]] std::string description() const;

private:
    QGroupBox* makeOrientation(bool landscape);
    QGroupBox* makeMargins(const PageMargins& margins);
    QGroupBox* makeContents(const PageSetup& setup);
    [[nodiscard]] QString word(TextId id) const;

    const Texts& texts_;
    QComboBox* paper_;
    QRadioButton* portrait_ = nullptr;
    QRadioButton* landscape_ = nullptr;
    /// In the order of the rows of the dialog.
    std::array<QSpinBox*, 4> margins_{};
    std::array<QCheckBox*, 3> contents_{};
    QPlainTextEdit* description_;
};

}  // namespace campora
