// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "cli/options.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cstdint>
#include <initializer_list>
#include <string>
#include <system_error>
#include <utility>

#include "base/file_endings.h"
#include "base/lon_lat.h"
#include "base/paths.h"
#include "base/text.h"
#include "presc/channel_zones.h"

namespace campora {

namespace {

/// Stands for the words of the table of formats.
constexpr std::string_view kExportFormats = "FORMAT";
constexpr int kMostPixels = 16384;  // 1 GiB a picture

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

bool setSwath(Arguments& arguments, std::string_view value) {
    arguments.swath = value;
    // Empty: an answer all the same, and no good one.
    return value.empty() || parse<double>(replaceAll(value, ",", ".")).has_value();
}

bool setColumns(Arguments& arguments, std::string_view value) {
    arguments.columns = value;
    return value == "4" || value == "8";
}

bool setJson(Arguments& arguments, std::string_view /*value*/) {
    arguments.json = true;
    return true;
}

bool setCsv(Arguments& arguments, std::string_view /*value*/) {
    arguments.csv = true;
    return true;
}

/// First the number of the order, then the folder.
bool setCopy(Arguments& arguments, std::string_view value) {
    std::optional<OrderCopy>& copy = arguments.copy;
    if (copy && copy->destination.empty()) {
        copy->destination = value;
        return !value.empty();
    }
    const auto number = parse<std::int32_t>(value);
    copy = OrderCopy{number.value_or(0), {}};
    return number.has_value();
}

bool setPicturePath(Arguments& arguments, std::string_view value) {
    arguments.output = value;
    const std::string ending = pathEnding(value);
    return ending == kPngEnding || ending == kBmpEnding;
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
                              {"compare", ColorMode::Deviation},
                              {"coverage", ColorMode::Coverage},
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

bool setComparedChannel(Arguments& arguments, std::string_view value) {
    const auto channel = parse<int>(value);
    arguments.comparedChannel = channel.value_or(0) - 1;
    return channel && *channel > 0;
}

bool setLimit(Arguments& arguments, std::string_view value) {
    const auto limit = parse<double>(replaceAll(value, ",", "."));
    arguments.limit = limit.value_or(0);
    return limit && *limit >= 0;
}

bool setScale(Arguments& arguments, std::string_view value) {
    arguments.aroundTarget = value == "target";
    return choose<bool>(arguments.style.spreadClasses, value,
                        {{"equal", false}, {"percentile", true}, {"target", false}});
}

bool setTarget(Arguments& arguments, std::string_view value) {
    arguments.target = parse<double>(replaceAll(value, ",", "."));
    return arguments.target.value_or(0) > 0;
}

bool setErrorLimit(Arguments& arguments, std::string_view value) {
    const auto limit = parse<float>(value);
    arguments.style.errorLimit = limit.value_or(0);
    return limit && *limit >= 0 && *limit <= 100;
}

/// FILE.shp,COLUMN or FILE.shp,COLUMN,FALLBACK; the file's name may have commas, and so may the
/// fallback.
bool addChannelSource(Arguments& arguments, std::string_view value) {
    constexpr std::string_view kEnding = ".shp,";
    const std::size_t ending = lowerCase(value).find(kEnding);
    std::vector<ChannelSource>& channels = arguments.prescription.channels;
    if (ending == std::string::npos || std::ssize(channels) >= kMostChannels) {
        return false;
    }
    const std::size_t fileEnd = ending + kEnding.size() - 1;
    ChannelSource source{std::string(value.substr(0, fileEnd)), {}, std::nullopt};
    const std::string_view rest = value.substr(fileEnd + 1);
    const std::size_t comma = rest.find(',');
    source.column = rest.substr(0, comma);
    if (comma != std::string_view::npos) {
        source.fallback = rest.substr(comma + 1);
    }
    channels.push_back(std::move(source));
    return !channels.back().column.empty();
}

bool setPath(Arguments& arguments, std::string_view value) {
    arguments.output = value;
    return !value.empty();
}

bool setOversize(Arguments& arguments, std::string_view value) {
    return choose<Answer>(
        arguments.prescription.oversize, value,
        {{"keep", Answer::No}, {"cancel", Answer::Cancel}, {"change", Answer::Yes}});
}

bool setGridKind(Arguments& arguments, std::string_view value) {
    return choose<GridKind>(arguments.prescription.kind, value,
                            {{"pre", GridKind::Pre}, {"vrt", GridKind::Vrt}});
}

bool setBlanks(Arguments& arguments, std::string_view value) {
    return choose<bool>(arguments.prescription.blanksOutside, value, {{"empty", true}});
}

bool setDecimalColumn(Arguments& arguments, std::string_view value) {
    DecimalSign sign{};
    const bool known = choose<DecimalSign>(
        sign, value, {{"comma", DecimalSign::Comma}, {"point", DecimalSign::Point}});
    arguments.prescription.decimal = sign;
    return known;
}

bool setResolution(Arguments& arguments, std::string_view value) {
    arguments.prescription.resolution = parse<float>(replaceAll(value, ",", "."));
    return arguments.prescription.resolution.has_value();
}

bool setTank(Arguments& arguments, std::string_view value) {
    arguments.checkWishes.tank = parse<double>(value);
    return arguments.checkWishes.tank.value_or(0) > 0;
}

/// Either may be left out.
bool addDoseLimits(Arguments& arguments, std::string_view value) {
    const std::size_t comma = std::min(value.find(','), value.size());
    const std::string_view least = value.substr(0, comma);
    const std::string_view most = value.substr(std::min(comma + 1, value.size()));
    const DoseLimits limits{parse<double>(least), parse<double>(most)};
    arguments.checkWishes.limits.push_back(limits);
    return comma < value.size() && limits.least.has_value() != least.empty() &&
           limits.most.has_value() != most.empty();
}

bool setExportFormat(Arguments& arguments, std::string_view value) {
    arguments.exportFormat = exportFormatOf(value);
    return arguments.exportFormat != nullptr;
}

bool setPolygonLength(Arguments& arguments, std::string_view value) {
    const auto points = parse<int>(value);
    arguments.trackExport.polygonLength = points.value_or(0);
    return points && *points >= kShortestPolygon && *points <= kLongestPolygon;
}

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
    {Command::Info, "--json", "", TextId::CliJson, setJson},
    {Command::Export, "--format", kExportFormats, TextId::CliExportFormat, setExportFormat},
    {Command::Export, "-o", "PATH", TextId::CliExportOutput, setPath},
    {Command::ExportTrack, "--polygon-length", "N", TextId::CliPolygonLength, setPolygonLength},
    {Command::ExportTrack, "--only-sprayed", "", TextId::CliOnlySprayed,
     [](Arguments& a, std::string_view) {
         a.trackExport.onlySprayed = true;
         return true;
     }},
    {Command::ExportTrack, "-o", "BASE", TextId::CliTrackOutput, setPath},
    {Command::ReportToText, "-o", "OUT.txt", TextId::CliExportOutput, setPath},
    {Command::ReportToText, "--comma", "", TextId::CliComma,
     [](Arguments& a, std::string_view) {
         a.comma = true;
         return true;
     }},
    {Command::Glg, "-o", "OUT.glg", TextId::CliExportOutput, setPath},
    {Command::Prescribe, "--channel", "FILE.shp,COLUMN[,FALLBACK]", TextId::CliPrescChannel,
     addChannelSource},
    {Command::Prescribe, "-o", "OUT.pre|OUT.vrt", TextId::SaveAsTitle, setPath},
    {Command::Prescribe, "--oversize", "keep|cancel|change", TextId::CliOversize, setOversize},
    {Command::Prescribe, "--blanks", "empty", TextId::CliBlanks, setBlanks},
    {Command::Prescribe, "--decimal-column", "comma|point", TextId::CliDecimalColumn,
     setDecimalColumn},
    {Command::Prescribe, "--format", "pre|vrt", TextId::FilterPrescriptions, setGridKind},
    {Command::Prescribe, "--resolution", "R", TextId::SummaryResolution, setResolution},
    {Command::Prescribe, "--name", "T", TextId::DialogName,
     [](Arguments& a, std::string_view value) {
         a.prescription.name = value;
         return true;
     }},
    {Command::Prescribe, "--description", "T", TextId::SummaryDescription,
     [](Arguments& a, std::string_view value) {
         a.prescription.description = value;
         return true;
     }},
    {Command::Prescribe, "--check", "", TextId::CliCheck,
     [](Arguments& a, std::string_view) {
         a.check = true;
         return true;
     }},
    {Command::Prescribe, "--tank", "V", TextId::CliTank, setTank},
    {Command::Prescribe, "--dose-limits", "MIN,MAX", TextId::CliDoseLimits, addDoseLimits},
    {Command::Prescribe, "--json", "", TextId::CliJson, setJson},
    {Command::Lot, "--description", "TEXT", TextId::CliLotDescription,
     [](Arguments& a, std::string_view value) {
         a.description = value;
         return true;
     }},
    {Command::Lot, "-o", "OUT.lot", TextId::CliLotOutput, setPath},
    {Command::Merge, "-o", "OUT.lot", TextId::CliLotOutput, setPath},
    {Command::Orders, "--json", "", TextId::CliJson, setJson},
    {Command::Orders, "--copy", "N DEST", TextId::CliCopyOrder, setCopy},
    {Command::Project, "--json", "", TextId::CliJson, setJson},
    {Command::Compare, "--channel", "N", TextId::CliChannel, setComparedChannel},
    {Command::Compare, "--limit", "P", TextId::CliLimit, setLimit},
    {Command::Compare, "--json", "", TextId::CliJson, setJson},
    {Command::Compare, "--csv", "", TextId::CliDosesCsv, setCsv},
    {Command::Passes, "--json", "", TextId::CliJson, setJson},
    {Command::Passes, "--csv", "", TextId::CliCsv, setCsv},
    {Command::Problems, "--error-limit", "P", TextId::CliErrorLimit, setErrorLimit},
    {Command::Problems, "--json", "", TextId::CliJson, setJson},
    {Command::Problems, "--csv", "", TextId::CliCsv, setCsv},
    {Command::Coverage, "--lot", "LOT", TextId::CliCoverageLot,
     [](Arguments& a, std::string_view value) {
         a.lots.emplace_back(value);
         return !value.empty();
     }},
    {Command::Coverage, "--json", "", TextId::CliJson, setJson},
    {Command::Render, "-o", "OUT.png|OUT.bmp", TextId::CliOutput, setPicturePath},
    {Command::Render, "--size", "WxH", TextId::CliSize, setSize},
    {Command::Render, "--mode", "dose|alarm|date|error|plain|coverage|compare", TextId::CliMode,
     setMode},
    {Command::Render, "--prescription", "P", TextId::CliPrescription,
     [](Arguments& a, std::string_view value) {
         a.plan = value;
         return !value.empty();
     }},
    {Command::Render, "--by", "ha|min", TextId::CliBy, setBy},
    {Command::Render, "--channel", "N|total", TextId::CliChannel, setChannel},
    {Command::Render, "--scale", "equal|percentile|target", TextId::CliScale, setScale},
    {Command::Render, "--target", "DOSE", TextId::CliTarget, setTarget},
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

}  // namespace

std::optional<LonLat> parseVertex(std::string_view word) {
    const std::size_t comma = std::min(word.find(','), word.size());
    const auto x = parse<double>(word.substr(0, comma));
    const auto y = parse<double>(word.substr(std::min(comma + 1, word.size())));
    if (!x || !y || std::fabs(*x) > kDateLine || std::fabs(*y) > kPole) {
        return std::nullopt;
    }
    return LonLat{*x, *y};
}

std::span<const Option> allOptions() {
    return kOptions;
}

std::string shownValue(const Option& option) {
    if (option.value != kExportFormats) {
        return std::string(option.value);
    }
    std::string words;
    for (const ExportFormat& format : exportFormats()) {
        words.append(words.empty() ? "" : "|").append(format.word);
    }
    return words;
}

}  // namespace campora
