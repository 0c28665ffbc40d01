// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "app/colours/legend_commands.h"
#include "base/texts.h"
#include "platform/main_window_controls.h"

class QLabel;
class QPushButton;

namespace campora {

class ColorList;
class SectionHeading;

/// What the colours of the map mean: the classes of the scale, while there is one, and the plain
/// colours. A menu and the rows themselves change the scale.
class LegendView final : public QWidget {
public:
    explicit LegendView(QWidget* parent = nullptr);

    /// What the menu does; without commands there is no menu. They outlive this.
    void setCommands(LegendCommands& commands) { commands_ = &commands; }
    void setContent(const LegendContent& legend);
    /// `texts` outlives this.
    void retranslate(const Texts& texts);

    [[nodiscard]] const ColorList& classes() const { return *classes_; }
    [[nodiscard]] const ColorList& reference() const { return *reference_; }

private:
    void showRows();
    void openMenu(int row, QPoint place);
    /// A class changes its colour, or its value where nothing else may change.
    void openClass(int row);

    LegendContent legend_;
    LegendCommands* commands_ = nullptr;
    const Texts* texts_ = nullptr;
    ColorList* classes_;
    ColorList* reference_;
    SectionHeading* scaleHeading_;
    SectionHeading* referenceHeading_;
    QLabel* unit_;
    QLabel* remark_;
    QPushButton* spread_;
};

}  // namespace campora
