// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/colours/color_mode_commands.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <variant>

#include "base/numbers.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "model/measures.h"
#include "model/work_layer.h"
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

std::vector<AlarmEntry> MapModes::alarmEntries() const {
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

void MapModes::mnuAlarmsAll() {
    setAlarms(~std::uint32_t{0});
}

void MapModes::mnuAlarmsNone() {
    setAlarms(0);
}

void MapModes::setAlarms(std::uint32_t bits) {
    map_.style().alarmSelection.fill(bits);
    redraw();
}

void MapModes::mnuAlarmsAlarm(int index) {
    if (index < 0 || index >= kAlarmEntries) {
        return;
    }
    const auto place = static_cast<unsigned>(index);
    map_.style().alarmSelection[place / kBits] ^= 1U << (place % kBits);
    redraw();
}

void MapModes::mnuAlarmsPaint() {
    toggle(ColorMode::Alarm);
}

void MapModes::mnuColorDateMap() {
    toggle(ColorMode::Date);
}

void MapModes::mnuColorErrorMap() {
    toggle(ColorMode::Error);
}

void MapModes::toggle(ColorMode mode) {
    MapStyle& style = map_.style();
    const ColorMode before = style.mode;
    style.mode = before == mode ? ColorMode::Dose : mode;
    if (before == ColorMode::Alarm && style.mode == ColorMode::Dose) {
        showAgain();  // the alarm map had the classes of the dose
        return;
    }
    if (before == ColorMode::Error && style.mode != ColorMode::Error) {
        map_.recalcErrorAreas();
        display_.showSummary();
    }
    showNewClasses();
}

void MapModes::mnuColorErrorMapMin() {
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

bool MapModes::canShowDates() const {
    return map_.ranges().date.has_value();
}

void MapModes::mnuEditGraduated() {
    MapStyle& style = map_.style();
    style.graduated = !style.graduated;
    showAgain();
}

void MapModes::mnuEditGraduatedByLtsHect() {
    graduateBy(GraduatedBy::Hectare);
}

void MapModes::mnuEditGraduatedByLtsMin() {
    graduateBy(GraduatedBy::Minute);
}

void MapModes::graduateBy(GraduatedBy by) {
    map_.style().by = by;
    showNewClasses();
}

int MapModes::channelCount() const {
    int most = map_.style().selectedChannel + 1;  // the one in use is always offered
    for (int i = 0; i < map_.files().loadedCount(); ++i) {
        most = std::max(most, channelsOf(map_.files().file(i)));
    }
    return most;
}

std::string MapModes::channelCaption(int index) const {
    return map_.desk().texts.format(TextId::ReportPointChannel, {numberText(index + 1)});
}

void MapModes::mnuColorScaleSelTotal() {
    mnuColorScaleSelCH(-1);
}

void MapModes::mnuColorScaleSelCH(int index) {
    selectChannel(map_, index);
    showNewClasses();
}

void MapModes::mnuEditDrawAll() {
    map_.style().drawAll = !map_.style().drawAll;
    redraw();
}

void MapModes::mnuEditDoted() {
    bool& dotted = map_.style().drawDotted;
    dotted = !dotted;
    writeSwitch(settings_, SettingId::DrawDotted, dotted);
    redraw();
}

void MapModes::mnuEditDrawBorder() {
    bool& borders = map_.style().drawBorders;
    borders = !borders;
    writeSwitch(settings_, SettingId::DrawBorders, borders);
    redraw();
}

TextId MapModes::drawAllCaption() const {
    switch (map_.history().lastKind.value_or(WorkKind::Sprayer)) {
    case WorkKind::Seeder:
        return TextId::OnlySown;
    case WorkKind::OlderForm:
        return TextId::OnlyWorked;
    case WorkKind::Sprayer:
        break;
    }
    return TextId::OnlySprayed;
}

void MapModes::mnuEditTrocha() {
    const std::optional<std::string> answer = map_.desk().askText(TextId::AskSwath, {});
    if (!answer || answer->empty()) {
        return;
    }
    const std::optional<double> metres = typedNumber(*answer);
    const float swath = static_cast<float>(std::min(metres.value_or(0), kWidestSwath));
    if (swath <= 0) {
        map_.desk().tell({metres ? TextId::SwathNotPositive : TextId::AnswerNotANumber, {*answer}});
        return;
    }
    for (Gph* layer : map_.getGphList()) {
        if (auto* const work = dynamic_cast<WorkLayer*>(layer)) {
            work->trocha(swath);
        }
    }
    if (map_.style().mode == ColorMode::Error) {
        map_.recalcErrorAreas();
        display_.showSummary();
    }
    display_.redraw();
}

void MapModes::chooseColor(SettingId id) {
    const auto settings = colorSettings();
    const auto found = std::find_if(settings.begin(), settings.end(),
                                    [id](const ColorSetting& row) { return row.id == id; });
    Color& color = map_.style().colors.*found->color;
    const std::optional<Color> chosen = map_.desk().dialogs.chooseColor(color);
    if (!chosen) {
        return;
    }
    color = *chosen;
    writeColor(settings_, id, color);
    showAgain();
}

void MapModes::mnuEditColorDefect() {
    map_.style().colors = {};
    for (const auto& [id, color] : colorSettings()) {
        writeColor(settings_, id, map_.style().colors.*color);
    }
    showAgain();
}

void MapModes::showNewClasses() {
    map_.refreshColorScale();
    display_.showLegend();
    if (map_.style().mode == ColorMode::Error) {
        map_.recalcErrorAreas();
        display_.showSummary();
    }
    redraw();
}

void MapModes::showAgain() {
    display_.showLegend();
    redraw();
}

void MapModes::redraw() {
    display_.redraw();
    display_.window().commandsChanged();
}

}  // namespace campora
