// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <cmath>
#include <string>
#include <utility>
#include <vector>

#include "app/findings/find_in_files.h"
#include "app/findings/finding_table.h"
#include "base/dates.h"
#include "base/numbers.h"
#include "base/plain_text.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/csv_table.h"
#include "cli/json_document.h"
#include "work/vex_alarmas.h"

namespace campora {

namespace {

Json figure(const std::optional<double>& value) {
    // What a sum of steps has behind the sixth place is its rounding.
    constexpr double kPlaces = 1e6;
    return value ? Json(std::round(*value * kPlaces) / kPlaces) : Json();
}

/// "2025-11-14T08:12:04"; null without a date.
Json timeJson(const RecordTime& time) {
    constexpr std::int64_t kDay = 86400;
    if (time.clock != RecordClock::DateAndTime) {
        return {};
    }
    const auto ofDay = static_cast<int>((time.second % kDay + kDay) % kDay);
    const Date date = dateOfDayNumber(static_cast<std::int32_t>((time.second - ofDay) / kDay));
    return dateText(date, "yyyy-mm-dd") + "T" +
           timeText({ofDay / 3600, ofDay / 60 % 60, ofDay % 60});
}

Json passJson(const std::string& file, std::size_t number, const Pass& pass) {
    return {{"file", file},
            {"pass", number},
            {"start", timeJson(pass.start)},
            {"seconds", figure(pass.seconds)},
            {"metres", figure(pass.metres)},
            {"hectares", figure(pass.hectares)},
            {"dose", figure(pass.dose)},
            {"doseDeviation", figure(pass.doseDeviation)},
            {"speedKmh", figure(pass.speedKmh)},
            {"headingDegrees", figure(pass.headingDegrees)},
            {"largestError", figure(pass.largestError)}};
}

/// Of an alarm its text; null for other kinds.
Json alarmJson(const Texts& texts, const Problem& problem, WorkKind machine) {
    return problem.alarm < 0 ? Json() : Json(alarmText(texts, machine, problem.alarm));
}

Json problemJson(const std::string& file, const Problem& problem, const Json& alarm) {
    constexpr std::array kKinds = {"no-dose", "off-dose", "alarm", "gap", "speed", "swath"};
    return {{"file", file},
            {"kind", kKinds[static_cast<std::size_t>(problem.kind)]},
            {"alarm", alarm},
            {"start", timeJson(problem.start)},
            {"seconds", figure(problem.seconds)},
            {"metres", figure(problem.metres)},
            {"hectares", figure(problem.hectares)},
            {"dose", figure(problem.dose)},
            {"specified", figure(problem.specified)},
            {"lost", figure(problem.lost)},
            {"lon", problem.position.x},
            {"lat", problem.position.y},
            {"firstRecord", problem.firstRecord},
            {"lastRecord", problem.lastRecord}};
}

/// In order of time as far as there are dates; what has none keeps its place after them.
void sortByStart(Json& rows) {
    std::stable_sort(rows.begin(), rows.end(), [](const Json& a, const Json& b) {
        const Json& first = a.at("start");
        const Json& second = b.at("start");
        if (first.is_null() || second.is_null()) {
            return !first.is_null() && second.is_null();
        }
        return first.get_ref<const std::string&>() < second.get_ref<const std::string&>();
    });
}

std::string csvCell(const Json& value, char symbol) {
    if (value.is_null()) {
        return {};
    }
    if (value.is_string()) {
        return value.get<std::string>();
    }
    return value.is_number_float() ? numberText(value.get<double>(), symbol)
                                   : numberText(value.get<std::uint64_t>());
}

/// The members of `form` as headings, and those of the rows under them.
void printCsv(const Json& rows, const Json& form, char symbol, std::ostream& out) {
    std::vector<std::string> cells;
    for (const auto& member : form.items()) {
        cells.push_back(member.key());
    }
    out << csvLine(cells, symbol);
    for (const Json& row : rows) {
        std::transform(row.begin(), row.end(), cells.begin(),
                       [symbol](const Json& value) { return csvCell(value, symbol); });
        out << csvLine(cells, symbol);
    }
}

std::size_t widthOf(const std::string& text) {
    return static_cast<std::size_t>(std::count_if(
        text.begin(), text.end(), [](char byte) { return (byte & '\xC0') != '\x80'; }));
}

/// Columns side by side, figures at their right ends.
void printTable(const FindingTable& table, std::ostream& out) {
    const std::size_t columns = table.columns().size();
    std::vector<std::vector<std::string>> lines(table.rowCount() + 1);
    std::vector<std::size_t> widths(columns);
    for (std::size_t line = 0; line < lines.size(); ++line) {
        for (std::size_t column = 0; column < columns; ++column) {
            lines[line].push_back(line == 0 ? table.heading(column) : table.cell(line - 1, column));
            widths[column] = std::max(widths[column], widthOf(lines[line].back()));
        }
    }
    for (const std::vector<std::string>& cells : lines) {
        std::string line;
        for (std::size_t column = 0; column < columns; ++column) {
            const std::string room(widths[column] - widthOf(cells[column]), ' ');
            const bool isRight = table.isFigure(column);
            line.append(isRight ? room : "").append(cells[column]).append(isRight ? "" : room);
            line.append("  ");
        }
        line.erase(line.find_last_not_of(' ') + 1);
        out << line << '\n';
    }
}

}  // namespace

int runPasses(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    const bool all = batch.openFiles();
    FindingTable table(FindingTable::Kind::Passes, batch.desk());
    Json rows = Json::array();
    for (const File* file : batch.map().files().all()) {
        const std::vector<Pass> passes = passesOf(*file, arguments.style.errorLimit);
        table.addFile(file->File_name(), passes);
        for (const Pass& pass : passes) {
            const auto number = static_cast<std::size_t>(&pass - passes.data()) + 1;
            rows.push_back(passJson(file->File_diskPath(), number, pass));
        }
    }
    if (arguments.json) {
        printJson({{"passes", std::move(rows)}}, console.out);
    } else if (arguments.csv) {
        printCsv(rows, passJson({}, 0, {}), arguments.decimalSymbol, console.out);
    } else {
        printTable(table, console.out);
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

int runProblems(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    const bool all = batch.openFiles();
    const Texts& texts = batch.desk().texts;
    FindingTable table(FindingTable::Kind::Problems, batch.desk());
    Json rows = Json::array();
    for (const File* file : batch.map().files().all()) {
        const Problems problems = problemsOf(*file, arguments.style.errorLimit);
        const WorkKind machine = workKindOf(*file).value_or(WorkKind::Seeder);
        table.addFile(file->File_name(), problems, machine);
        for (const Problem& problem : problems.rows) {
            rows.push_back(
                problemJson(file->File_diskPath(), problem, alarmJson(texts, problem, machine)));
        }
    }
    sortByStart(rows);
    if (arguments.json) {
        printJson({{"problems", std::move(rows)}, {"turns", table.turns()}}, console.out);
    } else if (arguments.csv) {
        printCsv(rows, problemJson({}, {}, {}), arguments.decimalSymbol, console.out);
    } else {
        if (batch.map().plotCount() > 1) {
            table.sortBy(FindingTable::kStartColumn, false);
        }
        printTable(table, console.out);
        console.out << texts.format(TextId::TurnsLeftOut, {numberText(table.turns())}) << '\n';
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
