// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <string>
#include <utility>

#include "base/numbers.h"
#include "base/paths.h"
#include "model/measures.h"
#include "model/shown_number.h"
#include "work/pass_builder.h"
#include "work/reader_tools.h"
#include "work/report_survey.h"
#include "work/rpt_view.h"

namespace campora {

namespace {

/// How the summary speaks of the work of a kind of machine.
struct KindNames {
    std::string_view area;
    std::string_view doseUnit;
};

KindNames namesOf(WorkKind kind) {
    switch (kind) {
    case WorkKind::Seeder:
        return {"Hect. Sembradas: ", "unid/hect"};
    case WorkKind::Sprayer:
        return {"Hectáreas fumig: ", "lt/hect"};
    case WorkKind::OlderForm:
        break;
    }
    return {"Hect. Trabajadas: ", "unid/hect"};
}

void addDoseEntries(const RptView& report, const ReportSurvey& survey, const UserLocale& locale,
                    FileProperties& summary) {
    const std::int32_t channels = report.highestChannel() + 1;
    for (std::int32_t channel = 0; channel < channels; ++channel) {
        const std::string suffix = channels == 1 ? ": " : " (C " + numberText(channel + 1) + "):";
        const auto sum = static_cast<double>(survey.doseSums[static_cast<std::size_t>(channel)]);
        summary.addProperty("Dosis Prom." + suffix, shownNumber(survey.perStep(sum), locale),
                            namesOf(report.workKind()).doseUnit);
    }
}

void fillSummary(const RptView& report, const ReportSurvey& survey, std::string_view path,
                 const UserLocale& locale, FileProperties& summary) {
    summary.addProperty(summary_name::kFile, fileNamePart(path), "");
    summary.addProperty("Numero de Serie:", report.serial(), "");
    if (const std::uint32_t version = report.version(); version != 0) {
        summary.addProperty(
            "Ver. Firmware:", formatVersion(static_cast<std::uint16_t>(version & 0xFFFFU)), "");
        summary.addProperty(
            "Ver. Hardware:", formatVersion(static_cast<std::uint16_t>(version >> 16U)), "");
    }
    summary.addProperty(namesOf(report.workKind()).area,
                        shownNumber(survey.squareMetres / kSquareMetresPerHectare, locale), "");
    addDoseEntries(report, survey, locale, summary);
    summary.addProperty(summary_name::kSpeed, shownNumber(survey.perStep(survey.speedSum), locale),
                        "km/h");
    const TrackDataRPT first(report.record(*survey.start).fields);
    summary.addProperty(summary_name::kStart, first.fechaHoraStr(locale), "");
    const double minutes = static_cast<double>(survey.workingSeconds) / 60;
    summary.addProperty(summary_name::kDuration, numberText(roundToInt32(minutes)), "min");
}

void addRemarks(const RptView& report, const ReportSurvey& survey, const UserLocale& locale,
                FileGphGroup& group) {
    if (const std::size_t bytes = report.cutBytes(); bytes > 0) {
        group.addRemark(
            {TextId::RemarkCutRecord, {numberText(bytes), numberText(report.recordSize())}});
    }
    if (survey.withoutPosition.count > 0) {
        group.addRemark(survey.withoutPosition.remark(TextId::RemarkNoPosition));
    }
    if (survey.farRecords.count > 0) {
        Remark remark = survey.farRecords.remark(TextId::RemarkFarRecords);
        remark.arguments.push_back(numberText(kReportLimits.glitch / 1000));
        group.addRemark(std::move(remark));
    }
    tellBounds(survey.bounds, locale, group);
}

}  // namespace

std::optional<LoadedWork> readRptFile(std::string_view path, const FileBytes& bytes,
                                      const WorkDesk& desk) {
    RptView report(bytes.bytes());
    if (report.highestChannel() > RptView::kHighestChannel) {
        desk.tell({TextId::TooManyChannels, {numberText(RptView::kHighestChannel)}},
                  MessageIcon::Error);
        return std::nullopt;
    }
    LoadedWork work = startWork(path);
    ReportSurvey survey = surveyReport(report, work.ranges);
    if (!survey.start) {
        return refuseWithoutPoints(path, desk);
    }
    if (const std::optional<Failure> refusal = survey.check.refusal()) {
        throw FormatError(*refusal);
    }
    if (report.form() == RptView::Form::FourFields) {
        const std::optional<float> swath = askSwath(path, desk);
        if (!swath) {
            return std::nullopt;
        }
        report.setSwath(*swath);
        survey = surveyReport(report, work.ranges);
    }
    addPasses(*work.group, survey.placements, [&](std::size_t i) { return report.record(i); });
    if (survey.alarmsAreCounter) {
        work.group->clearAlarmas();
    }
    work.group->icon = "rptfile";
    work.kind = report.workKind();
    fillSummary(report, survey, path, desk.locale, work.group->File_resumen());
    addRemarks(report, survey, desk.locale, *work.group);
    return work;
}

std::optional<LoadedWork> loadRptFile(std::string_view path, const WorkDesk& desk) {
    return readFromDisk(path, desk, readRptFile);
}

}  // namespace campora
