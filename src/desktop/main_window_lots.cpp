// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// What stands beside and below the map for a while: the panel of a lot that is drawn, the strip.

#include <algorithm>

#include <QLayout>

#include "desktop/lot_panel.h"
#include "desktop/main_window.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "desktop/widgets/side_panel.h"
#include "desktop/widgets/time_strip_view.h"

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

void MainWindow::showTimeStrip() {
    const bool shows = timeStripWanted_ && session_->findings().timeStrip.hasWork();
    if (shows == timeStrip_->isHidden()) {
        session_->display().keepingPlace([this, shows] {
            timeStrip_->setVisible(shows);
            centralWidget()->layout()->activate();
        });
        session_->findings().timeStrip.setShown(shows);
    }
    session_->findings().timeStrip.refresh();
}

}  // namespace campora
