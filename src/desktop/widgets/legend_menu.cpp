// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/widgets/legend_menu.h"

#include <QLinearGradient>
#include <QMenu>
#include <QPainter>
#include <QStyle>

#include "desktop/platform/qt_color.h"
#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

struct LegendCommandRow {
    TextId text;
    void (LegendCommands::*run)();
    /// Only where the classes may change.
    bool changesClasses;
    bool opensGroup = false;
};

constexpr LegendCommandRow kCommands[] = {
    {TextId::MoreClasses, &LegendCommands::addClass, true, true},
    {TextId::FewerClasses, &LegendCommands::removeClass, true},
    {TextId::ClassNumber, &LegendCommands::askClassNumber, true},
    {TextId::Extremes, &LegendCommands::askExtremes, true},
    {TextId::RampStart, &LegendCommands::chooseRampStart, false, true},
    {TextId::RampMiddle, &LegendCommands::chooseRampMiddle, false},
    {TextId::RampNoMiddle, &LegendCommands::dropRampMiddle, false},
    {TextId::RampEnd, &LegendCommands::chooseRampEnd, false},
};

/// A picture of the ramp as large as menus show them.
QIcon rampPicture(const ReadyRamp& ramp, const QWidget& widget) {
    const int side = widget.style()->pixelMetric(QStyle::PM_SmallIconSize);
    const double ratio = widget.devicePixelRatioF();
    QPixmap picture(QSize(side, side) * ratio);
    picture.setDevicePixelRatio(ratio);
    QLinearGradient gradient(0, 0, side, 0);
    gradient.setColorAt(0, toQt(ramp.start));
    if (ramp.middle) {
        gradient.setColorAt(0.5, toQt(*ramp.middle));
    }
    gradient.setColorAt(1, toQt(ramp.end));
    QPainter(&picture).fillRect(0, 0, side, side, gradient);
    return {picture};
}

void addRamps(QMenu& menu, LegendCommands& commands, const Texts& texts) {
    QMenu* ramps = menu.addMenu(toQt(texts(TextId::ReadyRamps)));
    int index = 0;
    for (const ReadyRamp& ramp : readyRamps()) {
        QAction* action = ramps->addAction(rampPicture(ramp, menu), toQt(texts(ramp.name)));
        action->setIconVisibleInMenu(true);
        QObject::connect(action, &QAction::triggered, menu.parent(),
                         [&commands, index] { commands.useReadyRamp(index); });
        ++index;
    }
}

}  // namespace

QMenu* makeLegendMenu(QWidget& parent, const LegendContent& legend, int row,
                      LegendCommands& commands, const Texts& texts) {
    auto* menu = new QMenu(&parent);
    menu->setAttribute(Qt::WA_DeleteOnClose);
    const auto add = [menu](const QString& text, bool enabled, auto run) {
        QAction* action = menu->addAction(text);
        action->setEnabled(enabled);
        QObject::connect(action, &QAction::triggered, menu->parent(), run);
    };
    add(toQt(texts(TextId::ClassColor)), row >= 0,
        [&commands, row] { commands.chooseClassColor(row); });
    if (legend.valuesCanChange) {
        add(toQt(legend.valueChangeCaption), row >= 0,
            [&commands, row] { commands.askClassValue(row); });
    }
    for (const LegendCommandRow& command : kCommands) {
        if (command.opensGroup) {
            menu->addSeparator();
        }
        add(toQt(texts(command.text)), legend.classesCanChange || !command.changesClasses,
            [&commands, run = command.run] { (commands.*run)(); });
    }
    if (legend.canSpread) {
        menu->addSeparator();
        const auto addChoice = [&](TextId text, bool isOn, void (LegendCommands::*run)()) {
            QAction* const choice = menu->addAction(toQt(texts(text)));
            choice->setCheckable(true);
            choice->setChecked(isOn);
            QObject::connect(choice, &QAction::triggered, menu->parent(),
                             [&commands, run] { (commands.*run)(); });
        };
        addChoice(TextId::ScaleTarget, legend.aroundTarget, &LegendCommands::askTarget);
        addChoice(TextId::ScaleEqual, !legend.aroundTarget && !legend.spread,
                  &LegendCommands::equalClasses);
        QAction* spread = menu->addAction(toQt(texts(TextId::SpreadClasses)));
        spread->setCheckable(true);
        spread->setChecked(legend.spread);
        spread->setToolTip(toQt(texts(TextId::TipSpreadClasses)));
        QObject::connect(spread, &QAction::triggered, menu->parent(),
                         [&commands](bool on) { commands.spreadClasses(on); });
    }
    menu->addSeparator();
    addRamps(*menu, commands, texts);
    return menu;
}

}  // namespace campora
