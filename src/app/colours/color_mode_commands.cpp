// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/color_mode_commands.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <variant>

#include "app/mode_switch.h"
#include "base/numbers.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "presc/multi_channel.h"
#include "work/gph_track.h"
#include "work/vex_alarmas.h"
#include "work/work_kind.h"

namespace campora {

namespace {

constexpr int kBits = 32;

WorkKind kindOfEntry(int index) {
    return index < kBits ? WorkKind::Seeder : WorkKind::Sprayer;
}

/// The first entry is the plain text; the others name the console that reports the alarm.
std::string alarmCaption(const Texts& texts, int index) {
    std::string text(alarmText(texts, kindOfEntry(index), index % kBits));
    if (text.empty() || index == 0) {
        return text;
    }
    return texts.format(index < kBits ? TextId::SeederAlarm : TextId::SprayerAlarm, {text});
}

/// Dose channels of a layer of work; the records of a track have equally many.
int channelsOf(const Gph& layer) {
    const auto* const track = dynamic_cast<const GphTrack*>(&layer);
    const auto* const reports =
        track != nullptr ? std::get_if<GphTrack::RptRecords>(&track->records()) : nullptr;
    const bool isReport = reports != nullptr && !reports->empty();
    return isReport ? static_cast<int>(reports->front().getCaudal().size()) : 0;
}

int channelsOf(const File& file) {
    if (const auto* const several = dynamic_cast<const MultiChannel*>(&file)) {
        return several->channelsCnt();
    }
    int most = 0;
    for (const Gph* layer : file.File_gphList()) {
        most = std::max(most, channelsOf(*layer));
    }
    return most;
}

std::string_view withoutPercent(std::string_view answer) {
    answer = trim(answer);
    return answer.ends_with('%') ? answer.substr(0, answer.size() - 1) : answer;
}

}  // namespace

std::vector<AlarmEntry> ColorModeCommands::alarmEntries() const {
    std::vector<AlarmEntry> entries;
    entries.reserve(kAlarmEntries);
    for (int i = 0; i < kAlarmEntries; ++i) {
        std::string caption = alarmCaption(map_.desk().texts, i);
        const bool visible = !caption.empty();
        entries.push_back(
            {std::move(caption), visible, isAlarmChecked(map_.style(), kindOfEntry(i), i % kBits)});
    }
    return entries;
}

void ColorModeCommands::mnuAlarmsAll() {
    setAlarms(~std::uint32_t{0});
}

void ColorModeCommands::mnuAlarmsNone() {
    setAlarms(0);
}

void ColorModeCommands::setAlarms(std::uint32_t bits) {
    map_.style().alarmSelection.fill(bits);
    display_.styleChanged();
}

void ColorModeCommands::mnuAlarmsAlarm(int index) {
    if (index < 0 || index >= kAlarmEntries) {
        return;
    }
    const auto place = static_cast<unsigned>(index);
    map_.style().alarmSelection[place / kBits] ^= 1U << (place % kBits);
    display_.styleChanged();
}

void ColorModeCommands::mnuAlarmsPaint() {
    toggle(ColorMode::Alarm);
}

void ColorModeCommands::mnuColorDateMap() {
    toggle(ColorMode::Date);
}

void ColorModeCommands::mnuColorErrorMap() {
    toggle(ColorMode::Error);
}

void ColorModeCommands::toggle(ColorMode mode) {
    MapStyle& style = map_.style();
    const ColorMode before = style.mode;
    style.mode = before == mode ? ColorMode::Dose : mode;
    if (before == ColorMode::Alarm && style.mode == ColorMode::Dose) {
        showAgain();  // the alarm map had the classes of the dose
        return;
    }
    map_.refreshColorScale();
    showMode(map_, display_, before);
}

void ColorModeCommands::mnuColorErrorMapMin() {
    MapStyle& style = map_.style();
    const std::optional<std::string> answer =
        map_.desk()
            .titled(TextId::ErrorMap)
            .askText(TextId::AskErrorLimit,
                     numberToType(style.errorLimit, map_.desk().decimalSymbol()));
    if (!answer || answer->empty()) {
        return;
    }
    const std::optional<double> percent = typedNumber(withoutPercent(*answer));
    if (!percent) {
        map_.desk().tell({TextId::AnswerNotANumber, {*answer}});
        return;
    }
    style.errorLimit = static_cast<float>(*percent);
    if (style.mode == ColorMode::Error) {
        showNewClasses();
    } else {
        mnuColorErrorMap();
    }
}

bool ColorModeCommands::canShowDates() const {
    return map_.ranges().date.has_value();
}

void ColorModeCommands::mnuEditGraduated() {
    MapStyle& style = map_.style();
    style.graduated = !style.graduated;
    showAgain();
}

void ColorModeCommands::mnuEditGraduatedByLtsHect() {
    graduateBy(GraduatedBy::Hectare);
}

void ColorModeCommands::mnuEditGraduatedByLtsMin() {
    graduateBy(GraduatedBy::Minute);
}

void ColorModeCommands::graduateBy(GraduatedBy by) {
    map_.style().by = by;
    showNewClasses();
}

int ColorModeCommands::channelCount() const {
    int most = map_.style().selectedChannel + 1;  // the one in use is always offered
    for (int i = 0; i < map_.files().loadedCount(); ++i) {
        most = std::max(most, channelsOf(map_.files().file(i)));
    }
    return most;
}

std::string ColorModeCommands::channelCaption(int index) const {
    return map_.desk().texts.format(TextId::ReportPointChannel, {numberText(index + 1)});
}

void ColorModeCommands::mnuColorScaleSelTotal() {
    mnuColorScaleSelCH(-1);
}

void ColorModeCommands::mnuColorScaleSelCH(int index) {
    selectChannel(map_, index);
    showNewClasses();
}

void ColorModeCommands::showNewClasses() {
    map_.refreshColorScale();
    showMode(map_, display_, map_.style().mode);
}

void ColorModeCommands::showAgain() {
    display_.showLegend();
    display_.styleChanged();
}

}  // namespace campora
