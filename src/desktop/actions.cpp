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
#include <QToolButton>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

struct MenuRow {
    MenuId id;
    TextId text;
    /// The menu that holds it; the menu bar holds a menu that is its own parent.
    MenuId parent;
    /// The command before which it stands; empty: where its own first command would.
    std::string_view before = {};
};

/// In the order of the menu bar.
constexpr MenuRow kMenus[] = {
    {MenuId::File, TextId::MenuFile, MenuId::File},
    {MenuId::Recent, TextId::MenuRecent, MenuId::File, "mnuFileReload"},
    {MenuId::SelectedFile, TextId::MenuSelectedFile, MenuId::File, "mnuFilePrescript"},
    {MenuId::Edit, TextId::MenuEdit, MenuId::Edit},
    {MenuId::Coordinates, TextId::MenuCoordinates, MenuId::Edit},
    {MenuId::Colors, TextId::MenuColors, MenuId::Edit},
    {MenuId::View, TextId::MenuView, MenuId::View},
    {MenuId::Tools, TextId::MenuTools, MenuId::Tools},
    {MenuId::Map, TextId::MenuMap, MenuId::Map},
    {MenuId::GraduatedBy, TextId::MenuGraduatedBy, MenuId::Map},
    {MenuId::Channel, TextId::MenuChannel, MenuId::Map},
    {MenuId::Alarms, TextId::MenuAlarms, MenuId::Alarms},
    {MenuId::Replay, TextId::MenuReplay, MenuId::Replay},
    {MenuId::Help, TextId::MenuHelp, MenuId::Help},
    {MenuId::Language, TextId::MenuLanguage, MenuId::Help},
};

const MenuRow& menuRow(MenuId id) {
    return *std::find_if(std::begin(kMenus), std::end(kMenus),
                         [id](const MenuRow& row) { return row.id == id; });
}

void addLine(QWidget& bar) {
    auto* line = new QAction(&bar);
    line->setSeparator(true);
    bar.addAction(line);
}

}  // namespace

QList<QKeySequence> keysOf(const ActionRow& row) {
    QList<QKeySequence> keys;
    for (const QString& key : QString(row.shortcuts).split(' ', Qt::SkipEmptyParts)) {
        keys += QKeySequence(key, QKeySequence::PortableText);
    }
    return keys;
}

TextId menuText(MenuId id) {
    return menuRow(id).text;
}

bool Availability::fulfils(Needs needs) const {
    switch (needs) {
    case Needs::Nothing:
        return true;
    case Needs::FileMenu:
        return fileMenu;
    case Needs::Map:
        return map;
    case Needs::SelectedFile:
        return map && selectedFile;
    case Needs::Replay:
        return replay;
    }
    return false;
}

ActionSet::ActionSet(const MainWindow& commands, const ActionPlaces& places, Perform perform)
    : commands_(commands), places_(places), perform_(std::move(perform)) {
    for (const MenuRow& row : kMenus) {
        if (row.id == row.parent) {
            static_cast<void>(menu(row.id));
        }
    }
    for (const ActionRow& row : actionRows()) {
        for (const MenuRow& submenu : kMenus) {
            if (submenu.before == row.name) {
                static_cast<void>(menu(submenu.id));
            }
        }
        QAction* made = makeAction(row);
        actions_.push_back(made);
        QMenu& holder = menu(row.menu);
        if (row.opensGroup && !holder.isEmpty()) {
            addLine(holder);
        }
        holder.addAction(made);
        // A menu shows the reasons why entries are grey.
        holder.setToolTipsVisible(holder.toolTipsVisible() || row.whyNot != nullptr);
    }
    for (const MenuRow& row : kMenus) {
        static_cast<void>(menu(row.id));  // also those that are filled while the program runs
    }
    fillToolBar(places.mainTools, mainToolBarRows());
    fillToolBar(places.fileTools, fileToolBarRows());
}

QAction* ActionSet::makeAction(const ActionRow& row) {
    auto* made = new QAction(&places_.window);
    made->setObjectName(row.name);
    if (*row.icon != 0) {
        made->setIcon(QIcon(QString(":/icons/%1.svg").arg(row.icon)));
    }
    made->setShortcuts(keysOf(row));
    if (row.keysOnMap) {
        made->setShortcutContext(Qt::WidgetShortcut);
        places_.map.addAction(made);
    }
    made->setCheckable(row.isOn != nullptr);
    QObject::connect(made, &QAction::triggered, &places_.window, [this, &row] { perform_(row); });
    return made;
}

void ActionSet::fillToolBar(QToolBar& bar, std::span<const ToolBarRow> rows) {
    for (const ToolBarRow& row : rows) {
        if (*row.key == 0) {
            addLine(bar);
            continue;
        }
        QAction* const command = action(row.action);
        bar.addAction(command);
        auto* const button = qobject_cast<QToolButton*>(bar.widgetForAction(command));
        button->setObjectName(row.key);
        button->setFocusPolicy(Qt::TabFocus);
        buttons_.emplace_back(button, command);
        if (row.menu != nullptr) {
            button->setMenu(&menu(*row.menu));
            button->setPopupMode(QToolButton::MenuButtonPopup);
        }
    }
}

QAction* ActionSet::action(std::string_view name) const {
    const auto found = std::find_if(actions_.begin(), actions_.end(), [name](const QAction* a) {
        return toUtf8(a->objectName()) == name;
    });
    return found == actions_.end() ? nullptr : *found;
}

QMenu& ActionSet::menu(MenuId id) {
    if (const auto found = menus_.find(id); found != menus_.end()) {
        return *found->second;
    }
    const MenuRow& row = menuRow(id);
    QMenu* made =
        row.parent == id ? places_.menuBar.addMenu(QString()) : menu(row.parent).addMenu(QString());
    menus_[id] = made;
    return *made;
}

QString ActionSet::toolTip(std::size_t index, const Texts& texts) const {
    const QKeySequence key = actions_[index]->shortcut();
    const QString tip = toQt(texts(actionRows()[index].tooltip));
    return key.isEmpty() ? tip : tip + " (" + key.toString(QKeySequence::NativeText) + ")";
}

void ActionSet::showReason(std::size_t index, std::optional<TextId> reason, const Texts& texts) {
    QAction& shown = *actions_[index];
    const QString tip = toolTip(index, texts);
    const QString why = reason ? toQt(texts(*reason)) : QString();
    shown.setToolTip(reason ? tip + "\n" + why : tip);
    shown.setStatusTip(why);
}

void ActionSet::retranslate(const Texts& texts) {
    for (const MenuRow& row : kMenus) {
        menu(row.id).setTitle(toQt(texts(row.text)));
    }
    const auto rows = actionRows();
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        actions_[i]->setText(toQt(texts(rows[i].text)));
        actions_[i]->setToolTip(toolTip(i, texts));
    }
    for (const auto& [button, command] : buttons_) {
        button->setAccessibleName(command->toolTip());
    }
}

void ActionSet::showStates(const Texts& texts, const Availability& availability) {
    const auto rows = actionRows();
    for (std::size_t i = 0; i < actions_.size(); ++i) {
        const ActionRow& row = rows[i];
        const bool possible = row.possible == nullptr || row.possible(commands_);
        const std::optional<TextId> reason =
            row.whyNot == nullptr ? std::nullopt : row.whyNot(commands_);
        actions_[i]->setEnabled(availability.fulfils(row.needs) && possible && !reason);
        if (row.whyNot != nullptr) {
            showReason(i, reason, texts);
        }
        if (row.isOn != nullptr) {
            actions_[i]->setChecked(row.isOn(commands_));
        }
        if (row.caption != nullptr) {
            actions_[i]->setText(toQt(texts(row.caption(commands_))));
        }
    }
    menu(MenuId::Edit).menuAction()->setEnabled(availability.map);
    menu(MenuId::Channel).menuAction()->setEnabled(availability.map);
    menu(MenuId::SelectedFile).menuAction()->setEnabled(availability.selectedFile);
    menu(MenuId::Recent).menuAction()->setEnabled(availability.fileMenu);
}

}  // namespace campora
