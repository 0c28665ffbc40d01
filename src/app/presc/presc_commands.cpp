// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/presc_commands.h"

#include <span>
#include <utility>

#include "app/settings.h"
#include "app/unsaved_work.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/plain_text.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "platform/file_filter.h"
#include "presc/generation.h"
#include "presc/load_grid.h"

namespace campora {

namespace {

/// Metres.
constexpr std::string_view kProposedCell = "20";

/// The name of a file with another ending in place of that of shapefiles.
std::string withEnding(std::string name, std::string_view ending) {
    if (pathEnding(name) == kShapeEnding) {
        name.resize(name.size() - kShapeEnding.size());
    }
    return name.append(ending);
}

}  // namespace

GphPrescVex* PrescCommands::prescription() const {
    const LoadedFileList& files = map_.files();
    for (int i = 0; i < files.loadedCount(); ++i) {
        if (auto* const found = dynamic_cast<GphPrescVex*>(&files.file(i))) {
            return found;
        }
    }
    return nullptr;
}

TextId PrescCommands::prescriptCaption() const {
    return isOpen() ? TextId::ActionClosePrescription : TextId::ActionNewPrescription;
}

void PrescCommands::mnuFilePrescript() {
    if (const GphPrescVex* const open = prescription()) {
        if (!mayLose(*open, map_.desk())) {
            return;
        }
        if (tools_.tool() == ToolId::PrescDosis) {
            tools_.setTool(ToolId::Pan);
        }
        map_.removeFile(open);
        display_.showChange();
        return;
    }
    std::vector<std::unique_ptr<GphPresc>> channels;
    if (chooseChannels) {
        channels = chooseChannels();
    }
    if (channels.empty()) {
        return;
    }
    auto made = std::make_unique<GphPrescVex>("Prescripción", map_.desk().decimalSymbol());
    for (std::unique_ptr<GphPresc>& channel : channels) {
        made->addChannel(std::move(channel));
    }
    saved_.reset();
    made->setRule({GridKind::Pre, cellMetres_, {}});
    map_.addFile(std::move(made), true);
    display_.showWhole();
}

std::string PrescCommands::askTarget(TextId filter, std::string_view ending) const {
    const Texts& texts = map_.desk().texts;
    SaveRequest request{std::string(texts(TextId::SaveAsTitle)),
                        readText(settings_, SettingId::SavePath),
                        withEnding(prescription()->channel(0).name(), ending),
                        {fileFilter(texts, filter, ending)}};
    if (request.folder.empty()) {
        request.folder = map_.programFolder();
    }
    std::string path = map_.desk().dialogs.saveFile(request).path;
    if (path.empty()) {
        return path;
    }
    writeText(settings_, SettingId::SavePath, folderOf(path));
    // Before any question: none of the answers could help.
    const bool hasReport = filter == TextId::FilterPreFiles;
    const std::string targets[] = {path, companionPath(path)};
    std::optional<Failure> refused =
        map_.filesInUse().whyNotTarget(std::span(targets, hasReport ? 2 : 1));
    if (!refused && hasReport) {
        refused = whyReportStands(path);
    }
    if (refused) {
        map_.desk().tell(*refused);
        return {};
    }
    return path;
}

std::optional<double> PrescCommands::askCellSize(const std::string& target) const {
    const std::optional<std::string> answer =
        map_.desk().askText(TextId::AskSwath, kProposedCell, target);
    if (!answer || trim(*answer).empty()) {
        return std::nullopt;
    }
    const std::optional<double> metres = typedNumber(*answer);
    if (!metres) {
        map_.desk().tell({TextId::BadCellSize, {*answer}});
    }
    return metres;
}

void PrescCommands::saved(GphPrescVex& prescription, const std::string& path, GridRule rule) {
    cellMetres_ = rule.metres;
    saved_ = Saved{path, rule};
    prescription.setRule(std::move(rule));
    prescription.dosesSaved();
    display_.showSummary();
    checkSaved();
}

const GridLayer* PrescCommands::openGrid() const {
    const auto* const current = dynamic_cast<const GridLayer*>(map_.files().currentFile());
    if (current != nullptr) {
        return current;
    }
    for (const File* file : map_.files().all()) {
        if (const auto* const grid = dynamic_cast<const GridLayer*>(file)) {
            return grid;
        }
    }
    return nullptr;
}

std::optional<TextId> PrescCommands::whyNotCheck() const {
    const bool isSaved = isOpen() && saved_;
    return isSaved || openGrid() != nullptr ? std::nullopt : std::optional(TextId::WhyNoGrid);
}

void PrescCommands::check() {
    const GridLayer* const open = openGrid();
    if (open == nullptr) {
        checkSaved();
        return;
    }
    std::unique_ptr<GridLayer> file =
        loadGrid(open->File_diskPath(), map_.desk(), map_.style().colors.back);
    PrescriptionCheck check = file == nullptr ? PrescriptionCheck() : checkGrid(*file, *open);
    if (showCheck) {
        showCheck(std::make_unique<PrescriptionCheckup>(std::move(file), std::move(check),
                                                        map_.desk(), settings_));
    }
}

void PrescCommands::checkSaved() {
    const GphPrescVex* const open = prescription();
    if (open == nullptr || !saved_ || !showCheck) {
        return;
    }
    std::unique_ptr<GridLayer> file = loadGrid(saved_->path, map_.desk(), map_.style().colors.back);
    PrescriptionCheck check =
        file == nullptr ? PrescriptionCheck() : checkGrid(*file, open->zones(), saved_->rule);
    showCheck(std::make_unique<PrescriptionCheckup>(std::move(file), std::move(check), map_.desk(),
                                                    settings_));
}

void PrescCommands::mnuFileSavePrescript() {
    GphPrescVex* const open = prescription();
    if (open == nullptr) {
        return;
    }
    const std::string path = askTarget(TextId::FilterPreFiles, kPreEnding);
    if (path.empty()) {
        return;
    }
    if (const std::optional<double> metres = askCellSize(path)) {
        if (auto rule = generatePRE(path, roundToInt32(*metres), open->zones(), map_.desk())) {
            saved(*open, path, std::move(*rule));
        }
    }
}

void PrescCommands::saveVrt() {
    GphPrescVex* const open = prescription();
    if (open == nullptr) {
        return;
    }
    const std::string path = askTarget(TextId::FilterPrescriptions, kVrtEnding);
    if (path.empty()) {
        return;
    }
    const std::optional<double> metres = askCellSize(path);
    if (!metres) {
        return;
    }
    const auto name =
        map_.desk().askText(TextId::DialogName, withEnding(open->channel(0).name(), ""), path);
    const auto description =
        name ? map_.desk().askText(TextId::SummaryDescription, "", path) : std::nullopt;
    if (!description) {
        return;
    }
    if (auto rule = generateVRT(path, static_cast<float>(*metres), {*name, *description},
                                open->zones(), map_.desk())) {
        saved(*open, path, std::move(*rule));
    }
}

void PrescCommands::changeDose(LonLat position) {
    GphPrescVex* const open = prescription();
    if (open == nullptr) {
        tools_.setTool(ToolId::Pan);  // it was removed from the list
        return;
    }
    if (!askDose) {
        return;
    }
    GphPresc& layer = open->channel(open->currentChannel());
    const std::int32_t zone = layer.polygonIndexAt(position);
    if (zone < 0) {
        return;
    }
    const std::optional<float> dose =
        askDose(layer.escalaColor(), layer.polygons()[static_cast<std::size_t>(zone)].dosis);
    if (!dose) {
        return;
    }
    layer.setDosis(zone, *dose);
    if (map_.style().mode == ColorMode::Deviation) {
        map_.refreshColorScale();  // the deviations are others
        display_.showLegend();
        display_.redraw();
    } else if (&map_.scales().shown() != &layer.escalaColor()) {
        display_.redraw();  // a scale in the legend has done so already
    }
    display_.showSummary();
}

}  // namespace campora
