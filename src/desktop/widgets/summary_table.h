// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include <QTreeWidget>

#include "base/texts.h"
#include "platform/main_window_controls.h"

namespace campora {

/// The summary of the selected file: property and value. Rows that a person edited stand out.
class SummaryTable final : public QTreeWidget {
    Q_OBJECT

public:
    explicit SummaryTable(QWidget* parent = nullptr);

    /// Rows that come below those that stood there are brought into view.
    void setRows(std::span<const SummaryRow> rows);
    void retranslate(const Texts& texts);

signals:
    /// `row`: -1 where there is none; `place`: on the screen.
    void menuAsked(int row, QPoint place);

protected:
    void contextMenuEvent(QContextMenuEvent* event) override;

private:
    [[nodiscard]] bool startsWithShown(std::span<const SummaryRow> rows) const;
};

}  // namespace campora
