// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QWidget>

#include "base/texts.h"
#include "platform/main_window_controls.h"

class QScrollBar;

namespace campora {

class MapView;
class MapWidget;

/// The map with its scroll bars. The bars keep their place while they are hidden, so that the map
/// does not change its size with them.
class MapArea final : public QWidget {
    Q_OBJECT

public:
    explicit MapArea(QWidget* parent = nullptr);

    [[nodiscard]] MapWidget& map() const { return *map_; }
    [[nodiscard]] QScrollBar& horizontalBar() const { return *horizontal_; }
    [[nodiscard]] QScrollBar& verticalBar() const { return *vertical_; }

    /// The pages are what the map shows of the whole, in steps of the bars.
    void setScrollBars(const ViewControls& controls, int horizontalPage, int verticalPage);
    void retranslate(const Texts& texts);

signals:
    /// The user moved a bar; both positions, in steps of the bars.
    void barsMoved(int horizontal, int vertical);

private:
    MapWidget* map_;
    QScrollBar* horizontal_;
    QScrollBar* vertical_;
};

}  // namespace campora
