// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <array>
#include <string>
#include <utility>
#include <vector>

#include "app/findings/find_in_files.h"
#include "app/findings/finding_table.h"
#include "base/dates.h"
#include "base/numbers.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/json_document.h"
#include "cli/printed_table.h"
#include "work/vex_alarmas.h"

namespace campora {

namespace {

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
            {"seconds", figureJson(pass.seconds)},
            {"metres", figureJson(pass.metres)},
            {"hectares", figureJson(pass.hectares)},
            {"dose", figureJson(pass.dose)},
            {"doseDeviation", figureJson(pass.doseDeviation)},
            {"speedKmh", figureJson(pass.speedKmh)},
            {"headingDegrees", figureJson(pass.headingDegrees)},
            {"largestError", figureJson(pass.largestError)}};
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
            {"seconds", figureJson(problem.seconds)},
            {"metres", figureJson(problem.metres)},
            {"hectares", figureJson(problem.hectares)},
            {"dose", figureJson(problem.dose)},
            {"specified", figureJson(problem.specified)},
            {"lost", figureJson(problem.lost)},
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

void printFound(const FindingTable& table, std::ostream& out) {
    const std::size_t columns = table.columns().size();
    std::vector<std::vector<std::string>> lines(table.rowCount() + 1);
    for (std::size_t line = 0; line < lines.size(); ++line) {
        for (std::size_t column = 0; column < columns; ++column) {
            lines[line].push_back(line == 0 ? table.heading(column) : table.cell(line - 1, column));
        }
    }
    printTable(
        lines, [&table](std::size_t column) { return table.isFigure(column); }, out);
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
        printFound(table, console.out);
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
        printFound(table, console.out);
        console.out << texts.format(TextId::TurnsLeftOut, {numberText(table.turns())}) << '\n';
    }
    return all ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
