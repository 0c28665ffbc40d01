// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include <QListWidget>

#include "platform/main_window_controls.h"

namespace campora {

/// Rows of a colour and what it means.
class ColorList final : public QListWidget {
    Q_OBJECT

public:
    explicit ColorList(QWidget* parent = nullptr);

    /// The row in use stays the one in that place. A screen reader says each row with its unit and
    /// its colour; `colorForm` has the place %1 for the latter.
    void setRows(std::span<const LegendRow> rows, const QString& unit, const QString& colorForm);
    /// The height that shows all rows.
    [[nodiscard]] int fullHeight() const;

signals:
    /// Double click or Enter on a row.
    void rowOpened(int row);
    /// Right button, Menu key or Shift+F10; `row` is -1 beside the rows. `place` is on the screen.
    void menuAsked(int row, QPoint place);

protected:
    void keyPressEvent(QKeyEvent* event) override;
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    void askMenuOfRow();
};

}  // namespace campora
