// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QDialog>

#include "app/presc/prescription_checkup.h"
#include "platform/clipboard.h"

class QGridLayout;
class QLabel;
class QLineEdit;

namespace campora {

class CopiedTable;

/// The page of a prescription that was read back: whether it agrees, what is to be warned of, its
/// figures, and the tank and the limits that they are judged by.
class CheckDialog final : public QDialog {
    Q_OBJECT

public:
    /// What is not the checkup outlives the dialog.
    CheckDialog(std::unique_ptr<PrescriptionCheckup> checkup, const Texts& texts,
                Clipboard& clipboard, QWidget* parent);

private:
    /// The fields of a channel.
    struct Fields {
        QLineEdit* product;
        QLineEdit* least;
        QLineEdit* most;
    };

    void arrange();
    [[nodiscard]] QGridLayout* wishes();
    [[nodiscard]] Fields addChannel(QGridLayout& grid, int channel);
    [[nodiscard]] QLineEdit* field(const QString& accessibleName, const std::string& text);
    void showPage();
    void copyAll();

    std::unique_ptr<PrescriptionCheckup> checkup_;
    const Texts& texts_;
    Clipboard& clipboard_;
    QLabel* verdict_;
    CopiedTable* warnings_;
    CopiedTable* figures_;
};

}  // namespace campora
