// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <vector>

#include "app/map_display.h"
#include "app/open_map.h"
#include "model/map_style.h"

namespace campora {

/// One entry of the menu of alarms.
struct AlarmEntry {
    /// Empty where the machines have no such alarm.
    std::string caption;
    bool visible = false;
    bool checked = false;

    bool operator==(const AlarmEntry&) const = default;
};

/// The commands that choose what the colours of the map mean. Each one shows its effect at once and
/// says that the menus have changed.
class ColorModeCommands {
public:
    /// Seeders' alarms by bit, then those of sprayers.
    static constexpr int kAlarmEntries = 64;

    /// Both outlive this.
    ColorModeCommands(OpenMap& map, MapDisplay& display) : map_(map), display_(display) {}

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

    /// The colours of the scale for the dose, or one plain colour for all work.
    void mnuEditGraduated();
    /// By what is spread on a hectare ("lts/hect"), or in a minute.
    void mnuEditGraduatedByLtsHect();
    void mnuEditGraduatedByLtsMin();

    /// Dose channels to choose from: the most that an open file has.
    [[nodiscard]] int channelCount() const;
    [[nodiscard]] std::string channelCaption(int index) const;
    /// All channels together.
    void mnuColorScaleSelTotal();
    /// `index`: from 0. Files with several channels show that one; those that lack it are named.
    void mnuColorScaleSelCH(int index);

private:
    void toggle(ColorMode mode);
    void graduateBy(GraduatedBy by);
    void setAlarms(std::uint32_t bits);
    /// Classes and error areas of a changed rule, then the map.
    void showNewClasses();
    /// The map and its legend, with the classes that are there.
    void showAgain();

    OpenMap& map_;
    MapDisplay& display_;
};

}  // namespace campora
