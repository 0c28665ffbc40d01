// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractTableModel>

#include "app/lots/lot_editor.h"
#include "app/map_tools.h"
#include "base/texts.h"

namespace campora {

/// The vertices of the lot that is drawn, one a row, latitude first, in the form of coordinates
/// that the user has chosen.
class LotVertexModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    enum Column { Latitude, Longitude, kColumns };

    /// All of it outlives this; `tools` know the form of coordinates.
    LotVertexModel(const LotEditor& editor, const MapTools& tools, const Texts& texts,
                   QObject* parent = nullptr);

    /// The lot, the language or the form of coordinates has changed.
    void refresh();

    [[nodiscard]] int rowCount(const QModelIndex& parent) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;

private:
    const LotEditor& editor_;
    const MapTools& tools_;
    const Texts& texts_;
    int rows_ = 0;
};

}  // namespace campora
