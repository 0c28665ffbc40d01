// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/summary_rows.h"

#include <string>
#include <string_view>

#include "app/summary_names.h"
#include "base/text.h"
#include "model/shown_summary.h"

namespace campora {

namespace {

/// Value, a blank and the unit.
std::string withUnit(const std::string& value, std::string_view unit, const Texts& texts) {
    return value + " " + shownUnit(unit, texts);
}

SummaryRow summaryRow(const ShownEntry& row, const Texts& texts) {
    const std::string name = shownSummaryName(row.property, texts);
    const std::string value = withUnit(row.value, row.unit, texts);
    switch (row.origin) {
    case ShownEntry::Origin::Edited:
        return {name, texts.format(TextId::EditedValue, {std::string(trim(value))}), true,
                texts.format(TextId::MeasuredValue,
                             {withUnit(row.measuredValue, row.measuredUnit, texts)})};
    case ShownEntry::Origin::Added:
        return {name, value, true, std::string(texts(TextId::AddedByHand))};
    case ShownEntry::Origin::Measured:
        break;
    }
    return {name, value};
}

}  // namespace

std::vector<SummaryRow> summaryRows(File* file, const Texts& texts) {
    std::vector<SummaryRow> rows;
    if (file == nullptr) {
        return rows;
    }
    const FileProperties& summary = file->File_resumen();
    for (const ShownEntry& row : shownEntries(summary)) {
        SummaryRow& shown = rows.emplace_back(summaryRow(row, texts));
        shown.isDoubtful =
            row.origin == ShownEntry::Origin::Measured && summary.isDoubtful(row.property);
        if (shown.isDoubtful) {
            shown.value.append(" ").append(kDoubtMark);
            shown.note = texts(TextId::FigureInDoubt);
        }
    }
    for (const Remark& remark : file->remarks()) {
        SummaryRow& shown = rows.emplace_back(
            SummaryRow{std::string(texts(TextId::RemarkName)), texts.sentence(remark)});
        shown.isRemark = true;
    }
    return rows;
}

}  // namespace campora
