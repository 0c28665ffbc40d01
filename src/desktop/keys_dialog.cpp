// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/keys_dialog.h"

#include <map>

#include <QHeaderView>
#include <QTreeWidget>
#include <QVBoxLayout>

#include "desktop/actions.h"
#include "desktop/platform/qt_text.h"
#include "desktop/widgets/close_buttons.h"
#include "desktop/widgets/lot_keys.h"

namespace campora {

namespace {

constexpr QSize kSize{740, 640};
constexpr int kMargin = 12;

struct HelpRow {
    TextId gesture;
    TextId does;
};

constexpr HelpRow kMouse[] = {
    {TextId::GestureDrag, TextId::GestureDragDoes},
    {TextId::GestureMiddle, TextId::GestureMiddleDoes},
    {TextId::GestureWheel, TextId::GestureWheelDoes},
    {TextId::GestureRight, TextId::GestureRightDoes},
    {TextId::GestureDouble, TextId::GestureDoubleDoes},
    {TextId::GestureFinding, TextId::GestureFindingDoes},
    {TextId::GestureDrop, TextId::GestureDropDoes},
};

struct StripKey {
    const char* key;
    TextId does;
};

constexpr StripKey kStripKeys[] = {
    {"Right", TextId::StripKeyMove},  {"Shift+Right", TextId::StripKeyBrush},
    {"PgDown", TextId::StripKeyPage}, {"Home", TextId::StripKeyEnds},
    {"+", TextId::StripKeyZoom},      {"Return", TextId::StripKeyGo},
    {"Space", TextId::StripKeyPlay},  {"Esc", TextId::StripKeyClear},
};

QString plain(const Texts& texts, TextId id) {
    return toQt(texts(id)).remove('&').remove("...");
}

QTreeWidgetItem* addGroup(QTreeWidget& rows, const QString& title) {
    auto* const group = new QTreeWidgetItem(&rows, {title});
    QFont bold = rows.font();
    bold.setBold(true);
    group->setFont(0, bold);
    group->setFirstColumnSpanned(true);
    group->setExpanded(true);
    return group;
}

void addRow(QTreeWidgetItem* group, const QString& keys, const QString& meaning) {
    static_cast<void>(new QTreeWidgetItem(group, {keys, meaning}));
}

QString keysText(const ActionRow& row) {
    QStringList keys;
    for (const QKeySequence& key : keysOf(row)) {
        keys += key.toString(QKeySequence::NativeText);
    }
    return keys.join("   ");
}

/// From the table of the commands, so that no key is missing and none is told that is not.
void addCommands(QTreeWidget& rows, const Texts& texts) {
    std::map<MenuId, QTreeWidgetItem*> groups;
    for (const ActionRow& row : actionRows()) {
        const QString keys = keysText(row);
        if (keys.isEmpty()) {
            continue;
        }
        QTreeWidgetItem*& group = groups[row.menu];
        if (group == nullptr) {
            group = addGroup(rows, plain(texts, menuText(row.menu)));
        }
        addRow(group, keys, plain(texts, row.text));
    }
}

void addLotKeys(QTreeWidget& rows, const Texts& texts) {
    QTreeWidgetItem* const group = addGroup(rows, plain(texts, TextId::ActionLot));
    for (const LotKey& key : lotKeys()) {
        addRow(group, QKeySequence(key.keys).toString(QKeySequence::NativeText),
               plain(texts, key.does));
    }
}

void addStripKeys(QTreeWidget& rows, const Texts& texts) {
    QTreeWidgetItem* const group = addGroup(rows, plain(texts, TextId::ActionTimeStrip));
    for (const auto& [key, does] : kStripKeys) {
        addRow(group, QKeySequence(key).toString(QKeySequence::NativeText), plain(texts, does));
    }
    addRow(group, plain(texts, TextId::KeysMouse), plain(texts, TextId::StripGestures));
}

void addOthers(QTreeWidget& rows, const Texts& texts) {
    QTreeWidgetItem* const keys = addGroup(rows, plain(texts, TextId::KeysElsewhere));
    addRow(keys, plain(texts, TextId::KeyArrows), plain(texts, TextId::KeyArrowsDoes));
    addRow(keys, "Tab", plain(texts, TextId::KeyTabDoes));
    addRow(keys, QKeySequence("Shift+F10").toString(QKeySequence::NativeText),
           plain(texts, TextId::KeyMenuDoes));
    QTreeWidgetItem* const mouse = addGroup(rows, plain(texts, TextId::KeysMouse));
    for (const auto& [gesture, does] : kMouse) {
        addRow(mouse, plain(texts, gesture), plain(texts, does));
    }
}

}  // namespace

KeysDialog::KeysDialog(const Texts& texts, QWidget* parent) : QDialog(parent) {
    setObjectName("keys");
    setWindowTitle(plain(texts, TextId::ActionKeys));
    auto* const rows = new QTreeWidget(this);
    rows->setAccessibleName(windowTitle());
    rows->setHeaderLabels({plain(texts, TextId::KeysColumn), plain(texts, TextId::KeysMeaning)});
    rows->setRootIsDecorated(false);
    rows->setItemsExpandable(false);
    rows->setAlternatingRowColors(true);
    addCommands(*rows, texts);
    addLotKeys(*rows, texts);
    addStripKeys(*rows, texts);
    addOthers(*rows, texts);
    rows->header()->setSectionResizeMode(0, QHeaderView::ResizeToContents);
    rows->setCurrentItem(rows->topLevelItem(0));
    auto* const column = new QVBoxLayout(this);
    column->setContentsMargins(kMargin, kMargin, kMargin, kMargin);
    column->addWidget(rows, 1);
    column->addWidget(new CloseButtons(texts, this));
    resize(kSize);
    rows->setFocus();
}

}  // namespace campora
