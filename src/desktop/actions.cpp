// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/actions.h"

#include <algorithm>
#include <iterator>

#include <QAction>
#include <QIcon>
#include <QMenu>
#include <QMenuBar>
#include <QToolBar>

#include "desktop/main_window.h"
#include "desktop/qt_text.h"

namespace campora {

namespace {

struct MenuRow {
    MenuId id;
    TextId text;
    /// The menu that holds it; the menu bar holds a menu that is its own parent.
    MenuId parent;
};

constexpr MenuRow kMenus[] = {
    {MenuId::File, TextId::MenuFile, MenuId::File},
    {MenuId::SelectedFile, TextId::MenuSelectedFile, MenuId::File},
    {MenuId::Edit, TextId::MenuEdit, MenuId::Edit},
    {MenuId::View, TextId::MenuView, MenuId::View},
};

// clang-format off
constexpr ActionRow kActions[] = {
    {.text = TextId::ActionOpen, .tooltip = TextId::TipOpen, .icon = "open", .shortcuts = "Ctrl+O",
     .menu = MenuId::File, .toolPlace = ToolPlace::Main, .run = &MainWindow::openFile},
    {.text = TextId::FileUp, .tooltip = TextId::TipFileUp, .icon = "up", .shortcuts = "Ctrl+Up",
     .menu = MenuId::SelectedFile, .toolPlace = ToolPlace::FileList, .needs = Needs::SelectedFile,
     .run = &MainWindow::moveFileUp},
    {.text = TextId::FileDown, .tooltip = TextId::TipFileDown, .icon = "down",
     .shortcuts = "Ctrl+Down", .menu = MenuId::SelectedFile, .toolPlace = ToolPlace::FileList,
     .needs = Needs::SelectedFile, .run = &MainWindow::moveFileDown},
    {.text = TextId::FileTop, .tooltip = TextId::TipFileTop, .icon = "top",
     .shortcuts = "Ctrl+Shift+Up", .menu = MenuId::SelectedFile, .toolPlace = ToolPlace::FileList,
     .needs = Needs::SelectedFile, .run = &MainWindow::moveFileToTop},
    {.text = TextId::FileBottom, .tooltip = TextId::TipFileBottom, .icon = "bottom",
     .shortcuts = "Ctrl+Shift+Down", .menu = MenuId::SelectedFile,
     .toolPlace = ToolPlace::FileList, .needs = Needs::SelectedFile,
     .run = &MainWindow::moveFileToBottom},
    {.text = TextId::FileZoom, .tooltip = TextId::TipFileZoom, .icon = "zoom-file",
     .shortcuts = "Ctrl+1", .menu = MenuId::SelectedFile, .opensGroup = true,
     .toolPlace = ToolPlace::FileList, .needs = Needs::SelectedFile,
     .run = &MainWindow::zoomToFile},
    {.text = TextId::FileUnload, .tooltip = TextId::TipFileUnload, .icon = "remove",
     .shortcuts = "Del", .menu = MenuId::SelectedFile, .opensGroup = true,
     .toolPlace = ToolPlace::FileList, .needs = Needs::SelectedFile,
     .run = &MainWindow::unloadFile},
    {.text = TextId::ActionQuit, .tooltip = TextId::TipQuit, .icon = "quit", .shortcuts = "Ctrl+Q",
     .menu = MenuId::File, .opensGroup = true, .run = &MainWindow::quit},
    {.text = TextId::ActionCopyData, .tooltip = TextId::TipCopyData, .icon = "copy-data",
     .shortcuts = "Ctrl+Shift+C", .menu = MenuId::Edit, .opensGroup = true,
     .toolPlace = ToolPlace::Main, .needs = Needs::OpenFiles, .run = &MainWindow::copyData},
    {.text = TextId::ActionZoomIn, .tooltip = TextId::ZoomIn, .icon = "zoom-in",
     .shortcuts = "+ Ctrl++ = Ctrl+=", .menu = MenuId::View, .opensGroup = true,
     .toolPlace = ToolPlace::Main, .needs = Needs::OpenFiles, .run = &MainWindow::zoomIn},
    {.text = TextId::ActionZoomOut, .tooltip = TextId::ZoomOut, .icon = "zoom-out",
     .shortcuts = "- Ctrl+-", .menu = MenuId::View, .toolPlace = ToolPlace::Main,
     .needs = Needs::OpenFiles, .run = &MainWindow::zoomOut},
    {.text = TextId::ActionZoomFit, .tooltip = TextId::ZoomFit, .icon = "zoom-fit",
     .shortcuts = "Ctrl+0", .menu = MenuId::View, .toolPlace = ToolPlace::Main,
     .needs = Needs::OpenFiles, .run = &MainWindow::zoomFit},
    {.text = TextId::ActionSidePanel, .tooltip = TextId::TipSidePanel, .icon = "side-panel",
     .shortcuts = "F9", .menu = MenuId::View, .opensGroup = true, .toolPlace = ToolPlace::Main,
     .run = &MainWindow::toggleSidePanel, .isOn = &MainWindow::sidePanelShown},
};
// clang-format on

QToolBar* toolBarOf(ToolPlace place, QToolBar& mainTools, QToolBar& fileTools) {
    switch (place) {
    case ToolPlace::Main:
        return &mainTools;
    case ToolPlace::FileList:
        return &fileTools;
    case ToolPlace::None:
        break;
    }
    return nullptr;
}

QList<QKeySequence> keysOf(const ActionRow& row) {
    QList<QKeySequence> keys;
    for (const QString& key : QString(row.shortcuts).split(' ', Qt::SkipEmptyParts)) {
        keys += QKeySequence(key, QKeySequence::PortableText);
    }
    return keys;
}

void addTo(QWidget& bar, QAction& action, bool opensGroup) {
    if (opensGroup && !bar.actions().isEmpty()) {
        auto* line = new QAction(&bar);
        line->setSeparator(true);
        bar.addAction(line);
    }
    bar.addAction(&action);
}

}  // namespace

std::span<const ActionRow> actionRows() {
    return kActions;
}

ActionSet::ActionSet(MainWindow& window, QMenuBar& menuBar, QToolBar& mainTools,
                     QToolBar& fileTools)
    : window_(window), menuBar_(menuBar) {
    for (const ActionRow& row : kActions) {
        QAction* action = makeAction(row);
        actions_.push_back(action);
        addTo(menu(row.menu), *action, row.opensGroup);
        if (QToolBar* bar = toolBarOf(row.toolPlace, mainTools, fileTools)) {
            addTo(*bar, *action, row.opensGroup);
        }
    }
}

QAction* ActionSet::makeAction(const ActionRow& row) {
    auto* action = new QAction(QIcon(QString(":/icons/%1.svg").arg(row.icon)), {}, &window_);
    action->setShortcuts(keysOf(row));
    action->setEnabled(row.needs == Needs::Nothing);
    action->setCheckable(row.isOn != nullptr);
    QObject::connect(action, &QAction::triggered, &window_, row.run);
    return action;
}

QMenu& ActionSet::menu(MenuId id) {
    if (const auto found = menus_.find(id); found != menus_.end()) {
        return *found->second;
    }
    const auto* const row = std::find_if(std::begin(kMenus), std::end(kMenus),
                                         [id](const MenuRow& r) { return r.id == id; });
    QMenu* made =
        row->parent == id ? menuBar_.addMenu(QString()) : menu(row->parent).addMenu(QString());
    menus_[id] = made;
    return *made;
}

void ActionSet::retranslate(const Texts& texts) {
    for (const MenuRow& row : kMenus) {
        menu(row.id).setTitle(toQt(texts(row.text)));
    }
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        QAction& action = *actions_[i];
        QString tip = toQt(texts(kActions[i].tooltip));
        if (!action.shortcut().isEmpty()) {
            tip += " (" + action.shortcut().toString(QKeySequence::NativeText) + ")";
        }
        action.setText(toQt(texts(kActions[i].text)));
        action.setToolTip(tip);
    }
}

void ActionSet::setEnabled(Needs needs, bool enabled) {
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        if (kActions[i].needs == needs) {
            actions_[i]->setEnabled(enabled);
        }
    }
}

void ActionSet::showStates() {
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        if (kActions[i].isOn != nullptr) {
            actions_[i]->setChecked((window_.*kActions[i].isOn)());
        }
    }
}

}  // namespace campora
