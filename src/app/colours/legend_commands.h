// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <string>

#include "app/map_display.h"
#include "app/open_map.h"
#include "base/color.h"
#include "base/text_id.h"
#include "platform/settings_store.h"

namespace campora {

class ColorScale;
/// A ramp to choose as a whole; without a middle it runs straight from start to end.
struct ReadyRamp {
    TextId name{};
    Color start;
    std::optional<Color> middle;
    Color end;
};

/// The ramps that the legend offers. Those that people who are blind to some colours can read come
/// first; they are viridis (S. van der Walt and N. Smith, 2015, in the
/// public domain) and cividis (J. Nuñez, C. Anderton and R. Renslow, PLOS ONE 13(7), 2018), each
/// by its first, middle and last colour.
[[nodiscard]] std::span<const ReadyRamp> readyRamps();

/// What the user does to the scale that the legend shows. Map and legend follow at once; a
/// cancelled question changes nothing, an answer that makes no sense is refused with a message.
class LegendCommands {
public:
    static constexpr int kMostClasses = 64;

    /// All of it outlives this.
    LegendCommands(OpenMap& map, MapDisplay& display, SettingsStore& settings)
        : map_(map), display_(display), settings_(settings) {}

    // Refused with a message on scales whose classes are fixed.
    void addClass();
    void removeClass();
    /// Asks for 1 to `kMostClasses`.
    void askClassNumber();
    /// Asks for the lowest and the highest value.
    void askExtremes();

    /// Asks for the dose around which the classes of dose lie from now on: within 5, 10 and 20 per
    /// cent of it and beyond, and ground without a dose.
    void askTarget();
    /// Classes of dose equally wide over all values.
    void equalClasses();
    /// Lays the classes of dose over most of the worked area, or over all values again, and keeps
    /// that for the work to come.
    void spreadClasses(bool spread);

    void chooseRampStart();
    void chooseRampMiddle();
    void dropRampMiddle();
    void chooseRampEnd();
    /// `index`: in `readyRamps()`. Kept for the work to come.
    void useReadyRamp(int index);

    /// The scales of work in the ramp that was chosen last.
    void restoreRamp();

    // Classes that the scale does not have are ignored.
    void chooseClassColor(int index);
    /// Asks for the value of a single-value class; refused with a message on scales whose values
    /// are fixed.
    void askClassValue(int index);

private:
    [[nodiscard]] ColorScale& scale() const;
    /// The classes that follow from it, which is kept.
    void setClasses(std::optional<double> target, bool spread);
    /// The dose that most records specify in the channel that is shown; none without one.
    [[nodiscard]] std::optional<double> specifiedDose() const;
    [[nodiscard]] bool hasClass(int index) const;
    [[nodiscard]] bool classesMayChange() const;
    void setClassNumber(double number);
    /// The number typed; none when the user cancels or types something else, which is said.
    [[nodiscard]] std::optional<double> ask(TextId prompt, TextId caption, double proposed) const;
    [[nodiscard]] std::string typed(double value) const;

    OpenMap& map_;
    MapDisplay& display_;
    SettingsStore& settings_;
};

}  // namespace campora
