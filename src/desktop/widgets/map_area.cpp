// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/map_area.h"

#include <algorithm>

#include <QFrame>
#include <QGridLayout>
#include <QScrollBar>
#include <QSignalBlocker>

#include "desktop/platform/qt_text.h"
#include "desktop/widgets/map_widget.h"

namespace campora {

namespace {

/// A bar of the area's grid that keeps its place while hidden.
QScrollBar* makeBar(Qt::Orientation orientation) {
    auto* bar = new QScrollBar(orientation);
    QSizePolicy policy = bar->sizePolicy();
    policy.setRetainSizeWhenHidden(true);
    bar->setSizePolicy(policy);
    return bar;
}

void showState(QScrollBar& bar, const ScrollBarState& state, int page) {
    const QSignalBlocker silent(&bar);
    bar.setRange(0, state.maximum);
    bar.setPageStep(std::max(1, page));
    bar.setSingleStep(std::max(1, page / 10));
    bar.setValue(state.position);
    bar.setVisible(state.visible);
}

}  // namespace

MapArea::MapArea(QWidget* parent)
    : QWidget(parent),
      map_(new MapWidget),
      horizontal_(makeBar(Qt::Horizontal)),
      vertical_(makeBar(Qt::Vertical)) {
    auto* frame = new QFrame;
    frame->setFrameStyle(QFrame::StyledPanel | QFrame::Sunken);
    auto* inside = new QGridLayout(frame);
    inside->setContentsMargins(0, 0, 0, 0);
    inside->addWidget(map_);

    auto* grid = new QGridLayout(this);
    grid->setContentsMargins(8, 8, 0, 4);
    grid->setSpacing(2);
    grid->addWidget(frame, 0, 0);
    grid->addWidget(vertical_, 0, 1);
    grid->addWidget(horizontal_, 1, 0);
    for (QScrollBar* bar : {horizontal_, vertical_}) {
        connect(bar, &QScrollBar::valueChanged, this,
                [this] { emit barsMoved(horizontal_->value(), vertical_->value()); });
    }
}

void MapArea::setScrollBars(const ViewControls& controls, int horizontalPage, int verticalPage) {
    showState(*horizontal_, controls.horizontal, horizontalPage);
    showState(*vertical_, controls.vertical, verticalPage);
}

void MapArea::retranslate(const Texts& texts) {
    map_->retranslate(texts);
    horizontal_->setAccessibleName(toQt(texts(TextId::HorizontalBar)));
    vertical_->setAccessibleName(toQt(texts(TextId::VerticalBar)));
}

}  // namespace campora
