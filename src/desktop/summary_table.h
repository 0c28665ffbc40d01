// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>

#include <QTreeWidget>

#include "base/texts.h"
#include "platform/main_window_controls.h"

namespace campora {

/// The summary of the selected file: property and value.
class SummaryTable final : public QTreeWidget {
public:
    explicit SummaryTable(QWidget* parent = nullptr);

    void setRows(std::span<const SummaryRow> rows);
    void retranslate(const Texts& texts);
};

}  // namespace campora
