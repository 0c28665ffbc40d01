// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <span>
#include <string>
#include <vector>

#include <QTableWidget>

#include "app/named_figure.h"
#include "base/texts.h"
#include "platform/clipboard.h"

namespace campora {

/// A table that is read: rows are selected as a whole, and Ctrl+C copies those selected, or all,
/// with their headings, as a spreadsheet takes them.
class CopiedTable final : public QTableWidget {
    Q_OBJECT

public:
    /// `name`: of the object; `title`: for a screen reader. `clipboard` outlives it.
    CopiedTable(const char* name, const QString& title, Clipboard& clipboard, QWidget* parent);

    /// `figuresFrom`: the first of the columns that stand at the right of their cells.
    void setContent(const std::vector<std::string>& columns,
                    std::span<const std::vector<std::string>> rows, int figuresFrom);
    /// Two columns, the second as wide as there is room.
    void setFigures(const Texts& texts, std::span<const NamedFigure> figures);
    /// The headings and the rows, tabs between the cells; with `selected`, only selected rows.
    [[nodiscard]] std::string asText(bool selected) const;

protected:
    void keyPressEvent(QKeyEvent* event) override;

private:
    Clipboard& clipboard_;
};

}  // namespace campora
