// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/file_list_view.h"

#include <QContextMenuEvent>
#include <QFile>
#include <QKeyEvent>
#include <QMenu>
#include <QSignalBlocker>
#include <QStyledItemDelegate>

#include "desktop/platform/qt_text.h"

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

constexpr int kRemarkRole = Qt::UserRole;

/// Rows as usual, with a mark at the end of those of files with remarks.
class RemarkMarks final : public QStyledItemDelegate {
public:
    using QStyledItemDelegate::QStyledItemDelegate;

    void paint(QPainter* painter, const QStyleOptionViewItem& option,
               const QModelIndex& index) const override {
        QStyledItemDelegate::paint(painter, option, index);
        if (index.data(kRemarkRole).toBool()) {
            mark_.paint(painter, option.rect.adjusted(0, 0, -kMargin, 0),
                        Qt::AlignRight | Qt::AlignVCenter);
        }
    }

protected:
    void initStyleOption(QStyleOptionViewItem* option, const QModelIndex& index) const override {
        QStyledItemDelegate::initStyleOption(option, index);
        if (index.data(kRemarkRole).toBool()) {
            const int room = option->rect.width() - option->decorationSize.width() - kRoom;
            option->text = option->fontMetrics.elidedText(option->text, Qt::ElideMiddle, room);
        }
    }

private:
    static constexpr int kMargin = 4;
    /// For the mark and the margins about text and icon.
    static constexpr int kRoom = 36;
    QIcon mark_{":/icons/remark.svg"};
};

}  // namespace

FileListView::FileListView(QWidget* parent) : QListWidget(parent) {
    setItemDelegate(new RemarkMarks(this));
    setIconSize({20, 20});
    setTextElideMode(Qt::ElideMiddle);
    setUniformItemSizes(true);
    connect(this, &QListWidget::itemSelectionChanged, this,
            [this] { emit rowChosen(selectedRow()); });
    connect(this, &QListWidget::itemDoubleClicked, this, &FileListView::zoomAsked);
}

void FileListView::setRows(std::span<const FileListRow> rows, std::optional<int> selected) {
    const QSignalBlocker silent(this);
    clear();
    for (const FileListRow& row : rows) {
        auto* item = new QListWidgetItem(fileIcon(row.icon), shownName(row.name), this);
        const QString remarks = shownText(row.remarks);
        const QString all = remarks.isEmpty() ? item->text() : item->text() + "\n" + remarks;
        item->setToolTip(plainToolTip(all));
        item->setData(kRemarkRole, !remarks.isEmpty());
        item->setData(Qt::AccessibleTextRole, all);
    }
    if (selected) {
        setCurrentRow(*selected);
    }
}

std::optional<int> FileListView::selectedRow() const {
    const QList<QListWidgetItem*> selected = selectedItems();
    return selected.isEmpty() ? std::nullopt : std::optional(row(selected.front()));
}

void FileListView::keyPressEvent(QKeyEvent* event) {
    if (selectedRow() && (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter)) {
        emit zoomAsked();
        return;
    }
    QListWidget::keyPressEvent(event);
}

void FileListView::contextMenuEvent(QContextMenuEvent* event) {
    if (fileMenu_ == nullptr || !selectedRow()) {
        return;
    }
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    const QPoint place = byKey ? viewport()->mapToGlobal(visualItemRect(currentItem()).center())
                               : event->globalPos();
    fileMenu_->popup(place);
}

}  // namespace campora
