// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/presc/presc_commands.h"

#include <span>
#include <utility>

#include "app/session.h"
#include "app/settings.h"
#include "base/file_endings.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/plain_text.h"
#include "base/text.h"
#include "base/typed_number.h"
#include "platform/file_filter.h"
#include "presc/generation.h"

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

GenerationContext contextOf(const Session& session) {
    return {session.platform().dialogs, session.texts(), session.platform().locale};
}

}  // namespace

GphPrescVex* PrescCommands::prescription() const {
    const LoadedFileList& files = session_.files();
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

bool PrescCommands::mayClose() const {
    const GphPrescVex* const open = prescription();
    return open == nullptr || !open->dosesChanged() ||
           session_.platform().dialogs.askYesNo(
               namingFile(session_.texts()(TextId::AskLoseDoses), open->channel(0).File_diskPath()),
               MessageIcon::Exclamation, session_.texts()(TextId::ProgramName));
}

void PrescCommands::mnuFilePrescript() {
    if (const GphPrescVex* const open = prescription()) {
        if (!mayClose()) {
            return;
        }
        if (session_.tools().tool() == MapTools::Tool::PrescDosis) {
            session_.tools().setTool(MapTools::Tool::None);
        }
        session_.removeFile(open);
        return;
    }
    std::vector<std::unique_ptr<GphPresc>> channels;
    if (chooseChannels) {
        channels = chooseChannels();
    }
    if (channels.empty()) {
        return;
    }
    auto made =
        std::make_unique<GphPrescVex>("Prescripción", session_.platform().locale.decimalSymbol());
    for (std::unique_ptr<GphPresc>& channel : channels) {
        made->addChannel(std::move(channel));
    }
    made->setRule({GridKind::Pre, cellMetres_, {}});
    session_.showOnTop(std::move(made));
}

std::string PrescCommands::askTarget(TextId filter, std::string_view ending) const {
    const Platform& platform = session_.platform();
    const Texts& texts = session_.texts();
    SaveRequest request{std::string(texts(TextId::SaveAsTitle)),
                        readText(platform.settings, SettingId::SavePath),
                        withEnding(prescription()->channel(0).name(), ending),
                        {fileFilter(texts, filter, ending)}};
    if (request.folder.empty()) {
        request.folder = session_.programFolder();
    }
    std::string path = platform.dialogs.saveFile(request).path;
    if (path.empty()) {
        return path;
    }
    writeText(platform.settings, SettingId::SavePath, folderOf(path));
    // Before any question: none of the answers could help.
    const bool hasReport = filter == TextId::FilterPreFiles;
    const std::string targets[] = {path, companionPath(path)};
    std::optional<Failure> refused =
        session_.filesInUse().whyNotTarget(std::span(targets, hasReport ? 2 : 1));
    if (!refused && hasReport) {
        refused = whyReportStands(path);
    }
    if (refused) {
        contextOf(session_).refuse(*refused);
        return {};
    }
    return path;
}

std::optional<std::string> PrescCommands::ask(TextId prompt, std::string_view proposed,
                                              const std::string& target) const {
    return session_.platform().dialogs.inputBox({prompt,
                                                 std::string(session_.texts()(TextId::ProgramName)),
                                                 std::string(proposed), target});
}

std::optional<double> PrescCommands::askCellSize(const std::string& target) const {
    const std::optional<std::string> answer = ask(TextId::AskSwath, kProposedCell, target);
    if (!answer || trim(*answer).empty()) {
        return std::nullopt;
    }
    const std::optional<double> metres = typedNumber(*answer);
    if (!metres) {
        contextOf(session_).refuse({TextId::BadCellSize, {*answer}});
    }
    return metres;
}

void PrescCommands::saved(GphPrescVex& prescription, GridRule rule) {
    cellMetres_ = rule.metres;
    prescription.setRule(std::move(rule));
    prescription.dosesSaved();
    session_.showSummary();
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
        if (auto rule =
                generatePRE(path, roundToInt32(*metres), open->zones(), contextOf(session_))) {
            saved(*open, std::move(*rule));
        }
    }
}

void PrescCommands::mnuFileSaveVrt() {
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
    const auto name = ask(TextId::DialogName, withEnding(open->channel(0).name(), ""), path);
    const auto description = name ? ask(TextId::SummaryDescription, "", path) : std::nullopt;
    if (!description) {
        return;
    }
    if (auto rule = generateVRT(path, static_cast<float>(*metres), {*name, *description},
                                open->zones(), contextOf(session_))) {
        saved(*open, std::move(*rule));
    }
}

void PrescCommands::changeDose(LonLat position) {
    GphPrescVex* const open = prescription();
    if (open == nullptr) {
        session_.tools().setTool(MapTools::Tool::None);  // it was removed from the list
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
    if (&session_.shownScale() != &layer.escalaColor()) {
        session_.redraw();  // a scale in the legend has done so already
    }
    session_.showSummary();
}

}  // namespace campora
