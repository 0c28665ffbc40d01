// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QLabel>

#include "platform/map_overlay.h"

namespace campora {

/// The box over the map that describes the point under the pointer.
class InfoBox final : public QLabel {
public:
    explicit InfoBox(QWidget* parent);

    /// Shows the plate at its place; null: hides the box. `unitsPerPixel`: canvas units.
    void showInfo(const TextPlate* plate, int unitsPerPixel);
};

}  // namespace campora
