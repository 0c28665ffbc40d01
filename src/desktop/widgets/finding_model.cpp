// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/finding_model.h"

#include "desktop/platform/qt_text.h"

namespace campora {

FindingModel::FindingModel(FindingCommands& commands, FindingTable::Kind kind, QObject* parent)
    : QAbstractTableModel(parent), commands_(commands), kind_(kind) {}

void FindingModel::load() {
    beginResetModel();
    table_ = commands_.sharedTable(kind_);
    endResetModel();
}

void FindingModel::forget() {
    beginResetModel();
    table_.reset();
    endResetModel();
}

int FindingModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() || table_ == nullptr ? 0 : static_cast<int>(table_->rowCount());
}

int FindingModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() || table_ == nullptr ? 0 : static_cast<int>(table_->columns().size());
}

QVariant FindingModel::data(const QModelIndex& index, int role) const {
    if (!index.isValid() || index.row() >= rowCount()) {
        return {};
    }
    const auto column = static_cast<std::size_t>(index.column());
    switch (role) {
    case Qt::DisplayRole:
        return toQt(table_->cell(static_cast<std::size_t>(index.row()), column));
    case Qt::ToolTipRole:
        return plainToolTip(toQt(table_->cell(static_cast<std::size_t>(index.row()), column)));
    case Qt::TextAlignmentRole:
        return QVariant(Qt::AlignVCenter |
                        (table_->isFigure(column) ? Qt::AlignRight : Qt::AlignLeft));
    default:
        return {};
    }
}

QVariant FindingModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole || orientation != Qt::Horizontal || section >= columnCount()) {
        return {};
    }
    return toQt(table_->heading(static_cast<std::size_t>(section)));
}

void FindingModel::sort(int column, Qt::SortOrder order) {
    if (column < 0 || column >= columnCount() || !commands_.isFound(kind_)) {
        return;
    }
    emit layoutAboutToBeChanged();
    commands_.sortBy(kind_, static_cast<std::size_t>(column), order == Qt::DescendingOrder);
    emit layoutChanged();
}

}  // namespace campora
