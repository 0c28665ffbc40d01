// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <string>
#include <vector>

#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "model/measures.h"
#include "model/shown_number.h"
#include "work/pass_builder.h"
#include "work/reader_tools.h"
#include "work/report_survey.h"
#include "work/rpt_text_table.h"

namespace campora {

namespace {

/// The form of a table with that many column headings, asked for when there is none with as many;
/// none when the user gives no good answer.
std::optional<TableForm> chooseForm(std::size_t columns, std::string_view path,
                                    const WorkDesk& desk) {
    auto wanted = static_cast<double>(columns);
    if (columns != 4 && columns != 8) {
        const std::optional<std::string> answer = desk.askText(TextId::AskColumns, "8", path);
        if (!answer) {
            return std::nullopt;
        }
        wanted = leadingNumber(*answer).value_or(0);
        if (wanted != 4 && wanted != 8) {
            refuseAnswer(TextId::AnswerNotColumns, *answer, path, desk);
            return std::nullopt;
        }
    }
    return wanted == 4 ? TableForm::FourColumns : TableForm::EightColumns;
}

/// Sums over the records of a table.
struct TableSums {
    std::vector<Placement> placements;
    double hectares = 0;
    double meanDose = 0;
    double meanSpeed = 0;  ///< km/h
    BoundsCheck bounds;
    ReportCheck check;
};

TableSums sumUp(const std::vector<ReportRecord>& records) {
    TableSums sums;
    sums.placements.reserve(records.size());
    PassSplitter splitter(kTableLimits);
    double doses = records.front().fields.real[0];
    double speeds = records.front().fields.speed;
    for (const auto& [position, fields] : records) {
        const Placement placement = splitter.place(position, fields.swath);
        sums.placements.push_back(placement);
        checkValues(position, fields, sums.placements.size(), sums.bounds);
        sums.check.addKept(position);
        if (isStep(placement)) {
            doses += fields.real[0];
            speeds += fields.speed;
        }
    }
    sums.hectares = splitter.squareMetres() / kSquareMetresPerHectare;
    if (const auto steps = static_cast<double>(splitter.steps()); steps > 0) {
        sums.meanDose = doses / steps;
        sums.meanSpeed = speeds / steps;
    }
    return sums;
}

void fillSummary(const std::vector<ReportRecord>& records, const TableSums& sums,
                 std::string_view path, const UserLocale& locale, FileProperties& summary) {
    const TimeOfDay& start = records.front().fields.time;
    const TimeOfDay& end = records.back().fields.time;
    summary.addProperty(summary_name::kFile, fileNamePart(path), "");
    summary.addProperty("Hectáreas fumig:", shownNumber(sums.hectares, locale), "");
    summary.addProperty("Dosis Promedio:", shownNumber(sums.meanDose, locale), "lt/hect");
    summary.addProperty(summary_name::kSpeed, shownNumber(sums.meanSpeed, locale), "km/h");
    summary.addProperty(summary_name::kStart, timeText(start), "");
    summary.addProperty(summary_name::kDuration, numberText(minutesBetween(start, end)), "min");
}

}  // namespace

std::optional<LoadedWork> readRptTextTable(std::string_view path, const FileBytes& bytes,
                                           const WorkDesk& desk) {
    const RptTextTable table = splitTable(bytes.text());
    if (trim(table.records).empty()) {
        return refuseWithoutPoints(path, desk);
    }
    const std::optional<TableForm> form = chooseForm(table.columns, path, desk);
    if (!form) {
        return std::nullopt;
    }
    const std::optional<float> swath = form == TableForm::FourColumns ? askSwath(path, desk) : 0;
    if (!swath) {
        return std::nullopt;
    }
    const TableRecords decoded =
        decodeRecords(table.records, *form, desk.locale.decimalSymbol(), *swath);
    const std::vector<ReportRecord>& records = decoded.records;
    if (records.empty()) {
        return refuseWithoutPoints(path, desk);
    }
    LoadedWork work = startWork(path);
    TableSums sums = sumUp(records);
    sums.check.addDropped(decoded.offGlobe.count);
    if (const std::optional<Failure> refusal = sums.check.refusal()) {
        throw FormatError(*refusal);
    }
    addPasses(*work.group, sums.placements, [&](std::size_t i) { return records[i]; });
    for (const ReportRecord& record : records) {
        extend(work.ranges.dose, static_cast<float>(record.fields.real[0]));
    }
    fillSummary(records, sums, path, desk.locale, work.group->File_resumen());
    if (decoded.offGlobe.count > 0) {
        work.group->addRemark(decoded.offGlobe.remark(TextId::RemarkOffGlobe));
    }
    if (decoded.unreadFrom > 0) {
        work.group->addRemark({TextId::RemarkRestUnread, {numberText(decoded.unreadFrom)}});
    }
    tellBounds(sums.bounds, desk.locale, *work.group);
    return work;
}

std::optional<LoadedWork> loadRptTextTable(std::string_view path, const WorkDesk& desk) {
    return readFromDisk(path, desk, readRptTextTable);
}

}  // namespace campora
