// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The panel that stands beside the map while a lot is drawn.

#include <algorithm>

#include <QLayout>

#include "desktop/lot_panel.h"
#include "desktop/main_window.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "desktop/widgets/side_panel.h"

namespace campora {

namespace {

/// Width from which the window has room for both panels beside the map, in logical pixels.
constexpr int kRoomForBoth = 900;

}  // namespace

void MainWindow::makeLotPanel() {
    lotPanel_ = new LotPanel(*session_, mapArea_->map(), this);
    lotPanel_->hide();
    centralWidget()->layout()->itemAt(0)->layout()->addWidget(lotPanel_);
}

bool MainWindow::hasRoomForSidePanel() const {
    return lotPanel_ == nullptr || lotPanel_->isHidden() || width() >= kRoomForBoth;
}

void MainWindow::arrangePanels() {
    const bool shows = sidePanelWanted_ && hasRoomForSidePanel();
    if (shows == sidePanel_->isHidden()) {
        sidePanel_->setVisible(shows);
        commandsChanged();
    }
}

void MainWindow::showLotPanel() {
    const bool open = session_->lotEditor().isOpen();
    if (open != lotPanel_->isHidden()) {
        if (open) {
            lotPanel_->refresh();  // the form of coordinates may have changed
        }
        return;
    }
    session_->display().keepingPlace([this, open] {
        lotPanel_->setVisible(open);
        arrangePanels();
        centralWidget()->layout()->activate();  // the map has its new size now and shows all
    });
    mapArea_->map().setFocus();
}

}  // namespace campora
