// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QAbstractButton>

#include "platform/map_canvas.h"

namespace campora {

/// A button over the map's edge that shows where there is more map. The keyboard scrolls with the
/// arrow keys instead, so it takes no focus.
class EdgeArrow final : public QAbstractButton {
public:
    EdgeArrow(MapPicture picture, QWidget* parent);

    /// Places it on a canvas of that size.
    void place(CanvasSize canvas);

protected:
    void paintEvent(QPaintEvent* event) override;

private:
    MapPicture picture_;
};

}  // namespace campora
