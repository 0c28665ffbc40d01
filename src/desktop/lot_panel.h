// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <vector>

#include <QWidget>

#include "app/session.h"

class QAction;
class QBoxLayout;
class QCheckBox;
class QKeyEvent;
class QLabel;
class QPlainTextEdit;
class QPushButton;
class QTableView;
class QToolBar;
class QToolButton;

namespace campora {

class ElidedLabel;
class LotVertexModel;

/// What stands beside the map while a lot is drawn: its vertices, figures and description, and the
/// commands of the editor.
class LotPanel final : public QWidget {
    Q_OBJECT

public:
    /// `session` and `map` outlive the panel; the keys of the editor act on the map too.
    LotPanel(Session& session, QWidget& map, QWidget* parent = nullptr);
    ~LotPanel() override;

    void retranslate();
    /// Shows the lot as it is now.
    void refresh();
    [[nodiscard]] QTableView& vertices() const { return *vertices_; }

protected:
    bool event(QEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    struct Tool;

    void makeHeader(QBoxLayout& column);
    void makeTools();
    void makeVertices();
    void makeDescription(QBoxLayout& column);
    void makeButtons(QBoxLayout& column);
    void addVertex();
    void editVertex();
    /// None when the user cancels.
    [[nodiscard]] std::optional<LonLat> askPosition(LonLat proposed);
    void descriptionEdited();
    void showDescription();
    void showSelection();
    /// Does what a key means; false for one without a meaning here.
    bool useKey(const QKeyEvent& event, bool perform);
    /// Whether the event is a key of the editor, which has done its work then.
    bool takesKey(QEvent& event);

    Session& session_;
    LotEditor& editor_;
    QWidget& map_;
    ElidedLabel* title_;
    QToolButton* close_;
    QToolBar* tools_;
    std::vector<QAction*> actions_;
    LotVertexModel* model_;
    QTableView* vertices_;
    QLabel* figures_;
    QLabel* warning_;
    QLabel* descriptionLabel_;
    QPlainTextEdit* description_;
    QLabel* tooLong_;
    QCheckBox* transparent_;
    QPushButton* save_;
    QPushButton* saveBack_;
    QPushButton* earth_;
};

}  // namespace campora
