// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QDialog>

#include "app/open/work_orders_browser.h"

class QComboBox;
class QFileSystemModel;
class QGroupBox;
class QListWidget;
class QProgressBar;
class QPushButton;
class QTreeView;
class QTreeWidget;

namespace campora {

/// Folders on the left, their work orders on the right, the preview of the selected order below.
class WorkOrdersDialog final : public QDialog {
public:
    /// All of it outlives the dialog.
    WorkOrdersDialog(OpenMap& map, MapDisplay& display, MapTools& tools, const Services& services,
                     QWidget* parent);

    /// Opens the dialog modally on a folder.
    void showOpen(const std::string& path);
    /// The same on the folder of the order opened last.
    void showOpen() { showOpen(browser_.startFolder()); }

    /// While files are being opened it only stops that; otherwise everything is as it was before.
    void reject() override;

private:
    using Action = void (WorkOrdersDialog::*)();

    [[nodiscard]] QWidget* makeFolders();
    [[nodiscard]] QWidget* makeOrders();
    [[nodiscard]] QWidget* makePreview();
    [[nodiscard]] QLayout* makeButtons();
    QPushButton* makeButton(const char* name, TextId text, TextId tip, Action action);
    [[nodiscard]] QString word(TextId id) const;

    void goTo(const QString& folder);
    void showFolder(const QString& folder);
    void showOrders();
    void selectOrder();
    void openOrder();
    void addOrder();
    void copyOrder();
    void toggleView();
    /// Opens the files of the selected order; false when the user stopped it.
    bool openFiles();
    void setBusy(bool busy);
    void enableButtons();

    const Texts& texts_;
    Clock& clock_;
    WorkOrdersBrowser browser_;
    QFileSystemModel* model_;
    QComboBox* drives_;
    QTreeView* folders_;
    QTreeWidget* orders_;
    QWidget* preview_ = nullptr;
    QComboBox* comboPrev_;
    QListWidget* files_;
    QProgressBar* progress_;
    QPushButton* cmdOpen_ = nullptr;
    QPushButton* cmdAdd_ = nullptr;
    QPushButton* cmdCopy_ = nullptr;
    QPushButton* cmdView_ = nullptr;
    bool busy_ = false;
    bool stopped_ = false;
};

}  // namespace campora
