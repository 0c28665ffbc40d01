// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/findings/comparison_texts.h"

#include <algorithm>
#include <cstddef>
#include <optional>

#include "base/number_forms.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "work/color_modes.h"

namespace campora {

namespace {

constexpr double kPerCent = 100;
constexpr std::string_view kNone = "–";

/// Puts the figures of one comparison into words.
class Writer {
public:
    Writer(double limit, std::string_view unit, const Desk& desk)
        : limit_(limit), unit_(unit), desk_(desk) {}

    [[nodiscard]] std::string number(double value, int decimals) const {
        return replaceAll(fixedNumberText(value, decimals), ".",
                          std::string(1, desk_.decimalSymbol()));
    }
    [[nodiscard]] std::string percent(std::optional<double> share) const {
        return share ? number(*share * kPerCent, 1) : std::string(kNone);
    }
    [[nodiscard]] std::string hectares(double value) const { return number(value, 2) + " ha"; }

    void addGround(ComparisonTexts& texts, const Comparison& comparison) const {
        add(texts, TextId::NetCoverage, hectares(comparison.netHa));
        add(texts, TextId::Overlap, hectares(comparison.againHa));
        add(texts, TextId::CompareOutside, hectares(comparison.outsideHa));
        add(texts, TextId::CompareUndosed, hectares(comparison.undosedHa));
    }
    void addChannel(ComparisonTexts& texts, const ChannelComparison& sum) const {
        addOf(texts, sum, TextId::CompareArea, hectares(sum.netHa));
        addOf(texts, sum, TextId::ComparePrescribed, number(sum.prescribed, 1) + " " + unit_);
        addOf(texts, sum, TextId::CompareApplied, number(sum.applied, 1) + " " + unit_);
        addOf(texts, sum, TextId::CompareMeanDeviation,
              sum.meanDeviation ? number(*sum.meanDeviation, 1) + " %" : std::string(kNone));
        for (std::size_t i = 0; i < kJudgedLimits.size(); ++i) {
            addWithin(texts, sum, kJudgedLimits[i], sum.withinHa[i]);
        }
        if (std::find(kJudgedLimits.begin(), kJudgedLimits.end(), limit_) == kJudgedLimits.end()) {
            addWithin(texts, sum, limit_, sum.withinAskedHa());
        }
        for (const DoseComparison& ofDose : sum.doses) {
            texts.rows.push_back({numberText(sum.channel.ofJob + 1),
                                  numberToType(ofDose.dose, desk_.decimalSymbol()),
                                  number(ofDose.netHa, 2), number(ofDose.prescribed, 1),
                                  number(ofDose.applied, 1), meanDose(ofDose),
                                  percent(ofDose.within())});
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
             sum.netHa > 0 ? words.format(TextId::CompareShare,
                                          {percent(hectares / sum.netHa), number(hectares, 2)})
                           : std::string(kNone)});
    }
    [[nodiscard]] std::string ofChannel(const ChannelComparison& sum,
                                        const std::string& name) const {
        return desk_.texts.format(TextId::CompareChannel,
                                  {numberText(sum.channel.ofJob + 1), name});
    }
    [[nodiscard]] std::string meanDose(const DoseComparison& ofDose) const {
        const std::optional<double> dose = ofDose.meanDose();
        return dose ? number(*dose, 1) : std::string(kNone);
    }

    double limit_;
    std::string unit_;
    const Desk& desk_;
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
