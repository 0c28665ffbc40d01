// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "app/map_display.h"
#include "app/open_map.h"
#include "app/settings.h"
#include "base/text_id.h"
#include "model/map_style.h"
#include "platform/settings_store.h"

namespace campora {

/// One entry of the menu of alarms.
struct AlarmEntry {
    /// Empty where the machines have no such alarm.
    std::string caption;
    bool visible = false;
    bool checked = false;

    bool operator==(const AlarmEntry&) const = default;
};

/// The commands that choose what the colours of the map mean and how the work is drawn. Each one
/// shows its effect at once and says that the menus have changed.
class MapModes {
public:
    /// Seeders' alarms by bit, then those of sprayers.
    static constexpr int kAlarmEntries = 64;

    /// All of it outlives this.
    MapModes(OpenMap& map, MapDisplay& display, SettingsStore& settings)
        : map_(map), display_(display), settings_(settings) {}

    /// `kAlarmEntries` entries; a selected alarm colours the points of the alarm map that have it.
    [[nodiscard]] std::vector<AlarmEntry> alarmEntries() const;
    void mnuAlarmsAll();
    void mnuAlarmsNone();
    /// Turns one entry round; an index that is none is ignored.
    void mnuAlarmsAlarm(int index);

    // The three maps exclude each other; without one the colours are those of the dose.
    void mnuAlarmsPaint();
    void mnuColorDateMap();
    void mnuColorErrorMap();
    /// Asks for the allowed error in percent and switches the error map on.
    void mnuColorErrorMapMin();
    /// Whether anything open has a date; the date map does not stay on otherwise.
    [[nodiscard]] bool canShowDates() const;

    void mnuEditGraduated();
    void mnuEditGraduatedByLtsHect();
    void mnuEditGraduatedByLtsMin();

    /// Dose channels to choose from: the most that an open file has.
    [[nodiscard]] int channelCount() const;
    [[nodiscard]] std::string channelCaption(int index) const;
    void mnuColorScaleSelTotal();
    /// `index`: from 0. Files with several channels show that one; those that lack it are named.
    void mnuColorScaleSelCH(int index);

    void mnuEditDrawAll();
    void mnuEditDoted();
    void mnuEditDrawBorder();
    /// Caption of `mnuEditDrawAll`, by the machine of the report read last.
    [[nodiscard]] TextId drawAllCaption() const;

    /// Asks for a swath width in metres and gives it to all work that is open; a wider one than
    /// `kWidestSwath` is brought down to it.
    void mnuEditTrocha();

    void mnuEditColorAlarms() { chooseColor(SettingId::AlarmColor); }
    void mnuEditColorNoAlarms() { chooseColor(SettingId::NoAlarmColor); }
    void mnuEditColorShapes() { chooseColor(SettingId::ShapeColor); }
    void mnuEditColorLotes() { chooseColor(SettingId::LoteColor); }
    void mnuEditColorBack() { chooseColor(SettingId::BackColor); }
    void mnuEditColorFum() { chooseColor(SettingId::DrawColor); }
    void mnuEditColorNofum() { chooseColor(SettingId::NoDrawColor); }
    void mnuEditColorText() { chooseColor(SettingId::ForeColor); }
    /// All eight as they were at first.
    void mnuEditColorDefect();

private:
    void toggle(ColorMode mode);
    void graduateBy(GraduatedBy by);
    void chooseColor(SettingId id);
    void setAlarms(std::uint32_t bits);
    /// Classes and error areas of a changed rule, then the map.
    void showNewClasses();
    /// The map and its legend, with the classes that are there.
    void showAgain();
    void redraw();

    OpenMap& map_;
    MapDisplay& display_;
    SettingsStore& settings_;
};

}  // namespace campora
