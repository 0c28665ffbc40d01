// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "base/texts.h"

class QSplitter;
class QToolBar;

namespace campora {

class FileListView;
class LegendView;
class SectionHeading;
class SummaryTable;

/// Beside the map: open files, summary of the selected one, legend.
class SidePanel final : public QWidget {
public:
    explicit SidePanel(QWidget* parent = nullptr);

    void retranslate(const Texts& texts);

    [[nodiscard]] FileListView& files() const { return *files_; }
    /// The buttons over the file list.
    [[nodiscard]] QToolBar& fileTools() const { return *fileTools_; }
    [[nodiscard]] SummaryTable& summary() const { return *summary_; }
    [[nodiscard]] LegendView& legend() const { return *legend_; }

private:
    FileListView* files_;
    QToolBar* fileTools_;
    SummaryTable* summary_;
    LegendView* legend_;
    SectionHeading* filesHeading_;
    SectionHeading* summaryHeading_;
};

}  // namespace campora
