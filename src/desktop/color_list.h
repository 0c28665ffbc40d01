// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include <QListWidget>

#include "platform/main_window_controls.h"

namespace campora {

/// Rows of a colour and what it means.
class ColorList final : public QListWidget {
public:
    explicit ColorList(QWidget* parent = nullptr);

    void setRows(std::span<const LegendRow> rows);
    /// The height that shows all rows.
    [[nodiscard]] int fullHeight() const;
};

}  // namespace campora
