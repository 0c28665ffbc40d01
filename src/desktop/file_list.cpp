// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/file_list.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalBlocker>

#include "desktop/qt_text.h"

namespace campora {

namespace {

/// The picture of a key, or that of "copy" where there is none.
QIcon fileIcon(const std::string& key) {
    QString path = ":/icons/" + toQt(key) + ".svg";
    if (key.empty() || !QFile::exists(path)) {
        path = ":/icons/copy.svg";
    }
    QIcon icon(path);
    icon.addFile(path, {}, QIcon::Selected);  // not tinted by the selection
    return icon;
}

}  // namespace

FileList::FileList(QWidget* parent) : QListWidget(parent) {
    setIconSize({20, 20});
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemSelectionChanged, this,
            [this] { emit rowChosen(selectedRow()); });
    connect(this, &QListWidget::itemDoubleClicked, this, &FileList::zoomAsked);
}

void FileList::setRows(std::span<const FileListRow> rows, std::optional<int> selected) {
    const QSignalBlocker silent(this);
    clear();
    for (const FileListRow& row : rows) {
        auto* item = new QListWidgetItem(fileIcon(row.icon), shownName(row.name), this);
        item->setToolTip(plainToolTip(item->text()));
    }
    if (selected) {
        setCurrentRow(*selected);
    }
}

std::optional<int> FileList::selectedRow() const {
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? std::nullopt : std::optional(row(selected.front()));
}

void FileList::keyPressEvent(QKeyEvent* event) {
    if (selectedRow() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        emit zoomAsked();
        return;
    }
    QListWidget::keyPressEvent(event);
}

void FileList::contextMenuEvent(QContextMenuEvent* event) {
    if (fileMenu_ == nullptr || !selectedRow()) {
        return;
    }
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint place = byKey ? viewport()->mapToGlobal(visualItemRect(currentItem()).center())
                               : event->globalPos();
    fileMenu_->popup(place);
}

}  // namespace campora
