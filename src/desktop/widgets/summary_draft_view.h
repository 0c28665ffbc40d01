// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <array>
#include <vector>

#include <QWidget>

#include "app/open/summary_editor.h"
#include "platform/desk.h"

class QLineEdit;
class QPushButton;
class QTreeWidget;

namespace campora {

/// Rows of a summary in a list, the fields of one row below it, and the buttons that change them.
class SummaryDraftView final : public QWidget {
public:
    /// The arguments outlive the widget; the rows change only through it from now on.
    SummaryDraftView(SummaryDraft& draft, const Desk& desk, QWidget* parent);

    /// What stands in the fields goes into the rows, as `SummaryDraft::acceptFields` says.
    void acceptFields();

private:
    using Action = void (SummaryDraftView::*)();

    [[nodiscard]] QWidget* makeFields();
    [[nodiscard]] QWidget* makeButtons();
    QPushButton* makeButton(const char* name, TextId text, TextId tip, Action action);
    void add();
    void remove();
    void change();
    void up();
    void down();
    void select();
    /// Puts what is typed into the rows before they change.
    void readFields();
    /// Brings the widgets up to date with the rows.
    void showRows();
    void showFields();

    SummaryDraft& draft_;
    Desk desk_;
    QTreeWidget* list_;
    std::array<QLineEdit*, 3> fields_{};
    /// Those that need a selected row.
    std::vector<QPushButton*> rowButtons_;
};

}  // namespace campora
