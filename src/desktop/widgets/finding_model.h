// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>

#include <QAbstractTableModel>

#include "app/findings/finding_commands.h"

namespace campora {

/// A table of findings as the toolkit shows it: nothing is copied, cells are put into words when
/// they are painted.
class FindingModel final : public QAbstractTableModel {
    Q_OBJECT

public:
    /// `commands` outlive it.
    FindingModel(FindingCommands& commands, FindingTable::Kind kind, QObject* parent);

    /// Looks for the findings of the work as it is now.
    void load();
    /// Shows no rows until it is loaded.
    void forget();
    [[nodiscard]] const FindingTable* table() const { return table_.get(); }

    [[nodiscard]] int rowCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] int columnCount(const QModelIndex& parent = {}) const override;
    [[nodiscard]] QVariant data(const QModelIndex& index, int role) const override;
    [[nodiscard]] QVariant headerData(int section, Qt::Orientation orientation,
                                      int role) const override;
    void sort(int column, Qt::SortOrder order) override;

private:
    FindingCommands& commands_;
    FindingTable::Kind kind_;
    std::shared_ptr<const FindingTable> table_;
};

}  // namespace campora
