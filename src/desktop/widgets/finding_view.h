// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include <QTableView>

#include "app/findings/finding_commands.h"
#include "base/texts.h"
#include "platform/clipboard.h"

namespace campora {

class FindingModel;

/// A table of passes or of problems. A row that is selected is shown on the map, Enter and a double
/// click fill the map with it, Space sorts by the column, Ctrl+C copies all.
class FindingView final : public QTableView {
    Q_OBJECT

public:
    explicit FindingView(FindingTable::Kind kind, QWidget* parent = nullptr);

    /// What it shows; it outlives the view.
    void setCommands(FindingCommands& commands, Clipboard& clipboard);
    void retranslate(const Texts& texts);
    /// While the view can be seen it shows the work as it is now; nothing is looked for before.
    void showWork();
    /// Makes the row that is selected in the commands the current one.
    void showSelected();
    /// What it shows, how it is used and what was left out.
    [[nodiscard]] QString tip() const { return leftOut_.isEmpty() ? tip_ : tip_ + ". " + leftOut_; }
    /// May be empty.
    std::function<void()> onTipChanged;

protected:
    bool event(QEvent* event) override;
    void showEvent(QShowEvent* event) override;
    void hideEvent(QHideEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    void paintEvent(QPaintEvent* event) override;
    void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;

private:
    void load();
    void arrangeColumns();
    void sortByCurrentColumn();
    void zoomToCurrent();

    FindingTable::Kind kind_;
    FindingModel* model_ = nullptr;
    FindingCommands* commands_ = nullptr;
    Clipboard* clipboard_ = nullptr;
    /// In place of rows.
    QString whyEmpty_;
    QString tip_;
    /// How many turns are no problem.
    QString leftOut_;
    bool selecting_ = false;
};

}  // namespace campora
