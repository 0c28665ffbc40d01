// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "base/texts.h"

class QSplitter;
class QTabWidget;
class QToolBar;

namespace campora {

class FileListView;
class FindingView;
class LegendView;
class SectionHeading;
class SummaryTable;

/// Beside the map: open files, what is to be said about them (the summary of the selected one, the
/// passes and the problems of all), legend.
class SidePanel final : public QWidget {
public:
    explicit SidePanel(QWidget* parent = nullptr);

    void retranslate(const Texts& texts);

    [[nodiscard]] FileListView& files() const { return *files_; }
    /// The buttons over the file list.
    [[nodiscard]] QToolBar& fileTools() const { return *fileTools_; }
    [[nodiscard]] SummaryTable& summary() const { return *summary_; }
    [[nodiscard]] FindingView& passes() const { return *passes_; }
    [[nodiscard]] FindingView& problems() const { return *problems_; }
    /// Brings the problems to the front.
    void openProblems();
    [[nodiscard]] LegendView& legend() const { return *legend_; }

private:
    void showTip(FindingView& table);

    FileListView* files_;
    QToolBar* fileTools_;
    SummaryTable* summary_;
    FindingView* passes_;
    FindingView* problems_;
    QTabWidget* tables_;
    LegendView* legend_;
    SectionHeading* filesHeading_;
};

}  // namespace campora
