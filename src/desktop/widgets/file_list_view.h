// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>

#include <QListWidget>

#include "platform/main_window_controls.h"

class QMenu;

namespace campora {

/// The open files, the one on top of the map first.
class FileListView final : public QListWidget {
    Q_OBJECT

public:
    explicit FileListView(QWidget* parent = nullptr);

    /// Shows other rows without answering as if the user had chosen one.
    void setRows(std::span<const FileListRow> rows, std::optional<int> selected);
    [[nodiscard]] std::optional<int> selectedRow() const;
    /// The menu of the selected file, which outlives this.
    void setFileMenu(QMenu& menu) { fileMenu_ = &menu; }

signals:
    /// The user chose another row, or none.
    void rowChosen(std::optional<int> row);
    /// Double click or Enter on a row.
    void zoomAsked();

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    QMenu* fileMenu_ = nullptr;
};

}  // namespace campora
