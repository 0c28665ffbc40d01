// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/legend.h"

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

#include "app/summary_names.h"
#include "base/dates.h"
#include "base/numbers.h"
#include "base/typed_number.h"

namespace campora {

namespace {

constexpr int kMostDecimals = 12;

/// Decimals that show the bounds with two digits of the narrowest class or gap: no more than a
/// person wants to read, and enough that no two neighbours read the same.
int decimalsOf(const std::vector<Clase>& classes) {
    double narrowest = 0;
    const auto consider = [&narrowest](double width) {
        if (width > 0 && (narrowest == 0 || width < narrowest)) {
            narrowest = width;
        }
    };
    for (std::size_t i = 0; i < classes.size(); ++i) {
        consider(classes[i].upper - classes[i].lower);
        consider(i == 0 ? 0 : classes[i].lower - classes[i - 1].lower);
    }
    if (narrowest == 0) {
        return 0;
    }
    return std::clamp(1 - static_cast<int>(std::floor(std::log10(narrowest))), 0, kMostDecimals);
}

bool isWhole(double value) {
    return value == std::round(value);
}

/// As many decimals as the bounds have, and more where a bound between two whole doses would else
/// read as one of them: whole doses are what consoles know, and each belongs to one side.
double shownBound(double value, int decimals) {
    constexpr double kNoise = 1e-9;
    constexpr int kTelling = 3;
    if (std::abs(value - std::round(value)) <= kNoise * std::max(1.0, std::abs(value))) {
        return std::round(value);
    }
    for (;; ++decimals) {
        const double step = std::pow(10.0, decimals);
        const double shown = std::round(value * step) / step;
        if (!isWhole(shown)) {
            return shown;
        }
        if (decimals >= kTelling) {
            // A bound itself belongs to the class below it.
            return shown > value ? std::floor(value * step) / step : shown;
        }
    }
}

std::string boundsText(const std::string& lower, const std::string& upper) {
    return lower == upper ? lower : lower + " - " + upper;
}

class ClassTexts {
public:
    ClassTexts(const ColorScale& scale, const UserLocale& locale)
        : scale_(scale), locale_(locale), decimals_(decimalsOf(scale.classes())) {}

    [[nodiscard]] std::string text(int index) const {
        const Clase& clase = scale_.getClass(index);
        if (scale_.isDate) {
            return boundsText(date(firstDay(index)), date(lastDay(clase)));
        }
        if (clase.lower == clase.upper) {
            return numberToType(clase.lower, locale_.decimalSymbol());
        }
        const bool isOpen = scale_.openEnds && scale_.count() > 1;
        if (isOpen && index == 0) {
            return "< " + number(clase.upper);
        }
        if (isOpen && index == scale_.count() - 1) {
            return "> " + number(clase.lower);
        }
        return boundsText(number(clase.lower), number(clase.upper));
    }

private:
    /// Bounds between days come out of a division; this much off a whole day is one.
    static constexpr double kDayTolerance = 1e-6;

    /// A day on a boundary belongs to the class below.
    [[nodiscard]] double firstDay(int index) const {
        const Clase& clase = scale_.getClass(index);
        const bool ownsLower = index == 0 || clase.lower == clase.upper;
        return ownsLower ? std::ceil(clase.lower - kDayTolerance)
                         : std::floor(clase.lower + kDayTolerance) + 1;
    }
    [[nodiscard]] static double lastDay(const Clase& clase) {
        return std::floor(clase.upper + kDayTolerance);
    }
    [[nodiscard]] std::string date(double day) const {
        return dateText(dateOfDayNumber(roundToInt32(day)), locale_.shortDateForm());
    }
    [[nodiscard]] std::string number(double value) const {
        return numberText(shownBound(value, decimals_), locale_.decimalSymbol());
    }

    const ColorScale& scale_;
    const UserLocale& locale_;
    int decimals_;
};

struct WorkNames {
    TextId done;
    TextId notDone;
};

WorkNames workNames(WorkKind kind) {
    switch (kind) {
    case WorkKind::Seeder:
        return {TextId::LegendSown, TextId::LegendNotSown};
    case WorkKind::OlderForm:
        return {TextId::LegendWorked, TextId::LegendNotWorked};
    case WorkKind::Sprayer:
        break;
    }
    return {TextId::LegendSprayed, TextId::LegendNotSprayed};
}

std::vector<LegendRow> referenceRows(const MapStyle& style, WorkKind kind, const Texts& texts,
                                     const UserLocale& locale) {
    const MapColors& colors = style.colors;
    const auto row = [&texts](Color color, TextId id) {
        return LegendRow{color, std::string(texts(id))};
    };
    const WorkNames work = workNames(kind);
    std::vector<LegendRow> rows;
    // A colour that is not on the map would seem to be one of the scale's that looks like it.
    const bool isPlain = style.mode == ColorMode::Dose && !style.scaleShown();
    if (isPlain) {
        rows.push_back(row(colors.draw, work.done));
    }
    if (isPlain || style.drawDotted) {
        rows.push_back(row(colors.noDraw, work.notDone));
    }
    if (style.mode == ColorMode::Date) {
        rows.push_back(row(colors.noDraw, TextId::LegendNoDate));
    }
    rows.push_back(row(colors.back, TextId::LegendBackground));
    if (style.mode == ColorMode::Alarm) {
        rows.push_back(row(colors.alarm, TextId::LegendAlarm));
        rows.push_back(row(colors.noAlarm, TextId::LegendNoAlarm));
    }
    if (style.mode == ColorMode::Error) {
        const std::string limit = numberToType(style.errorLimit, locale.decimalSymbol());
        rows.push_back({style.errorSample, texts.format(TextId::LegendErrors, {limit})});
    }
    return rows;
}

}  // namespace

LegendContent legendContent(const MapStyle& style, const ColorScale* scale, WorkKind kind,
                            const Texts& texts, const UserLocale& locale) {
    LegendContent legend;
    legend.reference = referenceRows(style, kind, texts, locale);
    if (scale == nullptr) {
        return legend;
    }
    const ClassTexts classTexts(*scale, locale);
    legend.unit = shownUnit(scale->unit, texts);
    legend.classesCanChange = scale->allowClassEdit;
    legend.valuesCanChange = scale->allowValueChange;
    legend.valueChangeCaption = texts(scale->valueChangeCaption);
    for (int i = 0; i < scale->count(); ++i) {
        legend.classes.push_back({scale->getClass(i).color, classTexts.text(i)});
    }
    return legend;
}

}  // namespace campora
