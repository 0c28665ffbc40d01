// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/export_commands.h"

#include <algorithm>
#include <cstddef>
#include <utility>

#include "app/save_target.h"
#include "base/file_endings.h"
#include "base/paths.h"
#include "base/plain_text.h"
#include "platform/file_filter.h"

namespace campora {

namespace {

/// Sets a flag for as long as it lives.
class WhileBusy {
public:
    explicit WhileBusy(bool& busy) : busy_(busy) { busy_ = true; }
    WhileBusy(const WhileBusy&) = delete;
    WhileBusy& operator=(const WhileBusy&) = delete;
    ~WhileBusy() { busy_ = false; }

private:
    bool& busy_;
};

}  // namespace

ExportCommands::ExportCommands(OpenMap& map, MapDisplay& display, MapTools& tools,
                               const Services& services)
    : map_(map), display_(display), tools_(tools), services_(services) {}

MapExport ExportCommands::mapExport() const {
    return {map_, {services_.clock.today(), [this] { return picture(); }, savePicture}};
}

Picture ExportCommands::picture() const {
    const OverlaidMap overlaid(display_.canvas(), display_.view());
    return display_.canvas().picture();
}

void ExportCommands::copyImage() {
    if (!map_.files().empty()) {
        tools_.cancelDrag();  // it moves the picture of the map
        services_.clipboard.setPicture(picture());
    }
}

std::string ExportCommands::folderFor(SettingId setting) const {
    return keptFolder(services_.settings, setting, map_.programFolder());
}

bool ExportCommands::written(const std::function<bool()>& write) {
    const WhileBusy busy(busy_);
    return write();
}

void ExportCommands::openWithShell(const std::string& path) const {
    if (!services_.shell.open(path)) {
        map_.desk().tell({TextId::ExportedCannotOpen, {path}});
    }
}

void ExportCommands::afterExport(const ExportFormat& format, const std::string& path) const {
    const Desk& desk = map_.desk();
    if (format.after == AfterExport::Open ||
        (format.after == AfterExport::AskToOpen &&
         desk.ask(namingFile(desk.texts(TextId::AskOpenExported), path), MessageIcon::Question))) {
        openWithShell(path);
    }
}

std::string ExportCommands::endedPath(const std::string& chosen, std::string_view ending) const {
    if (chosen.empty()) {
        return chosen;
    }
    // The save dialog has asked about the name that was chosen; nobody has about another.
    std::string path = pathForFormat(chosen, ending);
    return path == chosen || overwriteAgreed(map_.desk(), path) ? path : std::string();
}

std::optional<ExportCommands::Target>
ExportCommands::askTarget(std::span<const ExportFormat> formats, std::string proposed) const {
    const SaveAnswer answer = map_.desk().dialogs.saveFile(
        {std::string(map_.desk().texts(TextId::ExportTitle)), folderFor(SettingId::ExportPath),
         std::move(proposed), exportFilters(formats, map_.desk().texts)});
    const auto filter = static_cast<std::size_t>(std::max(answer.filter, 0));
    const ExportFormat& format = formats[std::min(filter, formats.size() - 1)];
    std::string path = endedPath(answer.path, format.ending);
    if (path.empty()) {
        return std::nullopt;
    }
    writeText(services_.settings, SettingId::ExportPath, folderOf(path));
    return Target{std::move(path), &format};
}

void ExportCommands::mnuFileExport() {
    if (busy_ || map_.plotCount() == 0) {
        return;
    }
    tools_.cancelDrag();  // it moves the picture of the map
    const File* const current = map_.files().currentFile();
    const File& named = current != nullptr ? *current : map_.files().file(0);
    const std::optional<Target> target =
        askTarget(exportFormats(), std::string(fileStem(named.File_diskPath())));
    if (target && written([&] { return mapExport().exportMap(*target->format, target->path); })) {
        afterExport(*target->format, target->path);
    }
}

void ExportCommands::mnuFileExportSel() {
    const Texts& texts = map_.desk().texts;
    OpenRequest request{std::string(texts(TextId::ExportFilesTitle)),
                        folderFor(SettingId::OpenPath),
                        {trackFilter(texts)}};
    request.several = true;
    const std::vector<std::string> paths = map_.desk().dialogs.openFiles(request);
    if (paths.empty()) {
        return;
    }
    writeText(services_.settings, SettingId::OpenPath, folderOf(paths.front()));
    if (showTrackExport) {
        showTrackExport(paths);
    }
}

void ExportCommands::mnuFileExportRpt() {
    const Texts& texts = map_.desk().texts;
    const std::vector<std::string> chosen =
        map_.desk().dialogs.openFiles({std::string(texts(TextId::ChooseReport)),
                                       folderFor(SettingId::OpenPath),
                                       {fileFilter(texts, TextId::FilterRpt, kReportEnding)}});
    if (busy_ || chosen.empty()) {
        return;
    }
    const std::string& report = chosen.front();
    writeText(services_.settings, SettingId::OpenPath, folderOf(report));
    const MapExport exporter = mapExport();
    const std::unique_ptr<File> read = exporter.readReport(report);
    if (read == nullptr) {
        return;
    }
    const std::optional<Target> target =
        askTarget(textFormats(), std::string(fileStem(report)).append(kTextEnding));
    if (target && written([&] {
            return exporter.writeReport(*read, report, *target->format, target->path);
        })) {
        openWithShell(target->path);
    }
}

bool ExportCommands::canExportGlg() const {
    return !tracksOf(map_.getGphList()).empty();
}

void ExportCommands::exportGlg() {
    const Texts& texts = map_.desk().texts;
    const File* const current = map_.files().currentFile();
    const std::string proposed =
        std::string(current != nullptr ? fileStem(current->File_diskPath()) : "");
    const SaveAnswer answer =
        map_.desk().dialogs.saveFile({std::string(texts(TextId::ExportTitle)),
                                      folderFor(SettingId::ExportPath),
                                      proposed,
                                      {fileFilter(texts, TextId::FilterGlg, kGlgEnding)}});
    const std::string path = endedPath(answer.path, kGlgEnding);
    if (!path.empty()) {
        writeText(services_.settings, SettingId::ExportPath, folderOf(path));
        mapExport().exportGlg(path);
    }
}

}  // namespace campora
