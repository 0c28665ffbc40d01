// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/comparison_texts.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "app/figure_text.h"
#include "base/numbers.h"
#include "base/typed_number.h"
#include "work/color_modes.h"

namespace campora {

namespace {

/// Puts the figures of one comparison into words.
class Writer {
public:
    Writer(double limit, std::string_view unit, const Desk& desk)
        : limit_(limit), unit_(unit), desk_(desk), figure_(desk.locale) {}

    void addGround(ComparisonTexts& texts, const Comparison& comparison) const {
        add(texts, TextId::NetCoverage, figure_.hectares(comparison.netHa));
        add(texts, TextId::Overlap, figure_.hectares(comparison.againHa));
        add(texts, TextId::CompareOutside, figure_.hectares(comparison.outsideHa));
        add(texts, TextId::CompareUndosed, figure_.hectares(comparison.undosedHa));
    }
    void addChannel(ComparisonTexts& texts, const ChannelComparison& sum) const {
        addOf(texts, sum, TextId::CompareArea, figure_.hectares(sum.netHa));
        addOf(texts, sum, TextId::ComparePrescribed,
              figure_.number(sum.prescribed, 1) + " " + unit_);
        addOf(texts, sum, TextId::CompareApplied, figure_.number(sum.applied, 1) + " " + unit_);
        addOf(texts, sum, TextId::CompareMeanDeviation,
              sum.meanDeviation ? figure_.number(*sum.meanDeviation, 1) + " %"
                                : std::string(kNoFigure));
        for (std::size_t i = 0; i < kJudgedLimits.size(); ++i) {
            addWithin(texts, sum, kJudgedLimits[i], sum.withinHa[i]);
        }
        if (std::find(kJudgedLimits.begin(), kJudgedLimits.end(), limit_) == kJudgedLimits.end()) {
            addWithin(texts, sum, limit_, sum.withinAskedHa());
        }
        for (const DoseComparison& ofDose : sum.doses) {
            texts.rows.push_back(
                {numberText(sum.channel.ofJob + 1),
                 numberToType(ofDose.dose, desk_.decimalSymbol()), figure_.number(ofDose.netHa, 2),
                 figure_.number(ofDose.prescribed, 1), figure_.number(ofDose.applied, 1),
                 figure_.number(ofDose.meanDose(), 1), figure_.percent(ofDose.within())});
        }
    }
    [[nodiscard]] std::vector<std::string> columns() const {
        const Texts& words = desk_.texts;
        return {std::string(words(TextId::CompareColumnChannel)),
                std::string(words(TextId::CompareColumnDose)),
                std::string(words(TextId::CompareColumnArea)),
                words.format(TextId::CompareColumnPrescribed, {unit_}),
                words.format(TextId::CompareColumnApplied, {unit_}),
                std::string(words(TextId::CompareColumnMean)),
                words.format(TextId::CompareColumnWithin,
                             {numberToType(limit_, desk_.decimalSymbol())})};
    }

private:
    void add(ComparisonTexts& texts, TextId name, std::string value) const {
        texts.figures.push_back({std::string(desk_.texts(name)), std::move(value)});
    }
    void addOf(ComparisonTexts& texts, const ChannelComparison& sum, TextId name,
               std::string value) const {
        texts.figures.push_back({ofChannel(sum, std::string(desk_.texts(name))), std::move(value)});
    }
    void addWithin(ComparisonTexts& texts, const ChannelComparison& sum, double limit,
                   double hectares) const {
        const Texts& words = desk_.texts;
        const std::string name =
            words.format(TextId::CompareWithin, {numberToType(limit, desk_.decimalSymbol())});
        texts.figures.push_back(
            {ofChannel(sum, name),
             sum.netHa > 0
                 ? words.format(TextId::CompareShare, {figure_.percent(hectares / sum.netHa),
                                                       figure_.number(hectares, 2)})
                 : std::string(kNoFigure)});
    }
    [[nodiscard]] std::string ofChannel(const ChannelComparison& sum,
                                        const std::string& name) const {
        return desk_.texts.format(TextId::CompareChannel,
                                  {numberText(sum.channel.ofJob + 1), name});
    }
    double limit_;
    std::string unit_;
    const Desk& desk_;
    FigureText figure_;
};

}  // namespace

ComparisonTexts comparisonTexts(const Comparison& comparison, double limit, std::string_view unit,
                                const Desk& desk) {
    const Writer writer(limit, unit, desk);
    ComparisonTexts texts;
    writer.addGround(texts, comparison);
    texts.columns = writer.columns();
    for (const ChannelComparison& sum : comparison.channels) {
        writer.addChannel(texts, sum);
    }
    texts.note = desk.texts(TextId::CompareGroundNote);
    return texts;
}

std::string productUnit(std::span<const File* const> jobs, const Texts& texts) {
    bool litres = true;
    for (const File* job : jobs) {
        litres = litres && countsUnits(*job) == false;
    }
    return std::string(texts(litres ? TextId::UnitLitres : TextId::UnitProduct));
}

}  // namespace campora
