// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>
#include <span>
#include <vector>

#include "app/loaded_file_list.h"
#include "colour/color_scale.h"
#include "model/file.h"
#include "model/map_style.h"
#include "model/value_ranges.h"
#include "platform/desk.h"
#include "platform/main_window_controls.h"
#include "work/work_kind.h"

namespace campora {

/// The least and the greatest values in the work of these files.
[[nodiscard]] ValueRanges rangesOf(std::span<File* const> files);

/// The colour scales of the open work, one for each unit of dose, and what the legend shows of
/// them.
class WorkScales {
public:
    /// `style` takes its colours from these scales from now on; both outlive them.
    WorkScales(const LoadedFileList& files, MapStyle& style);
    WorkScales(const WorkScales&) = delete;
    WorkScales& operator=(const WorkScales&) = delete;
    ~WorkScales() = default;

    /// The scale of work in units of seed, or that of work in litres and of everything else that
    /// has none of its own.
    [[nodiscard]] ColorScale& of(bool units) { return units ? units_ : litres_; }
    /// The scale of the legend: the current file's own or that of its unit of dose.
    [[nodiscard]] ColorScale& shown();
    /// The classes and the plain colours as they are now. `ranges`: of the open files.
    [[nodiscard]] LegendContent legend(const ValueRanges& ranges, std::optional<WorkKind> lastKind,
                                       const Desk& desk);

    /// Builds both anew for the colouring mode of the style. The date map is left when nothing
    /// open has a date.
    void refresh();
    /// While the scales are built: what they tell their listeners then is not to be shown.
    [[nodiscard]] bool isBusy() const { return busy_; }
    /// How the work lies in the classes is to be measured anew.
    void forgetSpread() { spread_ = {}; }

    /// The classes of both, to be put back later.
    struct Content {
        ColorScale::Content litres;
        ColorScale::Content units;
    };
    [[nodiscard]] Content content() const { return {litres_.content(), units_.content()}; }
    void setContent(Content content);
    /// Both scales in one ramp, from now on; tells nobody.
    void useRamp(Color start, std::optional<Color> middle, Color end);

private:
    /// How the worked area lies in the classes of a scale.
    struct Spread {
        const ColorScale* scale = nullptr;
        /// Part of the area, 0 to 1, in the class that has most.
        double largestShare = 0;
        /// Whether most of the area has more than one value.
        bool canSpread = false;
    };

    [[nodiscard]] bool isOfWork(const ColorScale& scale) const {
        return &scale == &litres_ || &scale == &units_;
    }
    /// Those whose work counts in units of seed, or in litres.
    [[nodiscard]] std::vector<File*> workIn(bool units) const;
    /// What the current file counts in, or else the first work; none without work.
    [[nodiscard]] std::optional<bool> shownUnits() const;
    /// What of `shown` the map uses; null when it is none of it.
    [[nodiscard]] const ColorScale* used(const ValueRanges& ranges);
    /// Of a scale of work.
    [[nodiscard]] const Spread& spreadOf(const ColorScale& scale);
    void addSpreading(LegendContent& legend, const ColorScale& scale, const Texts& texts);
    [[nodiscard]] bool setUp();

    const LoadedFileList& files_;
    MapStyle& style_;
    ColorScale litres_;
    ColorScale units_;
    Spread spread_;
    bool busy_ = false;
};

}  // namespace campora
