// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/copied_table.h"

#include <QHeaderView>
#include <QKeyEvent>

#include "desktop/platform/qt_text.h"

namespace campora {

CopiedTable::CopiedTable(const char* name, const QString& title, Clipboard& clipboard,
                         QWidget* parent)
    : QTableWidget(parent), clipboard_(clipboard) {
    setObjectName(name);
    setAccessibleName(title);
    setEditTriggers(NoEditTriggers);
    setSelectionBehavior(SelectRows);
    setAlternatingRowColors(true);
    setTabKeyNavigation(false);
    setWordWrap(false);
    verticalHeader()->hide();
    horizontalHeader()->setHighlightSections(false);
}

void CopiedTable::setContent(const std::vector<std::string>& columns,
                             std::span<const std::vector<std::string>> rows, int figuresFrom) {
    clear();
    setColumnCount(static_cast<int>(columns.size()));
    setRowCount(static_cast<int>(rows.size()));
    QStringList headings;
    for (const std::string& column : columns) {
        headings += toQt(column);
    }
    setHorizontalHeaderLabels(headings);
    for (int row = 0; row < rowCount(); ++row) {
        const std::vector<std::string>& cells = rows[static_cast<std::size_t>(row)];
        for (int column = 0; column < columnCount(); ++column) {
            auto* const cell =
                new QTableWidgetItem(shownName(cells[static_cast<std::size_t>(column)]));
            cell->setTextAlignment(Qt::AlignVCenter |
                                   (column >= figuresFrom ? Qt::AlignRight : Qt::AlignLeft));
            setItem(row, column, cell);
        }
    }
    resizeColumnsToContents();
    if (rowCount() > 0) {
        setCurrentCell(0, 0, QItemSelectionModel::NoUpdate);
    }
}

void CopiedTable::setFigures(const Texts& texts, std::span<const NamedFigure> figures) {
    std::vector<std::vector<std::string>> rows;
    for (const NamedFigure& figure : figures) {
        rows.push_back({figure.name, figure.value});
    }
    setContent(
        {std::string(texts(TextId::SummaryProperty)), std::string(texts(TextId::SummaryValue))},
        rows, 1);
    horizontalHeader()->setSectionResizeMode(1, QHeaderView::Stretch);
}

std::string CopiedTable::asText(bool selected) const {
    QString text;
    const auto endLine = [&text] {
        text.chop(1);
        text += "\n";
    };
    for (int column = 0; column < columnCount(); ++column) {
        text += horizontalHeaderItem(column)->text() + "\t";
    }
    endLine();
    for (int row = 0; row < rowCount(); ++row) {
        if (selected && !item(row, 0)->isSelected()) {
            continue;
        }
        for (int column = 0; column < columnCount(); ++column) {
            text += item(row, column)->text() + "\t";
        }
        endLine();
    }
    return toUtf8(text);
}

void CopiedTable::keyPressEvent(QKeyEvent* event) {
    if (event->matches(QKeySequence::Copy)) {
        clipboard_.setText(asText(!selectedItems().empty()));
        return;
    }
    QTableWidget::keyPressEvent(event);
}

}  // namespace campora
