// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/summary_table.h"

#include <QContextMenuEvent>
#include <QHeaderView>

#include "desktop/platform/qt_text.h"

namespace campora {

SummaryTable::SummaryTable(QWidget* parent) : QTreeWidget(parent) {
    setColumnCount(2);
    setRootIsDecorated(false);
    setUniformRowHeights(true);
    setAlternatingRowColors(true);
    setAllColumnsShowFocus(true);
    header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    header()->setSectionResizeMode(1, QHeaderView::Stretch);
    header()->setMinimumSectionSize(80);
    header()->setSectionsMovable(false);
}

void SummaryTable::setRows(std::span<const SummaryRow> rows) {
    const int before = topLevelItemCount();
    const bool goesOn = before > 0 && startsWithShown(rows);
    clear();
    const QSize roomy(0, fontMetrics().height() + 6);
    for (const SummaryRow& row : rows) {
        auto* item = new QTreeWidgetItem(this, {shownName(row.property), shownName(row.value)});
        item->setSizeHint(1, roomy);
        if (row.isRemark) {
            item->setIcon(1, QIcon(":/icons/remark.svg"));
        }
        item->setToolTip(0, plainToolTip(item->text(0)));
        const QString note = toQt(row.note);
        item->setToolTip(1, plainToolTip(note.isEmpty() ? item->text(1) : note));
        item->setData(1, Qt::AccessibleDescriptionRole, note);
        if (row.edited) {
            QFont font = item->font(1);
            font.setItalic(true);
            font.setBold(true);
            item->setFont(1, font);
        }
    }
    if (goesOn && before < topLevelItemCount()) {
        scrollToItem(topLevelItem(before), PositionAtTop);
    }
}

bool SummaryTable::startsWithShown(std::span<const SummaryRow> rows) const {
    if (static_cast<int>(rows.size()) < topLevelItemCount()) {
        return false;
    }
    for (int i = 0; i < topLevelItemCount(); ++i) {
        const SummaryRow& row = rows[static_cast<std::size_t>(i)];
        const QTreeWidgetItem& shown = *topLevelItem(i);
        if (shown.text(0) != shownName(row.property) || shown.text(1) != shownName(row.value)) {
            return false;
        }
    }
    return true;
}

void SummaryTable::contextMenuEvent(QContextMenuEvent* event) {
    const bool byKey = event->reason() == QContextMenuEvent::Keyboard;
    QTreeWidgetItem* const item =
        byKey ? currentItem() : itemAt(viewport()->mapFromGlobal(event->globalPos()));
    const QPoint place = byKey && item != nullptr
                             ? viewport()->mapToGlobal(visualItemRect(item).center())
                             : event->globalPos();
    emit menuAsked(item != nullptr ? indexOfTopLevelItem(item) : -1, place);
}

void SummaryTable::retranslate(const Texts& texts) {
    setHeaderLabels({toQt(texts(TextId::SummaryProperty)), toQt(texts(TextId::SummaryValue))});
}

}  // namespace campora
