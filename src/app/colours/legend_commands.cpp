// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/legend_commands.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <map>

#include "app/settings.h"
#include "base/numbers.h"
#include "base/typed_number.h"
#include "model/work_layer.h"

namespace campora {

namespace {

constexpr Color kYellow = Color::rgb(255, 255, 0);
constexpr Color kGreen = Color::rgb(0, 255, 0);
constexpr Color kRed = Color::rgb(255, 0, 0);

constexpr ReadyRamp kRamps[] = {
    {TextId::RampBlueYellow, Color::rgb(0, 34, 78), Color::rgb(125, 124, 120),
     Color::rgb(254, 232, 56)},
    {TextId::RampVioletYellow, Color::rgb(68, 1, 84), Color::rgb(33, 145, 140),
     Color::rgb(253, 231, 37)},
    {TextId::RampGreys, Color::rgb(224, 224, 224), std::nullopt, Color::rgb(32, 32, 32)},
    {TextId::RampYellowGreenRed, kYellow, kGreen, kRed},
    {TextId::RampRedYellowGreen, kRed, kYellow, kGreen},
    {TextId::RampGreenYellowRed, kGreen, kYellow, kRed},
};

}  // namespace

std::span<const ReadyRamp> readyRamps() {
    return kRamps;
}

ColorScale& LegendCommands::scale() const {
    return map_.scales().shown();
}

bool LegendCommands::hasClass(int index) const {
    return index >= 0 && index < scale().count();
}

bool LegendCommands::classesMayChange() const {
    if (!scale().allowClassEdit) {
        map_.desk().tell({TextId::ClassesAreFixed, {}});
        return false;
    }
    return true;
}

void LegendCommands::addClass() {
    if (!classesMayChange()) {
        return;
    }
    if (scale().count() >= kMostClasses) {
        setClassNumber(kMostClasses + 1);
        return;
    }
    scale().addClass();
}

void LegendCommands::removeClass() {
    if (classesMayChange()) {
        scale().quitClass();
    }
}

void LegendCommands::askClassNumber() {
    if (!classesMayChange()) {
        return;
    }
    if (const auto number = ask(TextId::AskClassNumber, TextId::ScaleHeading, scale().count())) {
        setClassNumber(*number);
    }
}

void LegendCommands::setClassNumber(double number) {
    if (number < 1 || number > kMostClasses || number != std::floor(number)) {
        map_.desk().tell({TextId::BadClassNumber, {typed(number)}});
        return;
    }
    scale().setClassNumber(static_cast<int>(number));
}

void LegendCommands::askExtremes() {
    if (!classesMayChange()) {
        return;
    }
    const auto lower = ask(TextId::AskLowerExtreme, TextId::ScaleHeading, scale().valueMin());
    if (!lower) {
        return;
    }
    const auto upper = ask(TextId::AskUpperExtreme, TextId::ScaleHeading, scale().valueMax());
    if (!upper) {
        return;
    }
    if (*lower >= *upper) {
        map_.desk().tell({TextId::BadExtremes, {typed(*lower), typed(*upper)}});
        return;
    }
    scale().openEnds = false;
    scale().calcRanges(*lower, *upper, true);
}

void LegendCommands::askTarget() {
    const double proposed = map_.style().targetDose.value_or(
        specifiedDose().value_or((scale().valueMin() + scale().valueMax()) / 2));
    const auto target = ask(TextId::AskTargetDose, TextId::ScaleHeading, proposed);
    if (!target) {
        return;
    }
    if (*target <= 0) {
        map_.desk().tell({TextId::BadTargetDose, {typed(*target)}});
        return;
    }
    setClasses(*target, false);
    display_.redraw();
}

void LegendCommands::equalClasses() {
    setClasses(std::nullopt, false);
    display_.redraw();
}

void LegendCommands::setClasses(std::optional<double> target, bool spread) {
    MapStyle& style = map_.style();
    style.targetDose = target;
    style.spreadClasses = spread;
    writeText(settings_, SettingId::TargetDose, target ? numberText(*target) : "");
    writeSwitch(settings_, SettingId::SpreadClasses, spread);
    map_.refreshColorScale();
    display_.showLegend();
}

std::optional<double> LegendCommands::specifiedDose() const {
    const int channel = map_.style().selectedChannel;
    std::map<float, std::int64_t> records;
    for (const Gph* layer : map_.getGphList()) {
        const auto* const work = dynamic_cast<const WorkLayer*>(layer);
        for (std::int32_t i = 0; work != nullptr && i < work->recordCount(); ++i) {
            const WorkRecord record = work->recordN(i);
            const float dose = channel < 0 ? record.specifiedTotal()
                               : channel < record.channels
                                   ? record.specified[static_cast<std::size_t>(channel)]
                                   : 0;
            records[dose] += dose > 0 ? 1 : 0;
        }
    }
    const auto most =
        std::max_element(records.begin(), records.end(),
                         [](const auto& a, const auto& b) { return a.second < b.second; });
    return most == records.end() || most->second == 0
               ? std::nullopt
               : std::optional(static_cast<double>(most->first));
}

void LegendCommands::spreadClasses(bool spread) {
    const int before = map_.style().targetDose ? 0 : scale().count();
    setClasses(std::nullopt, spread);
    if (scale().count() > 1 && before > 1 && scale().count() != before) {
        scale().setClassNumber(before);  // which draws
    } else {
        display_.redraw();
    }
}

void LegendCommands::chooseRampStart() {
    ColorScale& shown = scale();
    if (const auto chosen = map_.desk().dialogs.chooseColor(shown.colorStart)) {
        shown.degrade(*chosen, shown.colorMiddle, shown.colorEnd, true);
    }
}

void LegendCommands::chooseRampMiddle() {
    ColorScale& shown = scale();
    const Color before = shown.colorMiddle.value_or(shown.colorStart);
    if (const auto chosen = map_.desk().dialogs.chooseColor(before)) {
        shown.degrade(shown.colorStart, chosen, shown.colorEnd, true);
    }
}

void LegendCommands::dropRampMiddle() {
    scale().degrade2(scale().colorStart, scale().colorEnd, true);
}

void LegendCommands::chooseRampEnd() {
    ColorScale& shown = scale();
    if (const auto chosen = map_.desk().dialogs.chooseColor(shown.colorEnd)) {
        shown.degrade(shown.colorStart, shown.colorMiddle, *chosen, true);
    }
}

void LegendCommands::useReadyRamp(int index) {
    const auto ramps = readyRamps();
    if (index >= 0 && static_cast<std::size_t>(index) < ramps.size()) {
        const ReadyRamp& ramp = ramps[static_cast<std::size_t>(index)];
        scale().degrade(ramp.start, ramp.middle, ramp.end, true);
        writeNumber(settings_, SettingId::ScaleRamp, index + 1);
    }
}

void LegendCommands::restoreRamp() {
    const auto index = static_cast<std::size_t>(readNumber(settings_, SettingId::ScaleRamp));
    if (index > 0 && index <= readyRamps().size()) {
        const ReadyRamp& ramp = readyRamps()[index - 1];
        map_.scales().useRamp(ramp.start, ramp.middle, ramp.end);
    }
}

void LegendCommands::chooseClassColor(int index) {
    if (!hasClass(index)) {
        return;
    }
    const Color before = scale().getClass(index).color;
    if (const auto chosen = map_.desk().dialogs.chooseColor(before)) {
        scale().setClassColor(index, *chosen);
    }
}

void LegendCommands::askClassValue(int index) {
    if (!hasClass(index)) {
        return;
    }
    if (!scale().allowValueChange) {
        map_.desk().tell({TextId::ValuesAreFixed, {}});
        return;
    }
    const double before = scale().getClass(index).lower;
    const auto value = ask(TextId::AskClassValue, scale().valueChangeCaption, before);
    if (!value) {
        return;
    }
    if (const std::optional<Failure> refused = scale().setClassValue(index, *value)) {
        map_.desk().tell(*refused);
    } else if (map_.style().mode == ColorMode::Deviation) {
        map_.refreshColorScale();  // a prescription's doses are others
    }
    display_.showLegend();
    display_.redraw();
}

std::optional<double> LegendCommands::ask(TextId prompt, TextId caption, double proposed) const {
    const std::optional<std::string> answer =
        map_.desk().titled(caption).askText(prompt, typed(proposed));
    if (!answer || answer->empty()) {
        return std::nullopt;
    }
    const std::optional<double> number = typedNumber(*answer);
    if (!number) {
        map_.desk().tell({TextId::AnswerNotANumber, {*answer}});
    }
    return number;
}

std::string LegendCommands::typed(double value) const {
    return numberToType(value, map_.desk().decimalSymbol());
}

}  // namespace campora
