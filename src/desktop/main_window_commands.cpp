// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The commands of the window that open dialogs, and the menus whose entries follow the work.

#include <utility>

#include <QAction>
#include <QMenu>

#include "app/settings.h"
#include "base/paths.h"
#include "desktop/dialogs/about_dialog.h"
#include "desktop/dialogs/check_dialog.h"
#include "desktop/dialogs/compare_dialog.h"
#include "desktop/dialogs/coord_dialog.h"
#include "desktop/dialogs/dose_column_dialog.h"
#include "desktop/dialogs/page_printer.h"
#include "desktop/dialogs/print_preview.h"
#include "desktop/dialogs/select_dose_dialog.h"
#include "desktop/dialogs/shp_export_dialog.h"
#include "desktop/dialogs/summary_editor_dialog.h"
#include "desktop/dialogs/work_orders_dialog.h"
#include "desktop/keys_dialog.h"
#include "desktop/main_window.h"
#include "desktop/platform/pointer_override.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/map_area.h"
#include "desktop/widgets/map_widget.h"
#include "desktop/widgets/side_panel.h"
#include "desktop/widgets/time_strip_view.h"
#include "paint/picture_file.h"

namespace campora {

namespace {

/// A file or folder name in a menu, where "&" marks a key.
QString asMenuEntry(std::string_view text) {
    return shownName(text).replace("&", "&&");
}

}  // namespace

void MainWindow::perform(const ActionRow& row) {
    session_->tools().hideResult();
    {
        std::optional<PointerOverride> busy;
        if (row.isSlow) {
            busy.emplace(Qt::WaitCursor);
        }
        row.run(*this);
    }
    commandsChanged();
}

void MainWindow::openPaths(const std::vector<std::string>& paths, bool inPlaceOfOthers) {
    const PointerOverride busy(Qt::WaitCursor);
    session_->fileCommands().openPaths(paths, inPlaceOfOthers);
}

void MainWindow::openWorkOrders() {
    WorkOrdersDialog dialog(session_->map(), session_->display(), session_->tools(), services_,
                            this);
    dialog.showOpen();
}

void MainWindow::openSummaryMenu(int row, QPoint place) {
    SummaryCommands& summary = session_->summaryCommands();
    auto* const menu = new QMenu(this);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [&](TextId text, bool enabled, auto run) {
        QAction* const entry = menu->addAction(toQt(session_->texts()(text)), this, run);
        entry->setEnabled(enabled);
    };
    add(TextId::BackToMeasured, summary.isEdited(row),
        [&summary, row] { summary.backToMeasured(row); });
    add(TextId::MeasuredAll, summary.hasEdits(), [&summary] { summary.backToMeasured(); });
    add(TextId::ActionEditSummary, summary.canEdit(), [&summary] { summary.edit(); });
    menu->popup(place);
}

void MainWindow::goToCoordinate() {
    CoordDialog dialog(this, session_->map().desk(), session_->tools().coordType());
    if (const std::optional<LonLat> position = dialog.showInput()) {
        if (!session_->tools().goTo(*position)) {
            session_->map().desk().tell({TextId::PositionOffTheMap, {}}, MessageIcon::Information);
        }
    }
}

void MainWindow::compareDoses() {
    CompareDialog(session_->findings().comparison, session_->texts(), services_.clipboard, this)
        .exec();
}

void MainWindow::setUpPage() {
    static_cast<void>(
        PagePrinter(session_->map(), session_->display(), services_, this).setUpPage());
}

void MainWindow::printPreview() {
    PrintPreview(session_->map(), session_->display(), services_, this).exec();
}

void MainWindow::print() {
    PagePrinter(session_->map(), session_->display(), services_, this).print();
}

void MainWindow::leaveTool() {
    session_->tools().escape();
    mapArea_->map().setFocus();
}

void MainWindow::showKeys() {
    KeysDialog(session_->texts(), this).exec();
}

void MainWindow::showAbout() {
    AboutDialog(session_->texts(), services_.clipboard, this).exec();
}

void MainWindow::useTool(ToolId tool) {
    session_->tools().toggleTool(tool);
    mapArea_->map().setFocus();
}

void MainWindow::toggleSidePanel() {
    sidePanelWanted_ = sidePanel_->isHidden();
    arrangePanels();
}

bool MainWindow::sidePanelShown() const {
    return !sidePanel_->isHidden();
}

void MainWindow::toggleFullScreen() {
    setWindowState(windowState() ^ Qt::WindowFullScreen);
}

void MainWindow::stepProblem(bool forward) {
    sidePanel_->openProblems();
    session_->findings().tables.stepProblem(forward);
}

void MainWindow::toggleTimeStrip() {
    timeStripWanted_ = !timeStripWanted_;
    writeSwitch(services_.settings, SettingId::TimeStrip, timeStripWanted_);
    showTimeStrip();
    if (timeStripWanted_) {
        timeStrip_->setFocus();
    } else {
        mapArea_->map().setFocus();
    }
}

void MainWindow::connectMenus() {
    session_->prescCommands().chooseChannels = [this] {
        return DoseColumnDialog(session_->map(), services_, this).choose();
    };
    session_->prescCommands().showCheck = [this](std::unique_ptr<PrescriptionCheckup> checkup) {
        (new CheckDialog(std::move(checkup), session_->texts(), services_.clipboard, this))->show();
    };
    session_->prescCommands().askDose = [this](const ColorScale& scale, float current) {
        return SelectDoseDialog(&scale, current, session_->map().desk(), this).getDosis();
    };
    SummaryCommands& summary = session_->summaryCommands();
    summary.editMeasured = [this](SummaryDraft draft, const SummaryCommands::Keep& keep) {
        editMeasuredSummary(std::move(draft), keep, session_->map().desk(), this);
    };
    summary.editFile = [this](const std::string& path) {
        editSummaryFile(path, session_->map().desk(), this);
    };
    session_->exportCommands().savePicture = savePicture;
    session_->exportCommands().showTrackExport = [this](const std::vector<std::string>& paths) {
        ShpExportDialog(session_->map(), services_.clock, this).exportList(paths);
    };
    connect(&actions_->menu(MenuId::Recent), &QMenu::aboutToShow, this,
            &MainWindow::fillRecentMenu);
    connect(&actions_->menu(MenuId::Channel), &QMenu::aboutToShow, this,
            &MainWindow::fillChannelMenu);
    connect(&actions_->menu(MenuId::Alarms), &QMenu::aboutToShow, this, &MainWindow::fillAlarmMenu);
}

void MainWindow::fillMenus() {
    if (session_ == nullptr) {
        return;
    }
    // Also while closed: a screen reader looks into menus that it does not open.
    fillRecentMenu();
    fillChannelMenu();
    fillAlarmMenu();
}

void MainWindow::fillRecentMenu() {
    QMenu& menu = actions_->menu(MenuId::Recent);
    menu.clear();
    int number = 0;
    for (const std::string& path : session_->fileCommands().recentFiles()) {
        QAction* entry =
            menu.addAction(QString("&%1 ").arg(++number) + asMenuEntry(fileNamePart(path)));
        entry->setToolTip(plainToolTip(shownName(path)));
        // Queued: opening fills this menu anew.
        connect(
            entry, &QAction::triggered, this,
            [this, path] {
                const PointerOverride busy(Qt::WaitCursor);
                session_->fileCommands().openRecent(path);
            },
            Qt::QueuedConnection);
    }
    if (number == 0) {
        menu.addAction(toQt(session_->texts()(TextId::NoRecentFiles)))->setEnabled(false);
    }
    menu.setToolTipsVisible(true);
}

void MainWindow::fillChannelMenu() {
    QMenu& menu = actions_->menu(MenuId::Channel);
    menu.clear();
    ColorModeCommands& modes = session_->colours().modes;
    const auto add = [&](const QString& caption, int channel, auto choose) {
        QAction* entry = menu.addAction(caption, this, choose);
        entry->setCheckable(true);
        entry->setChecked(session_->map().style().selectedChannel == channel);
    };
    add(toQt(session_->texts()(TextId::ChannelTotal)), -1,
        [&modes] { modes.mnuColorScaleSelTotal(); });
    for (int i = 0; i < modes.channelCount(); ++i) {
        add(shownName(modes.channelCaption(i)), i, [&modes, i] { modes.mnuColorScaleSelCH(i); });
    }
}

void MainWindow::fillAlarmMenu() {
    QMenu& menu = actions_->menu(MenuId::Alarms);
    if (alarmActions_.empty()) {
        menu.addSeparator();
    }
    for (QAction* old : std::exchange(alarmActions_, {})) {
        delete old;
    }
    const std::vector<AlarmEntry> entries = session_->colours().modes.alarmEntries();
    for (std::size_t i = 0; i < entries.size(); ++i) {
        if (!entries[i].visible) {
            continue;
        }
        QAction* entry = menu.addAction(toQt(entries[i].caption), this, [this, i] {
            session_->colours().modes.mnuAlarmsAlarm(static_cast<int>(i));
        });
        entry->setCheckable(true);
        entry->setChecked(entries[i].checked);
        entry->setEnabled(mapActive_);
        alarmActions_.push_back(entry);
    }
}

}  // namespace campora
