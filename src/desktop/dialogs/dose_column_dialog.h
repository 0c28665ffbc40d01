// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <memory>
#include <vector>

#include <QDialog>

#include "app/open_map.h"
#include "app/presc/dose_columns.h"
#include "platform/services.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QLayout;
class QProgressBar;
class QPushButton;

namespace campora {

/// Asks for the map and the dose column of every channel of a prescription.
class DoseColumnDialog final : public QDialog {
    Q_OBJECT

public:
    /// Both outlive the dialog.
    DoseColumnDialog(const OpenMap& map, const Services& services, QWidget* parent);

    /// Opens the dialog modally. The maps in the order of their channels, with their dose columns;
    /// none when the user cancels.
    [[nodiscard]] std::vector<std::unique_ptr<GphPresc>> choose();

    void accept() override;
    /// Not while a map is read.
    void reject() override;

private:
    struct RowWidgets {
        QLabel* lblChannel = nullptr;
        QPushButton* cmdOpen = nullptr;
        QComboBox* cbDosis = nullptr;
        QLabel* lblNumDosis = nullptr;
    };

    void addRow(QGridLayout& grid, int row);
    [[nodiscard]] QLayout* makeButtons();
    [[nodiscard]] QPushButton* makeButton(const char* name, TextId text);
    void chooseFile(int row);
    void showProgress(int row, int percent);
    /// Brings the widgets up to date with the rows.
    void showRows();
    void showRow(int row);
    [[nodiscard]] QString word(TextId id) const;

    const OpenMap& map_;
    const Services& services_;
    DoseColumns columns_;
    QGridLayout* grid_;
    std::array<RowWidgets, kMostChannels> rows_;
    QProgressBar* progress_;
    QPushButton* cmdAdd_ = nullptr;
    QPushButton* cmdRemove_ = nullptr;
    QPushButton* cmdOk_ = nullptr;
    QPushButton* cmdCancel_ = nullptr;
};

}  // namespace campora
