// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/legend_view.h"

#include <QHBoxLayout>
#include <QLabel>
#include <QMenu>
#include <QVBoxLayout>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/color_list.h"
#include "desktop/widgets/legend_menu.h"
#include "desktop/widgets/section_heading.h"

namespace campora {

LegendView::LegendView(QWidget* parent)
    : QWidget(parent),
      classes_(new ColorList(this)),
      reference_(new ColorList(this)),
      scaleHeading_(new SectionHeading(*classes_)),
      referenceHeading_(new SectionHeading(*reference_)),
      unit_(new QLabel(this)),
      remark_(new QLabel(this)),
      spread_(new QPushButton(this)) {
    unit_->setTextFormat(Qt::PlainText);
    remark_->setObjectName("legendRemark");
    remark_->setTextFormat(Qt::PlainText);
    remark_->setWordWrap(true);
    spread_->setObjectName("legendSpread");
    connect(spread_, &QPushButton::clicked, this, [this] {
        if (commands_ != nullptr) {
            commands_->spreadClasses(true);
        }
    });
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
    column->addWidget(remark_);
    column->addWidget(spread_, 0, Qt::AlignLeft);
    column->addWidget(referenceHeading_);
    column->addWidget(reference_);
    column->addStretch(0);  // keeps what is left at the top while there is no scale
    connect(classes_, &ColorList::menuAsked, this, &LegendView::openMenu);
    // Later: the answer rebuilds the rows, which the list must not be handling any more.
    connect(classes_, &ColorList::rowOpened, this, &LegendView::openClass, Qt::QueuedConnection);
    setFocusProxy(classes_);
    setTabOrder(classes_, reference_);
}

void LegendView::setContent(const LegendContent& legend) {
    legend_ = legend;
    showRows();
}

void LegendView::retranslate(const Texts& texts) {
    texts_ = &texts;
    scaleHeading_->setTitle(toQt(texts(TextId::ScaleHeading)));
    scaleHeading_->setToolTip(toQt(texts(TextId::LegendKeys)));
    classes_->setAccessibleDescription(toQt(texts(TextId::LegendKeys)));
    spread_->setToolTip(toQt(texts(TextId::TipSpreadClasses)));
    referenceHeading_->setTitle(toQt(texts(TextId::ReferenceHeading)));
    showRows();
}

void LegendView::showRows() {
    const QString colorForm = texts_ != nullptr ? toQt((*texts_)(TextId::LegendColor)) : "%1";
    classes_->setRows(legend_.classes, toQt(legend_.unit), colorForm);
    unit_->setText(toQt(legend_.unit));
    const bool hasScale = !legend_.classes.empty();
    scaleHeading_->setVisible(hasScale);
    classes_->setVisible(hasScale);
    unit_->setVisible(hasScale);
    remark_->setText(toQt(legend_.remark));
    remark_->setVisible(!legend_.remark.empty());
    spread_->setText(toQt(legend_.offer));
    spread_->setVisible(!legend_.offer.empty());
    reference_->setRows(legend_.reference, {}, colorForm);
    reference_->setFixedHeight(reference_->fullHeight());
}

void LegendView::openMenu(int row, QPoint place) {
    if (commands_ != nullptr && texts_ != nullptr && !legend_.classes.empty()) {
        makeLegendMenu(*this, legend_, row, *commands_, *texts_)->popup(place);
    }
}

void LegendView::openClass(int row) {
    if (commands_ == nullptr) {
        return;
    }
    if (legend_.valuesCanChange && !legend_.classesCanChange) {
        commands_->askClassValue(row);
    } else {
        commands_->chooseClassColor(row);
    }
}

}  // namespace campora
