// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QDialog>

#include "app/presc/dose_choice.h"

class QLineEdit;
class QRadioButton;

namespace campora {

class ColorList;

/// Asks for the dose of a zone: one that the scale has, or a new one.
class SelectDoseDialog final : public QDialog {
    Q_OBJECT

public:
    /// `scale` may be null: only a new dose then. It outlives the dialog.
    SelectDoseDialog(const ColorScale* scale, float currentDose, const Desk& desk, QWidget* parent);

    /// Opens the dialog modally; none when the user cancels.
    [[nodiscard]] std::optional<float> getDosis();

    void accept() override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void makeChoices(const Desk& desk);
    void selectionChanged();
    /// The buttons as the choice is now.
    void showWay();

    DoseChoice choice_;
    std::optional<float> dose_;
    QRadioButton* rbExistent_;
    QRadioButton* rbManual_;
    ColorList* viewer_;
    QLineEdit* txtNewDosis_;
};

}  // namespace campora
