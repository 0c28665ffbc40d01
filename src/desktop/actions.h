// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <span>
#include <vector>

#include <QString>

#include "base/texts.h"

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;

namespace campora {

class MainWindow;

enum class MenuId { File, SelectedFile, Edit, View };
enum class ToolPlace { None, Main, FileList };
/// What must be there before a command can be used.
enum class Needs { Nothing, OpenFiles, SelectedFile };

/// A command of the window as menus, tool bars and tooltips show it.
struct ActionRow {
    TextId text{};
    TextId tooltip{};
    /// Name of a picture in the resources.
    const char* icon = "";
    /// Separated by blanks; the first one is shown in the menu and the tooltip.
    const char* shortcuts = "";
    MenuId menu{};
    /// A line stands before it in its menu and tool bar.
    bool opensGroup = false;
    ToolPlace toolPlace = ToolPlace::None;
    Needs needs = Needs::Nothing;
    void (MainWindow::*run)() = nullptr;
    /// For commands that are on or off: which of the two.
    bool (MainWindow::*isOn)() const = nullptr;
};

/// All commands, in the order of the menus.
[[nodiscard]] std::span<const ActionRow> actionRows();

/// The commands of one window as actions of the toolkit, built from the rows.
class ActionSet {
public:
    /// Makes the actions, which belong to the window, and fills the bars with them.
    ActionSet(MainWindow& window, QMenuBar& menuBar, QToolBar& mainTools, QToolBar& fileTools);

    void retranslate(const Texts& texts);
    void setEnabled(Needs needs, bool enabled);
    /// Shows which commands are on.
    void showStates();
    [[nodiscard]] QMenu& menu(MenuId id);

private:
    QAction* makeAction(const ActionRow& row);

    MainWindow& window_;
    QMenuBar& menuBar_;
    std::map<MenuId, QMenu*> menus_;
    /// One for each row.
    std::vector<QAction*> actions_;
};

}  // namespace campora
