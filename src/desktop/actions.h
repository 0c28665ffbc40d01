// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <map>
#include <optional>
#include <span>
#include <string_view>
#include <utility>
#include <vector>

#include <QKeySequence>
#include <QList>
#include <QString>

#include "base/texts.h"

class QAction;
class QMenu;
class QMenuBar;
class QToolBar;
class QToolButton;
class QWidget;

namespace campora {

class MainWindow;

enum class MenuId {
    File,
    Recent,
    SelectedFile,
    Edit,
    Coordinates,
    Colors,
    View,
    Tools,
    Map,
    GraduatedBy,
    Channel,
    Alarms,
    Replay,
    Help,
    Language,
};

/// What must be there before a command can be used.
enum class Needs {
    Nothing,
    /// The file menu is not locked by a replay.
    FileMenu,
    /// Files are open and no replay has locked the map.
    Map,
    /// As `Map`, and a file is selected in the list.
    SelectedFile,
    /// Something open can be replayed.
    Replay,
};

/// A command of the window as menus, tool bars and tooltips show it.
struct ActionRow {
    /// Name of the control.
    const char* name = "";
    TextId text{};
    TextId tooltip{};
    /// Name of a picture in the resources; may be empty.
    const char* icon = "";
    /// Separated by blanks; the first one is shown in the menu and the tooltip.
    const char* shortcuts = "";
    /// They act only while the map has the focus: elsewhere these keys have a meaning of their own.
    bool keysOnMap = false;
    MenuId menu{};
    /// A line stands before it in its menu.
    bool opensGroup = false;
    Needs needs = Needs::Nothing;
    /// The pointer shows that the program is busy while it runs.
    bool isSlow = false;
    void (*run)(MainWindow& window) = nullptr;
    /// For commands that are on or off: which of the two.
    bool (*isOn)(const MainWindow& window) = nullptr;
    /// A further condition; none: always.
    bool (*possible)(const MainWindow& window) = nullptr;
    /// Why it cannot be used, as its tooltip says while it cannot; none when it can.
    std::optional<TextId> (*whyNot)(const MainWindow& window) = nullptr;
    /// For commands whose caption follows the work: which text instead of `text`.
    TextId (*caption)(const MainWindow& window) = nullptr;
};

/// All commands, in the order of the menus.
[[nodiscard]] std::span<const ActionRow> actionRows();

/// A button of a tool bar: its key and the command behind it; a row without a key is a line.
struct ToolBarRow {
    const char* key = "";
    const char* action = "";
    /// The menu that drops down from it, beside the command.
    const MenuId* menu = nullptr;
};

[[nodiscard]] std::span<const ToolBarRow> mainToolBarRows();
[[nodiscard]] std::span<const ToolBarRow> fileToolBarRows();

/// The keys of a command, the one that is shown first.
[[nodiscard]] QList<QKeySequence> keysOf(const ActionRow& row);
/// The title of a menu.
[[nodiscard]] TextId menuText(MenuId id);

/// What the window allows at the moment.
struct Availability {
    bool fileMenu = true;
    bool map = false;
    bool selectedFile = false;
    bool replay = false;

    [[nodiscard]] bool fulfils(Needs needs) const;
};

/// Where the actions of a window are, which they belong to.
struct ActionPlaces {
    QWidget& window;
    /// Has the keys that act on the map alone.
    QWidget& map;
    QMenuBar& menuBar;
    QToolBar& mainTools;
    QToolBar& fileTools;
};

/// The commands of one window as actions of the toolkit, built from the rows.
class ActionSet {
public:
    using Perform = std::function<void(const ActionRow&)>;

    /// Makes the actions and fills the bars with them. `commands`: whose states they show.
    /// `perform`: runs the one that was chosen.
    ActionSet(const MainWindow& commands, const ActionPlaces& places, Perform perform);

    void retranslate(const Texts& texts);
    /// Shows which commands are on and which can be used, and captions that follow the work.
    void showStates(const Texts& texts, const Availability& availability);
    [[nodiscard]] QMenu& menu(MenuId id);

private:
    QAction* makeAction(const ActionRow& row);
    void fillToolBar(QToolBar& bar, std::span<const ToolBarRow> rows);
    [[nodiscard]] QString toolTip(std::size_t index, const Texts& texts) const;
    void showReason(std::size_t index, std::optional<TextId> reason, const Texts& texts);
    [[nodiscard]] QAction* action(std::string_view name) const;

    const MainWindow& commands_;
    ActionPlaces places_;
    Perform perform_;
    std::map<MenuId, QMenu*> menus_;
    /// One for each row.
    std::vector<QAction*> actions_;
    /// The buttons of the tool bars with their commands.
    std::vector<std::pair<QToolButton*, QAction*>> buttons_;
};

}  // namespace campora
