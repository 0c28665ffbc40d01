// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QDialog>

#include "app/findings/compare_commands.h"
#include "platform/clipboard.h"

class QComboBox;
class QGridLayout;
class QLabel;
class QSpinBox;

namespace campora {

class CopiedTable;

/// What a job applied beside what was prescribed: the figures, the table by dose, which
/// prescription is for which job, and how far a dose may be off.
class CompareDialog final : public QDialog {
    Q_OBJECT

public:
    /// All of it outlives the dialog.
    CompareDialog(CompareCommands& commands, const Texts& texts, Clipboard& clipboard,
                  QWidget* parent);

protected:
    /// Return ends the typing of a limit and closes nothing then.
    void keyPressEvent(QKeyEvent* event) override;

private:
    void arrange();
    [[nodiscard]] QGridLayout* choices();
    void showJob();
    void showComparison();
    [[nodiscard]] const File* job() const;
    void copyAll();

    CompareCommands& commands_;
    const Texts& texts_;
    Clipboard& clipboard_;
    std::vector<const File*> jobs_;
    QComboBox* job_;
    QComboBox* prescription_;
    QSpinBox* limit_;
    CopiedTable* figures_;
    CopiedTable* doses_;
    QLabel* note_;
};

}  // namespace campora
