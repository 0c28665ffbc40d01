// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/parse_arguments.h"

#include <algorithm>
#include <iterator>
#include <string_view>

#include "base/file_endings.h"
#include "base/paths.h"
#include "base/text.h"
#include "cli/options.h"

namespace campora {

namespace {

struct CommandRow {
    Command command;
    std::string_view name;
    TextId help;
};

constexpr CommandRow kCommands[] = {
    {Command::Info, "info", TextId::CliInfo},
    {Command::Render, "render", TextId::CliRender},
    {Command::Export, "export", TextId::CliExport},
    {Command::ExportTrack, "export-track", TextId::CliExportTrack},
    {Command::ReportToText, "report-to-text", TextId::CliReportToText},
    {Command::Glg, "glg", TextId::CliGlg},
    {Command::Prescribe, "prescribe", TextId::CliPrescribe},
    {Command::Lot, "lot", TextId::CliLot},
    {Command::Merge, "merge", TextId::CliMerge},
    {Command::Orders, "orders", TextId::CliOrders},
    {Command::Project, "project", TextId::CliProject},
    {Command::Compare, "compare", TextId::CliCompare},
    {Command::Passes, "passes", TextId::CliPasses},
    {Command::Problems, "problems", TextId::CliProblems},
    {Command::Coverage, "coverage", TextId::CliCoverage},
};

const Option* findOption(Command command, std::string_view name) {
    const std::span<const Option> options = allOptions();
    const auto found = std::find_if(options.begin(), options.end(), [&](const Option& option) {
        return option.name == name && option.command.value_or(command) == command;
    });
    return found == options.end() ? nullptr : &*found;
}

std::size_t valueCount(const Option& option) {
    return option.value.empty() ? 0 : split(option.value, ' ').size();
}

/// Takes the option that begins the rest of a command line off it.
std::optional<Failure> takeOption(Arguments& parsed, std::span<const std::string>& rest) {
    const std::string& name = rest.front();
    const Option* const option = findOption(parsed.command, name);
    if (option == nullptr) {
        return Failure{TextId::CliUnknownOption, {name}};
    }
    const std::size_t values = valueCount(*option);
    if (rest.size() <= values) {
        return Failure{TextId::CliMissingValue, {name}};
    }
    // A switch is set with its own name.
    for (std::size_t i = std::min<std::size_t>(values, 1); i <= values; ++i) {
        if (!option->set(parsed, rest[i])) {
            return Failure{TextId::CliBadValue, {name, rest[i]}};
        }
    }
    rest = rest.subspan(1 + values);
    return std::nullopt;
}

/// Whether a word that begins with a sign is one of a lot's vertices and no option.
bool isVertex(Command command, std::string_view word) {
    return command == Command::Lot && word.size() > 1 &&
           std::string_view("0123456789.").find(word[1]) != std::string_view::npos;
}

/// A file or, for a lot, a vertex.
std::optional<Failure> takeWord(Arguments& parsed, const std::string& word) {
    if (parsed.command != Command::Lot) {
        parsed.files.push_back(word);
        return std::nullopt;
    }
    const std::optional<LonLat> vertex = parseVertex(word);
    if (!vertex) {
        return Failure{TextId::CliBadValue, {"lot", word}};
    }
    parsed.vertices.push_back(*vertex);
    return std::nullopt;
}

/// What a command lacks, or has too much of.
std::optional<Failure> checkFiles(const Arguments& parsed) {
    if (parsed.command == Command::Prescribe) {
        // Its files stand in its options, but for one that is there and is only checked.
        const std::size_t most = parsed.check && parsed.prescription.channels.empty() ? 1 : 0;
        return parsed.files.size() <= most
                   ? std::nullopt
                   : std::optional(Failure{TextId::CliUnknownOption, {parsed.files[most]}});
    }
    if (parsed.command == Command::Lot) {
        constexpr std::size_t kFewestVertices = 3;
        return parsed.vertices.size() < kFewestVertices
                   ? std::optional(Failure{TextId::LotTooFew, {}})
                   : std::nullopt;
    }
    if (parsed.files.empty()) {
        return Failure{TextId::CliMissingFile, {}};
    }
    if (parsed.command == Command::Compare && parsed.files.size() < 2) {
        return Failure{TextId::CliMissingFile, {}};
    }
    const bool takesOne = parsed.command == Command::Orders || parsed.command == Command::Project ||
                          parsed.command == Command::ReportToText;
    if (takesOne && parsed.files.size() > 1) {
        return Failure{TextId::CliUnknownOption, {parsed.files[1]}};
    }
    return std::nullopt;
}

bool needsOutput(Command command) {
    constexpr Command kCommandsWithOne[] = {Command::Render,       Command::Export,    Command::Glg,
                                            Command::ReportToText, Command::Prescribe, Command::Lot,
                                            Command::Merge};
    return std::find(std::begin(kCommandsWithOne), std::end(kCommandsWithOne), command) !=
           std::end(kCommandsWithOne);
}

std::optional<Failure> checkOptions(const Arguments& parsed) {
    const bool isThere = parsed.check && !parsed.files.empty();
    const bool prescribes = parsed.command == Command::Prescribe && !isThere;
    if (prescribes && parsed.prescription.channels.empty()) {
        return Failure{TextId::CliMissingOption, {"--channel"}};
    }
    const bool isVrt = parsed.prescription.kind == GridKind::Vrt;
    if (prescribes && isVrt && !parsed.prescription.resolution) {
        return Failure{TextId::CliMissingOption, {"--resolution"}};
    }
    if (parsed.command == Command::Export && parsed.exportFormat == nullptr) {
        return Failure{TextId::CliMissingOption, {"--format"}};
    }
    if (parsed.aroundTarget && !parsed.target) {
        return Failure{TextId::CliMissingOption, {"--target"}};
    }
    if (parsed.style.mode == ColorMode::Deviation && parsed.plan.empty()) {
        return Failure{TextId::CliMissingOption, {"--prescription"}};
    }
    if (parsed.output.empty() && needsOutput(parsed.command) && !isThere) {
        return Failure{TextId::CliMissingOption, {"-o"}};
    }
    if (prescribes && pathEnding(parsed.output) != (isVrt ? kVrtEnding : kPreEnding)) {
        return Failure{TextId::CliBadValue, {"-o", parsed.output}};
    }
    const bool writesLots = parsed.command == Command::Lot || parsed.command == Command::Merge;
    if (writesLots && pathEnding(parsed.output) != kLotEnding) {
        return Failure{TextId::CliBadValue, {"-o", parsed.output}};
    }
    const bool isBatch = parsed.command == Command::ExportTrack && parsed.files.size() > 1;
    if (isBatch && !parsed.output.empty()) {
        return Failure{TextId::CliBadValue, {"-o", parsed.output}};
    }
    return std::nullopt;
}

/// Names of options in a column, what they do in another.
void describe(std::string& text, const Option& option, const Texts& texts) {
    constexpr std::size_t kColumn = 42;
    std::string line = "      " + std::string(option.name);
    line.append(" ").append(shownValue(option));
    line.resize(std::max(line.size() + 1, kColumn), ' ');
    text.append(line).append(texts(option.help)).append("\n");
}

}  // namespace

Result<Arguments> parseArguments(std::span<const std::string> arguments) {
    if (arguments.empty()) {
        return Failure{TextId::CliMissingCommand, {}};
    }
    const auto* const row =
        std::find_if(std::begin(kCommands), std::end(kCommands),
                     [&](const CommandRow& known) { return known.name == arguments.front(); });
    if (row == std::end(kCommands)) {
        return Failure{TextId::CliUnknownCommand, {arguments.front()}};
    }
    Arguments parsed;
    parsed.command = row->command;
    for (auto rest = arguments.subspan(1); !rest.empty();) {
        if (!rest.front().starts_with('-') || isVertex(parsed.command, rest.front())) {
            if (std::optional<Failure> failure = takeWord(parsed, rest.front())) {
                return *failure;
            }
            rest = rest.subspan(1);
        } else if (std::optional<Failure> failure = takeOption(parsed, rest)) {
            return *failure;
        }
    }
    if (std::optional<Failure> failure = checkFiles(parsed)) {
        return *failure;
    }
    if (std::optional<Failure> failure = checkOptions(parsed)) {
        return *failure;
    }
    return parsed;
}

Language languageOf(std::span<const std::string> arguments) {
    Arguments asked;
    const Option* const option = findOption(asked.command, "--language");
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i - 1] == option->name) {
            static_cast<void>(option->set(asked, arguments[i]));
        }
    }
    return asked.language;
}

bool asksForHelp(std::span<const std::string> arguments) {
    return std::find(arguments.begin(), arguments.end(), "--help") != arguments.end();
}

std::string usage(const Texts& texts) {
    std::string text(texts(TextId::CliUsage));
    text += "\n";
    for (const CommandRow& row : kCommands) {
        text.append("\n  ").append(row.name).append("    ").append(texts(row.help)).append("\n");
        for (const Option& option : allOptions()) {
            if (option.command == row.command) {
                describe(text, option, texts);
            }
        }
    }
    text.append("\n  ").append(texts(TextId::CliOptionsOfAll)).append("\n");
    for (const Option& option : allOptions()) {
        if (!option.command) {
            describe(text, option, texts);
        }
    }
    return text;
}

}  // namespace campora
