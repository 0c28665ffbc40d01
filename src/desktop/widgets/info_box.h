// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QLabel>

#include "platform/main_window_controls.h"

namespace campora {

/// The box over the map that describes the point under the pointer.
class InfoBox final : public QLabel {
public:
    explicit InfoBox(QWidget* parent);

    /// Shows what is given at its place, or hides the box. `unitsPerPixel`: canvas units.
    void showInfo(const std::optional<MapOverlay::Info>& info, int unitsPerPixel);
};

}  // namespace campora
