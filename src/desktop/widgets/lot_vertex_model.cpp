// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/lot_vertex_model.h"

#include "desktop/platform/qt_text.h"

namespace campora {

LotVertexModel::LotVertexModel(const LotEditor& editor, const MapTools& tools, const Texts& texts,
                               QObject* parent)
    : QAbstractTableModel(parent), editor_(editor), tools_(tools), texts_(texts) {}

void LotVertexModel::refresh() {
    const int count = static_cast<int>(editor_.draft().vertices().size());
    if (count != rows_) {
        beginResetModel();
        rows_ = count;
        endResetModel();
    } else if (rows_ > 0) {
        emit dataChanged(index(0, 0), index(rows_ - 1, kColumns - 1));
    }
    emit headerDataChanged(Qt::Horizontal, 0, kColumns - 1);
}

int LotVertexModel::rowCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : rows_;
}

int LotVertexModel::columnCount(const QModelIndex& parent) const {
    return parent.isValid() ? 0 : kColumns;
}

QVariant LotVertexModel::data(const QModelIndex& index, int role) const {
    const std::vector<LonLat>& vertices = editor_.draft().vertices();
    const auto row = static_cast<std::size_t>(index.row());
    if (role != Qt::DisplayRole || !index.isValid() || row >= vertices.size()) {
        return {};
    }
    const double value = index.column() == Latitude ? vertices[row].y : vertices[row].x;
    return toQt(formatCoord(value, tools_.coordType())).trimmed();
}

QVariant LotVertexModel::headerData(int section, Qt::Orientation orientation, int role) const {
    if (role != Qt::DisplayRole) {
        return {};
    }
    if (orientation == Qt::Vertical) {
        return section + 1;
    }
    QString text = toQt(texts_(section == Latitude ? TextId::Latitude : TextId::Longitude));
    return text.remove(':');
}

}  // namespace campora
