// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/side_panel.h"

#include <QSplitter>
#include <QToolBar>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/file_list_view.h"
#include "desktop/widgets/legend_view.h"
#include "desktop/widgets/section_heading.h"
#include "desktop/widgets/summary_table.h"

namespace campora {

namespace {

constexpr int kSpacing = 4;

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
      legend_(new LegendView),
      filesHeading_(new SectionHeading(*files_)),
      summaryHeading_(new SectionHeading(*summary_)) {
    fileTools_->setIconSize({18, 18});
    fileTools_->setContentsMargins(0, 0, 0, 0);
    files_->setMinimumHeight(52);
    summary_->setMinimumHeight(72);

    auto* parts = new QSplitter(Qt::Vertical);
    parts->setChildrenCollapsible(false);
    parts->addWidget(section({filesHeading_, fileTools_, files_}));
    parts->addWidget(section({summaryHeading_, summary_}));
    parts->addWidget(legend_);
    parts->setSizes({200, 290, 290});

    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(kSpacing, 2 * kSpacing, 2 * kSpacing, kSpacing);
    column->addWidget(parts);
    setMinimumWidth(240);
    setTabOrder(files_, summary_);
    setTabOrder(summary_, legend_);
}

void SidePanel::retranslate(const Texts& texts) {
    filesHeading_->setTitle(toQt(texts(TextId::FilesHeading)));
    summaryHeading_->setTitle(toQt(texts(TextId::SummaryHeading)));
    fileTools_->setAccessibleName(toQt(texts(TextId::FileTools)));
    summary_->retranslate(texts);
    legend_->retranslate(texts);
}

}  // namespace campora
