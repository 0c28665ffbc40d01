// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/arguments.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <initializer_list>
#include <iterator>
#include <string_view>
#include <system_error>
#include <utility>

#include "base/paths.h"
#include "base/text.h"

namespace campora {

namespace {

constexpr int kMostPixels = 16384;  // 1 GiB a picture

struct CommandRow {
    Command command;
    std::string_view name;
    TextId help;
};

constexpr CommandRow kCommands[] = {
    {Command::Info, "info", TextId::CliInfo},
    {Command::Render, "render", TextId::CliRender},
};

/// The whole text as a number; "." is its decimal symbol.
template <typename Number>
std::optional<Number> parse(std::string_view text) {
    Number number{};
    const auto [end, error] = std::from_chars(text.data(), text.data() + text.size(), number);
    const bool whole = error == std::errc() && end == text.data() + text.size();
    return whole && std::isfinite(static_cast<double>(number)) ? std::optional(number)
                                                               : std::nullopt;
}

/// Sets `target` to what `word` stands for; false when it is none of the words.
template <typename Value>
bool choose(Value& target, std::string_view word,
            std::initializer_list<std::pair<std::string_view, Value>> choices) {
    for (const auto& [name, value] : choices) {
        if (name == word) {
            target = value;
            return true;
        }
    }
    return false;
}

bool setLanguage(Arguments& arguments, std::string_view value) {
    return choose<Language>(
        arguments.language, value,
        {{"es", Language::Spanish}, {"pt", Language::Portuguese}, {"en", Language::English}});
}

bool setDecimal(Arguments& arguments, std::string_view value) {
    return choose<char>(arguments.decimalSymbol, value, {{".", '.'}, {",", ','}});
}

/// An empty answer is what a user gives who cancels.
bool setSwath(Arguments& arguments, std::string_view value) {
    arguments.swath = value;
    return value.empty() || parse<double>(replaceAll(value, ",", ".")).has_value();
}

bool setColumns(Arguments& arguments, std::string_view value) {
    arguments.columns = value;
    return value == "4" || value == "8";
}

bool setOutput(Arguments& arguments, std::string_view value) {
    arguments.output = value;
    const std::string ending = pathEnding(value);
    return ending == ".png" || ending == ".bmp";
}

bool setSize(Arguments& arguments, std::string_view value) {
    const std::size_t cross = std::min(value.find('x'), value.size());
    const auto width = parse<int>(value.substr(0, cross));
    const auto height = parse<int>(value.substr(std::min(cross + 1, value.size())));
    arguments.size = {width.value_or(0), height.value_or(0)};
    const auto [least, greatest] = std::minmax(arguments.size.width, arguments.size.height);
    return least > 0 && greatest <= kMostPixels;
}

bool setMode(Arguments& arguments, std::string_view value) {
    MapStyle& style = arguments.style;
    style.graduated = value != "plain";
    return choose<ColorMode>(style.mode, value,
                             {{"dose", ColorMode::Dose},
                              {"alarm", ColorMode::Alarm},
                              {"date", ColorMode::Date},
                              {"error", ColorMode::Error},
                              {"plain", ColorMode::Dose}});
}

bool setBy(Arguments& arguments, std::string_view value) {
    return choose<GraduatedBy>(arguments.style.by, value,
                               {{"ha", GraduatedBy::Hectare}, {"min", GraduatedBy::Minute}});
}

bool setChannel(Arguments& arguments, std::string_view value) {
    const int channel = value == "total" ? 0 : parse<int>(value).value_or(-1);
    arguments.style.selectedChannel = channel - 1;
    return channel > 0 || value == "total";
}

bool setErrorLimit(Arguments& arguments, std::string_view value) {
    const auto limit = parse<float>(value);
    arguments.style.errorLimit = limit.value_or(0);
    return limit && *limit >= 0 && *limit <= 100;
}

struct Option {
    /// None: an option of every command.
    std::optional<Command> command;
    std::string_view name;
    /// What stands for the value in the usage; empty for a switch, which has none.
    std::string_view value;
    TextId help;
    /// False when the value is none for this option.
    bool (*set)(Arguments& arguments, std::string_view value);
};

constexpr auto kEvery = std::nullopt;

constexpr Option kOptions[] = {
    {kEvery, "--language", "es|pt|en", TextId::CliLanguage, setLanguage},
    {kEvery, "--decimal", ".|,", TextId::CliDecimal, setDecimal},
    {kEvery, "--program-dir", "DIR", TextId::CliProgramDir,
     [](Arguments& a, std::string_view value) {
         a.programFolder = value;
         return !value.empty();
     }},
    {kEvery, "--swath", "M", TextId::CliSwath, setSwath},
    {kEvery, "--columns", "4|8", TextId::CliColumns, setColumns},
    {kEvery, "--date-format", "FORM", TextId::CliDateFormat,
     [](Arguments& a, std::string_view value) {
         a.dateForm = value;
         return !value.empty();
     }},
    {kEvery, "--yes", "", TextId::CliYes,
     [](Arguments& a, std::string_view) {
         a.yes = true;
         return true;
     }},
    {kEvery, "--help", "", TextId::CliHelp, [](Arguments&, std::string_view) { return true; }},
    {Command::Info, "--json", "", TextId::CliJson,
     [](Arguments& a, std::string_view) {
         a.json = true;
         return true;
     }},
    {Command::Render, "-o", "OUT.png|OUT.bmp", TextId::CliOutput, setOutput},
    {Command::Render, "--size", "WxH", TextId::CliSize, setSize},
    {Command::Render, "--mode", "dose|alarm|date|error|plain", TextId::CliMode, setMode},
    {Command::Render, "--by", "ha|min", TextId::CliBy, setBy},
    {Command::Render, "--channel", "N|total", TextId::CliChannel, setChannel},
    {Command::Render, "--error-limit", "P", TextId::CliErrorLimit, setErrorLimit},
    {Command::Render, "--only-worked", "", TextId::CliOnlyWorked,
     [](Arguments& a, std::string_view) {
         a.style.drawAll = false;
         return true;
     }},
    {Command::Render, "--dotted", "", TextId::CliDotted,
     [](Arguments& a, std::string_view) {
         a.style.drawDotted = true;
         return true;
     }},
    {Command::Render, "--no-borders", "", TextId::CliNoBorders,
     [](Arguments& a, std::string_view) {
         a.style.drawBorders = false;
         return true;
     }},
    {Command::Render, "--no-overlay", "", TextId::CliNoOverlay,
     [](Arguments& a, std::string_view) {
         a.overlay = false;
         return true;
     }},
};

const Option* findOption(Command command, std::string_view name) {
    const auto* const found =
        std::find_if(std::begin(kOptions), std::end(kOptions), [&](const Option& option) {
            return option.name == name && option.command.value_or(command) == command;
        });
    return found == std::end(kOptions) ? nullptr : found;
}

/// Takes the option that begins the rest of a command line off it.
std::optional<Failure> takeOption(Arguments& parsed, std::span<const std::string>& rest) {
    const std::string& name = rest.front();
    const Option* const option = findOption(parsed.command, name);
    if (option == nullptr) {
        return Failure{TextId::CliUnknownOption, {name}};
    }
    const std::size_t length = option->value.empty() ? 1 : 2;
    if (rest.size() < length) {
        return Failure{TextId::CliMissingValue, {name}};
    }
    const std::string& value = rest[length - 1];
    if (!option->set(parsed, value)) {
        return Failure{TextId::CliBadValue, {name, value}};
    }
    rest = rest.subspan(length);
    return std::nullopt;
}

/// Names of options in a column, what they do in another.
void describe(std::string& text, const Option& option, const Texts& texts) {
    constexpr std::size_t kColumn = 42;
    std::string line = "      " + std::string(option.name);
    line.append(" ").append(option.value);
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
        if (!rest.front().starts_with('-')) {
            parsed.files.push_back(rest.front());
            rest = rest.subspan(1);
        } else if (std::optional<Failure> failure = takeOption(parsed, rest)) {
            return *failure;
        }
    }
    if (parsed.files.empty()) {
        return Failure{TextId::CliMissingFile, {}};
    }
    if (parsed.command == Command::Render && parsed.output.empty()) {
        return Failure{TextId::CliMissingOption, {"-o"}};
    }
    return parsed;
}

Language languageOf(std::span<const std::string> arguments) {
    Arguments asked;
    for (std::size_t i = 1; i < arguments.size(); ++i) {
        if (arguments[i - 1] == "--language") {
            setLanguage(asked, arguments[i]);
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
        for (const Option& option : kOptions) {
            if (option.command == row.command) {
                describe(text, option, texts);
            }
        }
    }
    text.append("\n  ").append(texts(TextId::CliOptionsOfAll)).append("\n");
    for (const Option& option : kOptions) {
        if (!option.command) {
            describe(text, option, texts);
        }
    }
    return text;
}

}  // namespace campora
