// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/finding_view.h"

#include <algorithm>

#include <QHeaderView>
#include <QKeyEvent>
#include <QPainter>
#include <QScopedValueRollback>

#include "base/numbers.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/finding_model.h"

namespace campora {

namespace {

/// Rows whose cells decide how wide a column is.
constexpr int kRowsMeasured = 100;
constexpr int kWidestColumn = 160;

}  // namespace

FindingView::FindingView(FindingTable::Kind kind, QWidget* parent)
    : QTableView(parent), kind_(kind) {
    setSelectionBehavior(SelectRows);
    setSelectionMode(SingleSelection);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    setShowGrid(false);
    setHorizontalScrollMode(ScrollPerPixel);
    verticalHeader()->hide();
    verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 6);
    horizontalHeader()->setHighlightSections(false);
    horizontalHeader()->setResizeContentsPrecision(kRowsMeasured);
    horizontalHeader()->setDefaultAlignment(Qt::AlignLeft | Qt::AlignVCenter);
}

void FindingView::setCommands(FindingCommands& commands, Clipboard& clipboard) {
    commands_ = &commands;
    clipboard_ = &clipboard;
    model_ = new FindingModel(commands, kind_, this);
    setModel(model_);
    // In the order of the work until someone sorts.
    horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
    setSortingEnabled(true);
    connect(this, &QTableView::doubleClicked, this, &FindingView::zoomToCurrent);
}

void FindingView::retranslate(const Texts& texts) {
    const bool isOfPasses = kind_ == FindingTable::Kind::Passes;
    tip_ = toQt(texts(isOfPasses ? TextId::TipPasses : TextId::TipProblems));
    setAccessibleName(toQt(texts(isOfPasses ? TextId::PassesTab : TextId::ProblemsTab)));
    setAccessibleDescription(tip_);
    if (isVisible()) {
        load();
    }
}

void FindingView::showWork() {
    if (commands_ == nullptr) {
        return;
    }
    const bool isCurrent = commands_->isFound(kind_) && model_->table() != nullptr &&
                           &commands_->table(kind_) == model_->table();
    if (isCurrent) {
        return;
    }
    if (isVisible()) {
        load();
    } else if (model_->table() != nullptr) {
        model_->forget();
        leftOut_.clear();
        if (onTipChanged) {
            onTipChanged();
        }
    }
}

void FindingView::load() {
    if (commands_ == nullptr) {
        return;
    }
    const QScopedValueRollback guard(selecting_, true);
    {
        const PointerOverride busy(Qt::WaitCursor);
        const bool isNew = !commands_->isFound(kind_);
        model_->load();
        if (isNew) {
            horizontalHeader()->setSortIndicator(-1, Qt::AscendingOrder);
        }
    }
    const std::optional<TextId> reason = commands_->whyEmpty(kind_);
    whyEmpty_ = reason ? toQt(model_->table()->texts()(*reason)) : QString();
    const FindingTable& found = *model_->table();
    leftOut_ = found.turns() == 0
                   ? QString()
                   : toQt(found.texts().format(TextId::TurnsLeftOut, {numberText(found.turns())}));
    setAccessibleDescription(reason ? whyEmpty_ : tip());
    if (onTipChanged) {
        onTipChanged();
    }
    arrangeColumns();
    showSelected();
}

void FindingView::arrangeColumns() {
    resizeColumnsToContents();
    for (int column = 0; column < model_->columnCount(); ++column) {
        setColumnWidth(column, std::min(columnWidth(column), kWidestColumn));
    }
    // One file needs no name.
    setColumnHidden(0, model_->table()->fileCount() < 2);
}

void FindingView::showSelected() {
    const QScopedValueRollback guard(selecting_, true);
    const std::optional<std::size_t> row = commands_->selected(kind_);
    if (model_->table() == nullptr) {
        return;
    }
    if (!row) {
        clearSelection();
        return;
    }
    const int column = std::max(currentIndex().column(), isColumnHidden(0) ? 1 : 0);
    setCurrentIndex(model_->index(static_cast<int>(*row), column));
    selectRow(static_cast<int>(*row));
    scrollTo(currentIndex());
}

/// Ctrl+C means the table while it has the focus, and not the picture of the map.
bool FindingView::event(QEvent* event) {
    if (event->type() == QEvent::ShortcutOverride &&
        static_cast<QKeyEvent*>(event)->matches(QKeySequence::Copy)) {
        event->accept();
        return true;
    }
    return QTableView::event(event);
}

void FindingView::showEvent(QShowEvent* event) {
    QTableView::showEvent(event);
    showWork();
    if (commands_ != nullptr && !event->spontaneous()) {
        commands_->select(kind_, commands_->selected(kind_));
    }
}

/// Who looks at something else looks for no stretch.
void FindingView::hideEvent(QHideEvent* event) {
    QTableView::hideEvent(event);
    if (commands_ != nullptr && !event->spontaneous()) {
        commands_->hideStretch();
    }
}

void FindingView::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        if (model_->table() != nullptr) {
            clipboard_->setText(model_->table()->asText());
        }
    } else if (event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter) {
        zoomToCurrent();
    } else if (event->key() == Qt::Key_Space) {
        sortByCurrentColumn();
    } else {
        QTableView::keyPressEvent(event);
    }
}

void FindingView::paintEvent(QPaintEvent* event) {
    QTableView::paintEvent(event);
    if (model_ == nullptr || model_->rowCount() > 0) {
        return;
    }
    QPainter painter(viewport());
    painter.setPen(palette().color(QPalette::PlaceholderText));
    painter.drawText(viewport()->rect(), Qt::AlignCenter | Qt::TextWordWrap, whyEmpty_);
}

void FindingView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
    QTableView::currentChanged(current, previous);
    if (!selecting_ && current.isValid() && commands_->isFound(kind_)) {
        commands_->select(kind_, static_cast<std::size_t>(current.row()));
    }
}

void FindingView::sortByCurrentColumn() {
    const int column = currentIndex().column();
    if (column < 0) {
        return;
    }
    const QHeaderView& header = *horizontalHeader();
    const bool again = header.sortIndicatorSection() == column &&
                       header.sortIndicatorOrder() == Qt::AscendingOrder;
    sortByColumn(column, again ? Qt::DescendingOrder : Qt::AscendingOrder);
    showSelected();
}

void FindingView::zoomToCurrent() {
    if (currentIndex().isValid() && commands_->isFound(kind_)) {
        commands_->zoomTo(kind_, static_cast<std::size_t>(currentIndex().row()));
    }
}

}  // namespace campora
