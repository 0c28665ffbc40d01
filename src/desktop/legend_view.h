// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "base/texts.h"
#include "platform/main_window_controls.h"

class QLabel;

namespace campora {

class ColorList;
class SectionHeading;

/// What the colours of the map mean: the classes of the scale, while there is one, and the plain
/// colours.
class LegendView final : public QWidget {
public:
    explicit LegendView(QWidget* parent = nullptr);

    void setContent(const LegendContent& legend);
    void retranslate(const Texts& texts);

    [[nodiscard]] const ColorList& classes() const { return *classes_; }
    [[nodiscard]] const ColorList& reference() const { return *reference_; }

private:
    ColorList* classes_;
    ColorList* reference_;
    SectionHeading* scaleHeading_;
    SectionHeading* referenceHeading_;
    QLabel* unit_;
};

}  // namespace campora
