// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <vector>

#include <QDialog>

#include "app/out/track_export_run.h"
#include "base/text_id.h"
#include "platform/clock.h"

class QLabel;
class QLineEdit;
class QListWidget;
class QPushButton;
class QRadioButton;
class QSlider;

namespace campora {

class Session;

/// Exports track files to polygon shapefiles: several beside themselves, one wherever the user
/// wants it.
class ShpExportDialog final : public QDialog {
    Q_OBJECT

public:
    /// Both outlive the dialog.
    ShpExportDialog(const OpenMap& map, Clock& clock, QWidget* parent);

    /// Opens the dialog modally for these files. A single one, and where it goes, can be changed.
    void exportList(const std::vector<std::string>& paths);

    /// During a run it ends with the present file; then the dialog closes.
    void reject() override;

private:
    [[nodiscard]] QLayout* makePaths();
    [[nodiscard]] QWidget* makeOptions();
    [[nodiscard]] QLayout* makeButtons();
    [[nodiscard]] QPushButton* makeBrowse(TextId tip, void (ShpExportDialog::*browse)());
    [[nodiscard]] QString word(TextId id) const;

    void showList();
    void setSource(const std::string& path);
    /// Whether the boxes say what they did at first.
    [[nodiscard]] bool isAsProposed() const;
    void browseSource();
    void browseTarget();
    void run();
    void runList();
    void showDone(const std::string& line, const TrackExportOutcome& outcome);
    /// While a run is on nothing can be changed.
    void enableInputs(bool enabled);

    const OpenMap& map_;
    Clock& clock_;
    TrackExportRun run_;
    std::vector<std::string> paths_;
    bool closing_ = false;

    QLineEdit* txtOrig_;
    QLineEdit* txtDest_;
    std::vector<QPushButton*> browses_;
    /// All points, or those with flow ("fumigado").
    QRadioButton* expAll_;
    QRadioButton* expFum_;
    QSlider* slider_;
    QListWidget* msgs_;
    QLabel* remark_;
    QPushButton* cmdExport_;
    QPushButton* cmdCancel_;
};

}  // namespace campora
