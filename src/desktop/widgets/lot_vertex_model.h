// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>

#include "app/session.h"

namespace campora {

/// The vertices of the lot that is drawn, one a row, latitude first, in the form of coordinates
/// that the user has chosen.
class LotVertexModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Latitude, Longitude, kColumns };

    /// `session` outlives this.
    explicit LotVertexModel(const Session& session, QObject* parent = nullptr);

    /// The lot, the language or the form of coordinates has changed.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    const Session& session_;
    int rows_ = 0;
};

}  // namespace campora
