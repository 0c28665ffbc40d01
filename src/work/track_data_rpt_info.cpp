// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A report's record in words, for the information box.

#include <cmath>
#include <initializer_list>

#include "model/shown_number.h"
#include "work/track_data_rpt.h"
#include "work/vex_alarmas.h"

namespace campora {

namespace {

constexpr std::string_view kLineEnd = "\r\n";
constexpr std::string_view kIndent = "  ";

/// Collects lines in the user's language.
class InfoLines {
public:
    explicit InfoLines(const InfoContext& context) : context_(context) {}

    void add(TextId text, const std::string& value, std::string_view indent = {}) {
        text_.append(indent).append(context_.texts.format(text, {value})).append(kLineEnd);
    }
    void addNumber(TextId text, double value, std::string_view indent = {}) {
        add(text, shownNumber(value, context_.locale), indent);
    }
    void add(std::string_view line, std::string_view indent = {}) {
        text_.append(indent).append(line).append(kLineEnd);
    }
    [[nodiscard]] std::string text() && { return std::move(text_); }

private:
    const InfoContext& context_;
    std::string text_;
};

void addChannels(InfoLines& lines, const TrackDataRPT& record) {
    const bool several = record.channels() > 1;
    const std::string_view indent = several ? kIndent : std::string_view();
    for (int c = 0; c < record.channels(); ++c) {
        if (several) {
            lines.add(TextId::ReportPointChannel, std::to_string(c + 1));
        }
        const auto index = static_cast<std::size_t>(c);
        const double spec = record.getDosis()[index];
        const double real = record.getCaudal()[index];
        const double error = spec > 0 ? std::abs(real - spec) / spec * 100 : 0;
        lines.addNumber(TextId::ReportPointSpecDose, spec, indent);
        lines.addNumber(TextId::ReportPointRealDose, real, indent);
        lines.addNumber(TextId::ReportPointError, error, indent);
    }
}

void addAlarms(InfoLines& lines, const TrackDataRPT& record, const Texts& texts) {
    const std::uint32_t alarms = record.alarmas() & knownAlarms(record.workKind());
    if (alarms == 0) {
        lines.add(texts(TextId::ReportPointNoAlarms));
        return;
    }
    lines.add(texts(TextId::ReportPointAlarms));
    for (int bit = 0; bit < 32; ++bit) {
        if (((alarms >> static_cast<unsigned>(bit)) & 1U) != 0) {
            lines.add(alarmText(texts, record.workKind(), bit), kIndent);
        }
    }
}

}  // namespace

std::string TrackDataRPT::resumen(const InfoContext& context) const {
    InfoLines lines(context);
    lines.addNumber(TextId::ReportPointSpeed, speed_);
    lines.addNumber(TextId::ReportPointSwath, swath_);
    if (hasDate_) {
        lines.add(TextId::ReportPointDate, dateText(fecha(), context.locale.shortDateForm()));
    }
    lines.add(TextId::ReportPointTime, hora());
    addChannels(lines, *this);
    if (context.style.mode == ColorMode::Alarm) {
        addAlarms(lines, *this, context.texts);
    }
    return std::move(lines).text();
}

}  // namespace campora
