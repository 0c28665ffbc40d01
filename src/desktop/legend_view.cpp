// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/legend_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QVBoxLayout>

#include "desktop/color_list.h"
#include "desktop/qt_text.h"
#include "desktop/section_heading.h"

namespace campora {

LegendView::LegendView(QWidget* parent)
    : QWidget(parent),
      classes_(new ColorList(this)),
      reference_(new ColorList(this)),
      scaleHeading_(new SectionHeading(*classes_)),
      referenceHeading_(new SectionHeading(*reference_)),
      unit_(new QLabel(this)) {
    unit_->setTextFormat(Qt::PlainText);
    unit_->setContentsMargins(0, 0, 2, 0);
    reference_->setVerticalScrollBarPolicy(Qt::ScrollBarAlwaysOff);

    auto* head = new QHBoxLayout;
    head->addWidget(scaleHeading_, 1);
    head->addWidget(unit_);
    auto* column = new QVBoxLayout(this);
    column->setContentsMargins(0, 0, 0, 0);
    column->setSpacing(4);
    column->addLayout(head);
    column->addWidget(classes_, 1);
    column->addWidget(referenceHeading_);
    column->addWidget(reference_);
    setFocusProxy(classes_);
    setTabOrder(classes_, reference_);
}

void LegendView::setContent(const LegendContent& legend) {
    classes_->setRows(legend.classes);
    unit_->setText(toQt(legend.unit));
    reference_->setRows(legend.reference);
    reference_->setFixedHeight(reference_->fullHeight());
}

void LegendView::retranslate(const Texts& texts) {
    scaleHeading_->setTitle(toQt(texts(TextId::ScaleHeading)));
    referenceHeading_->setTitle(toQt(texts(TextId::ReferenceHeading)));
}

}  // namespace campora
