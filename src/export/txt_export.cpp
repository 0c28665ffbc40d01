// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "export/txt_export.h"

#include <algorithm>
#include <array>
#include <charconv>
#include <cmath>
#include <cstddef>
#include <vector>

#include "base/encoding.h"
#include "base/file_draft.h"
#include "base/numbers.h"
#include "base/text.h"
#include "export/export_layers.h"

namespace campora {

namespace {

constexpr int kMostDigits = 15;
constexpr std::string_view kLineEnd = "\r\n";

/// At most 15 digits, "." as decimal point with a zero before it, never an exponent.
void appendNumber(std::string& line, double value) {
    std::array<char, 32> buffer;
    char* const end = std::to_chars(buffer.data(), buffer.data() + buffer.size(), value,
                                    std::chars_format::general, kMostDigits)
                          .ptr;
    const std::string_view text(buffer.data(), static_cast<std::size_t>(end - buffer.data()));
    const bool isPlain = text.find_first_not_of("-.0123456789") == std::string_view::npos;
    if (isPlain && value != 0) {
        line += text;
    } else {
        line += numberText(std::isfinite(value) ? leadingNumber(text).value_or(0) : 0.0);
    }
}

/// With a blank in the place of the sign.
void appendCoordinate(std::string& line, double degrees) {
    if (!(degrees < 0)) {
        line.push_back(' ');
    }
    appendNumber(line, degrees);
}

/// In the code page of the table, in one line and one field.
void appendText(std::string& line, std::string_view text) {
    const std::size_t begin = line.size();
    line += toWindows1252(text);
    std::replace_if(
        line.begin() + static_cast<std::ptrdiff_t>(begin), line.end(),
        [](char letter) { return letter == '\t' || letter == '\r' || letter == '\n'; }, ' ');
}

/// Cells as the user's locale writes them.
class CellTexts {
public:
    explicit CellTexts(const UserLocale& locale)
        : symbol_(locale.decimalSymbol()), dateForm_(locale.shortDateForm()) {}

    void append(std::string& line, const CellValue& cell) {
        const std::size_t begin = line.size();
        if (const auto* text = std::get_if<std::string>(&cell)) {
            appendText(line, *text);
        } else if (const auto* date = std::get_if<Date>(&cell)) {
            appendText(line, cachedDate(*date));
        } else if (const auto* whole = std::get_if<std::int64_t>(&cell)) {
            line += numberText(*whole);
        } else if (const auto* number = std::get_if<double>(&cell)) {
            appendNumber(line, *number);
            useSymbol(line, begin);
        } else if (const auto* single = std::get_if<float>(&cell)) {
            line += numberText(*single);
            useSymbol(line, begin);
        }
    }

private:
    /// The points of a day come one after another.
    const std::string& cachedDate(const Date& date) {
        if (lastText_.empty() || !(date == lastDate_)) {
            lastDate_ = date;
            lastText_ = dateText(date, dateForm_);
        }
        return lastText_;
    }
    void useSymbol(std::string& line, std::size_t begin) const {
        std::replace(line.begin() + static_cast<std::ptrdiff_t>(begin), line.end(), '.', symbol_);
    }

    char symbol_;
    std::string dateForm_;
    Date lastDate_;
    std::string lastText_;
};

/// The layers with points; none of them with data unless all have some.
std::vector<ExportLayer> tableLayers(std::span<const Gph* const> layers) {
    std::vector<ExportLayer> found = pointLayers(layers);
    std::erase_if(found, [](const ExportLayer& layer) { return layer.count == 0; });
    if (!allHaveColumns(found)) {
        for (ExportLayer& layer : found) {
            layer.data = nullptr;
        }
    }
    return found;
}

std::string headingLine(const ExportColumns& columns, const TextTableForm& form) {
    std::string line = "Longitud" + form.separator + "Latitud";
    for (const ExportColumn& column : columns.columns()) {
        // A character is one byte in the code page of the table.
        std::string name;
        appendText(name, trim(column.name));
        if (form.longestName != TextTableForm::kWholeNames) {
            name.resize(std::min<std::size_t>(name.size(), form.longestName));
        }
        line.append(form.separator).append(name);
    }
    return line.append(kLineEnd);
}

/// Writes the lines of layers.
class TableLines {
public:
    TableLines(const TextTableForm& form, const UserLocale& locale, FileDraft& file,
               ExportProgress& progress)
        : form_(form),
          systemSymbol_(locale.decimalSymbol()),
          cells_(locale),
          file_(file),
          progress_(progress) {}

    /// False when the user has cancelled. `index`: of the layer among those of the columns.
    bool write(const ExportLayer& layer, std::size_t index, const ExportColumns& columns) {
        // A column that track files and reports share is in one unit.
        const CellOptions options{true, columns.differ()};
        for (std::int32_t point = 0; point < layer.count; ++point) {
            if (!progress_.next()) {
                return false;
            }
            const LonLat at = layer.points->ExportablePoint_pointN(point);
            line_.clear();
            appendCoordinate(line_, at.x);
            line_ += form_.separator;
            appendCoordinate(line_, at.y);
            for (std::size_t column = 0; column < columns.columns().size(); ++column) {
                line_ += form_.separator;
                cells_.append(line_, columns.cell(index, point, column, options));
            }
            std::replace(line_.begin(), line_.end(), systemSymbol_, form_.decimalSymbol);
            line_ += kLineEnd;
            file_.write(line_);
        }
        return true;
    }

private:
    const TextTableForm& form_;
    char systemSymbol_;
    CellTexts cells_;
    FileDraft& file_;
    ExportProgress& progress_;
    std::string line_;
};

}  // namespace

std::optional<Failure> txtExport(std::span<const Gph* const> layers, std::string_view path,
                                 const TextTableForm& form, const UserLocale& locale,
                                 ExportProgress& progress) {
    const std::vector<ExportLayer> table = tableLayers(layers);
    if (table.empty()) {
        return Failure{TextId::NoPointsToExport, {}, {}};
    }
    progress.expect(figureCount(table));
    FileDraft file(path);
    const ExportColumns columns = ExportColumns::ofAll(table);
    file.write(headingLine(columns, form));
    TableLines lines(form, locale, file, progress);
    for (std::size_t i = 0; i < table.size(); ++i) {
        if (!lines.write(table[i], i, columns)) {
            return std::nullopt;
        }
    }
    return file.finish();
}

}  // namespace campora
