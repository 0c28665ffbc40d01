// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <algorithm>
#include <cstddef>
#include <iterator>
#include <memory>
#include <optional>
#include <span>
#include <string>
#include <vector>

#include "app/presc/dose_columns.h"
#include "app/used_files.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/typed_number.h"
#include "cli/batch_map.h"
#include "cli/commands.h"
#include "cli/json_document.h"
#include "cli/printed_table.h"
#include "presc/generation.h"
#include "presc/layer_zones.h"
#include "presc/load_grid.h"

namespace campora {

namespace {

/// Metres, when the command line names no swath width.
constexpr std::string_view kUsualSwath = "20";

/// The questions that the making of a grid asks, and no others.
class GridDialogs final : public BatchDialogs {
public:
    using BatchDialogs::BatchDialogs;

    [[nodiscard]] Answer askYesNoCancel(std::string_view text, MessageIcon icon,
                                        std::string_view caption) override {
        message(text, icon, caption);
        return arguments().prescription.oversize;
    }
    [[nodiscard]] std::optional<std::string> inputBox(const InputRequest& request) override {
        // The question for another size is answered as it proposes, those for doses by channel.
        const auto* const question =
            std::find(std::begin(kFallbackQuestions), std::end(kFallbackQuestions), request.prompt);
        if (question == std::end(kFallbackQuestions)) {
            return request.proposed;
        }
        const auto channel =
            static_cast<std::size_t>(std::distance(std::begin(kFallbackQuestions), question));
        return arguments().prescription.channels.at(channel).fallback.value_or(request.proposed);
    }
};

std::optional<Failure> whyNotOpen(const std::string& path) {
    if (canOpen(path)) {
        return std::nullopt;
    }
    const Result<FileBytes> file = readFile(path);
    return file ? std::nullopt : std::optional(file.failure());
}

std::string joined(const std::vector<std::string>& names) {
    std::string list;
    for (const std::string& name : names) {
        list += list.empty() ? name : ", " + name;
    }
    return list;
}

/// Reads the map of the next channel and chooses its column; false when that cannot be, which is
/// said.
bool addColumn(DoseColumns& columns, int row, const ChannelSource& source, const Desk& desk) {
    if (row > 0) {
        columns.addChannel();
    }
    if (const std::optional<Failure> failure = whyNotOpen(source.file)) {
        desk.tell(*failure);
        return false;
    }
    columns.readMap(row, source.file);
    if (!columns.isWhole(row)) {
        return false;
    }
    const std::vector<std::string> names = columns.columns(row);
    const auto name = std::find(names.begin(), names.end(), source.column);
    if (name == names.end()) {
        desk.tell({TextId::ColumnNotThere, {source.file, source.column, joined(names)}});
        return false;
    }
    columns.chooseColumn(row, static_cast<int>(name - names.begin()) + 1);
    return true;
}

/// Why no grid may take the place of what stands at the target.
std::optional<Failure> whyNotWritten(const Arguments& arguments) {
    FilesInUse inUse;
    for (const ChannelSource& source : arguments.prescription.channels) {
        addOpened(inUse, source.file);
    }
    std::vector<std::string> targets{arguments.output};
    if (arguments.prescription.kind != GridKind::Vrt) {
        targets.push_back(companionPath(arguments.output));
    }
    return inUse.whyNotTarget(targets);
}

std::optional<GridRule> writeGrid(const Arguments& arguments,
                                  std::span<const ChannelZones> channels, const Desk& desk) {
    const PrescriptionRequest& request = arguments.prescription;
    if (request.kind == GridKind::Vrt) {
        return generateVRT(arguments.output, *request.resolution,
                           {request.name, request.description}, channels, desk);
    }
    const std::string swath = arguments.swath.value_or(std::string(kUsualSwath));
    return generatePRE(arguments.output, roundToInt32(typedNumber(swath).value_or(0)), channels,
                       desk);
}

Json sumJson(const std::optional<CellSum>& sum) {
    return sum ? Json{{"hectares", figureJson(sum->hectares)},
                      {"product", figureJson(sum->product)}}
               : Json();
}

Json channelJson(const ChannelCheck& check, const GridLayer& file, int channel,
                 const CheckWishes& wishes) {
    Json rounded = Json::array();
    for (const ChannelCheck::Rounded& dose : check.rounded) {
        rounded.push_back({{"asked", asDecimal(dose.asked)}, {"written", dose.written}});
    }
    return {{"channel", channel + 1},
            {"all", sumJson(check.all)},
            {"zones", sumJson(check.zones)},
            {"fallback", sumJson(check.fallback)},
            {"negativeCells", check.negative},
            {"fullCells", check.full},
            {"cellsBeyondLimits", cellsBeyond(file, channel, limitsOf(wishes, channel))},
            {"rounded", rounded},
            {"smallestZoneM2", figureJson(check.smallestZone)},
            {"tankLoads", figureJson(tankLoads(check.all.product, wishes))}};
}

Json checkJson(const std::string& path, const PrescriptionCheck& check, const GridLayer& file,
               const CheckWishes& wishes) {
    Json channels = Json::array();
    for (int channel = 0; channel < file.channelsCnt(); ++channel) {
        channels.push_back(
            channelJson(check.channels[static_cast<std::size_t>(channel)], file, channel, wishes));
    }
    return {{"file", path},
            {"agrees", check.isSameGrid ? Json(check.agrees()) : Json()},
            {"cells", check.cells},
            {"differentCells", check.different ? Json(*check.different) : Json()},
            {"channels", channels}};
}

void printPage(const CheckPage& page, std::ostream& out) {
    out << page.verdict << '\n';
    for (const std::string& warning : page.warnings) {
        out << warning << '\n';
    }
    printFigures(page.figures, out);
}

/// What a file is to hold.
struct Meant {
    std::span<const ChannelZones> zones;
    GridRule rule;
};

/// Reads the file back and prints what it holds, beside what it was to hold when that is known;
/// false when it does not agree.
bool checkFile(const Arguments& arguments, const std::string& path, const Meant* meant,
               const Desk& desk, std::ostream& out) {
    const std::unique_ptr<GridLayer> file = loadGrid(path, desk, MapColors().back);
    if (file == nullptr) {
        return false;
    }
    const PrescriptionCheck check =
        meant == nullptr ? checkGrid(*file) : checkGrid(*file, meant->zones, meant->rule);
    if (arguments.json) {
        printJson(checkJson(path, check, *file, arguments.checkWishes), out);
    } else {
        printPage(checkPage(&check, file.get(), arguments.checkWishes, desk), out);
    }
    return check.agrees();
}

}  // namespace

int runPrescribe(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    const Desk& desk = batch.desk();
    const PrescriptionRequest& request = arguments.prescription;
    if (!arguments.files.empty()) {
        return checkFile(arguments, arguments.files.front(), nullptr, desk, console.out)
                   ? exit_status::kDone
                   : exit_status::kRefused;
    }
    if (const std::optional<Failure> refused = whyNotWritten(arguments)) {
        desk.tell(*refused);
        return exit_status::kRefused;
    }
    DoseColumns columns(desk);
    columns.onNote = [&console](const std::string& text) {
        console.boxes << "note: " << oneLine(text) << '\n';
    };
    columns.answers = ColumnAnswers{request.blanksOutside, request.decimal};
    columns.warnsOfDecimals = request.kind == GridKind::Pre;
    int row = 0;
    for (const ChannelSource& source : request.channels) {
        if (!addColumn(columns, row++, source, desk)) {
            return exit_status::kRefused;
        }
    }
    if (!columns.confirm()) {
        return exit_status::kRefused;
    }
    const std::vector<std::unique_ptr<GphPresc>> layers = columns.getChannels();
    std::vector<ChannelZones> channels;
    channels.reserve(layers.size());
    for (const std::unique_ptr<GphPresc>& layer : layers) {
        channels.push_back(zonesOf(*layer));
    }
    GridDialogs dialogs(arguments, console.boxes);
    const std::optional<GridRule> rule = writeGrid(arguments, channels, desk.with(dialogs));
    if (!rule) {
        return exit_status::kRefused;
    }
    const Meant meant{channels, *rule};
    const bool isGood =
        !arguments.check || checkFile(arguments, arguments.output, &meant, desk, console.out);
    return isGood ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
