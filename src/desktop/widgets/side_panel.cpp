// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/side_panel.h"

#include <QSplitter>
#include <QTabBar>
#include <QTabWidget>
#include <QToolBar>
#include <QToolButton>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/file_list_view.h"
#include "desktop/widgets/finding_view.h"
#include "desktop/widgets/legend_view.h"
#include "desktop/widgets/section_heading.h"
#include "desktop/widgets/summary_table.h"

namespace campora {

namespace {

constexpr int kSpacing = 4;

/// For a tab, whose tip a screen reader reads out: rich text would break its lines, and be read
/// with its marks.
QString inLines(QString text) {
    constexpr qsizetype kShortest = 60;
    qsizetype from = 0;
    for (qsizetype blank = 0; (blank = text.indexOf(' ', from + kShortest)) >= 0; from = blank) {
        text[blank] = '\n';
    }
    return text;
}

/// A part of the panel: its widgets one below the other, the last one growing.
QWidget* section(std::initializer_list<QWidget*> widgets) {
    auto* part = new QWidget;
    auto* column = new QVBoxLayout(part);
    column->setContentsMargins(0, 0, 0, kSpacing);
    column->setSpacing(kSpacing);
    for (QWidget* widget : widgets) {
        column->addWidget(widget);
    }
    return part;
}

}  // namespace

SidePanel::SidePanel(QWidget* parent)
    : QWidget(parent),
      files_(new FileListView),
      fileTools_(new QToolBar),
      summary_(new SummaryTable),
      passes_(new FindingView(FindingTable::Kind::Passes)),
      problems_(new FindingView(FindingTable::Kind::Problems)),
      tables_(new QTabWidget),
      legend_(new LegendView),
      filesHeading_(new SectionHeading(*files_)) {
    fileTools_->setIconSize({18, 18});
    fileTools_->setContentsMargins(0, 0, 0, 0);
    files_->setMinimumHeight(52);
    summary_->setMinimumHeight(72);
    tables_->setDocumentMode(true);
    // The toolkit names its buttons that scroll tabs in a language of its own.
    for (QToolButton* button : tables_->tabBar()->findChildren<QToolButton*>()) {
        button->setObjectName(QString());
        button->setAccessibleName(QString());
    }
    for (QWidget* table : std::initializer_list<QWidget*>{summary_, passes_, problems_}) {
        tables_->addTab(table, QString());
    }
    for (FindingView* table : {passes_, problems_}) {
        table->onTipChanged = [this, table] { showTip(*table); };
    }

    auto* parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(section({filesHeading_, fileTools_, files_}));
    parts->addWidget(section({tables_}));
    parts->addWidget(legend_);
    parts->setSizes({200, 290, 290});

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kSpacing, 2 * kSpacing, 2 * kSpacing, kSpacing);
    column->addWidget(parts);
    setMinimumWidth(240);
    setTabOrder(files_, tables_);
    setTabOrder(tables_, legend_);
}

void SidePanel::retranslate(const Texts& texts) {
    filesHeading_->setTitle(toQt(texts(TextId::FilesHeading)));
    const std::pair<QWidget*, TextId> tabs[] = {{summary_, TextId::SummaryHeading},
                                                {passes_, TextId::PassesTab},
                                                {problems_, TextId::ProblemsTab}};
    for (const auto& [table, name] : tabs) {
        tables_->setTabText(tables_->indexOf(table), toQt(texts(name)));
    }
    summary_->setAccessibleName(toQt(texts(TextId::SummaryHeading)));
    const QString tables = toQt(texts(TextId::WorkTables));
    tables_->setAccessibleName(tables);
    tables_->tabBar()->setAccessibleName(tables);
    for (FindingView* table : {passes_, problems_}) {
        table->retranslate(texts);
        showTip(*table);
    }
    fileTools_->setAccessibleName(toQt(texts(TextId::FileTools)));
    summary_->retranslate(texts);
    legend_->retranslate(texts);
}

void SidePanel::showTip(FindingView& table) {
    tables_->setTabToolTip(tables_->indexOf(&table), inLines(table.tip()));
}

void SidePanel::openProblems() {
    tables_->setCurrentWidget(problems_);
}

}  // namespace campora
