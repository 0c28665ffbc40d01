// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/map_display.h"
#include "app/open_map.h"
#include "app/settings.h"
#include "base/text_id.h"
#include "platform/settings_store.h"

namespace campora {

/// The commands that choose how work is drawn, whatever its colours mean. Each one shows its effect
/// at once and says that the menus have changed.
class DrawingCommands {
public:
    /// All of it outlives this.
    DrawingCommands(OpenMap& map, MapDisplay& display, SettingsStore& settings)
        : map_(map), display_(display), settings_(settings) {}

    /// Steps without flow are drawn and exported too, or only the work.
    void mnuEditDrawAll();
    /// Caption of `mnuEditDrawAll`, by the machine of the report read last.
    [[nodiscard]] TextId drawAllCaption() const;
    /// Steps without flow as dotted lines, or as swaths.
    void mnuEditDoted();
    /// Outlines in the pen's colour, or in that of what they surround.
    void mnuEditDrawBorder();

    /// Asks for a swath width in metres ("trocha") and gives it to all work that is open; a wider
    /// one than `kWidestSwath` is brought down to it.
    void mnuEditTrocha();

    // Each asks for one of the plain colours of the map and keeps it.

    void mnuEditColorAlarms() { chooseColor(SettingId::AlarmColor); }
    void mnuEditColorNoAlarms() { chooseColor(SettingId::NoAlarmColor); }
    /// Of shapefiles without doses.
    void mnuEditColorShapes() { chooseColor(SettingId::ShapeColor); }
    void mnuEditColorLotes() { chooseColor(SettingId::LotColor); }
    void mnuEditColorBack() { chooseColor(SettingId::BackColor); }
    /// Of what was worked ("fumigado"), and of what was not.
    void mnuEditColorFum() { chooseColor(SettingId::DrawColor); }
    void mnuEditColorNofum() { chooseColor(SettingId::NoDrawColor); }
    /// Of pen and texts.
    void mnuEditColorText() { chooseColor(SettingId::ForeColor); }
    /// All eight as they were at first ("por defecto").
    void mnuEditColorDefect();

private:
    void chooseColor(SettingId id);

    OpenMap& map_;
    MapDisplay& display_;
    SettingsStore& settings_;
};

}  // namespace campora
