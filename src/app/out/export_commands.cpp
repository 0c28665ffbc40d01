// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/export_commands.h"

#include <algorithm>
#include <cstddef>
#include <memory>
#include <span>
#include <utility>

#include "app/save_target.h"
#include "app/session.h"
#include "app/used_files.h"
#include "base/file_endings.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/plain_text.h"
#include "platform/file_filter.h"
#include "work/glg_points.h"
#include "work/gph_track.h"
#include "work/work_reader.h"

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

std::vector<const GphTrack*> tracksOf(std::span<Gph* const> layers) {
    std::vector<const GphTrack*> tracks;
    for (const Gph* layer : layers) {
        if (const auto* track = dynamic_cast<const GphTrack*>(layer)) {
            tracks.push_back(track);
        }
    }
    return tracks;
}

}  // namespace

bool ExportCommands::fail(const Failure& why) const {
    const Texts& texts = session_.texts();
    session_.platform().dialogs.message(
        std::string(texts(TextId::ExportFailed)).append("\r\n").append(texts.sentence(why)),
        MessageIcon::Exclamation, texts(TextId::ProgramName));
    return false;
}

std::string ExportCommands::endedPath(const std::string& chosen, std::string_view ending) const {
    if (chosen.empty()) {
        return chosen;
    }
    // The save dialog has asked about the name that was chosen; nobody has about another.
    std::string path = pathForFormat(chosen, ending);
    return path == chosen || overwriteAgreed(session_, path) ? path : std::string();
}

std::optional<ExportCommands::Target>
ExportCommands::askTarget(std::span<const ExportFormat> formats, std::string proposed) const {
    const Platform& platform = session_.platform();
    const SaveAnswer answer =
        platform.dialogs.saveFile({std::string(session_.texts()(TextId::ExportTitle)),
                                   startFolder(session_, SettingId::ExportPath),
                                   std::move(proposed), exportFilters(formats, session_.texts())});
    const auto filter = static_cast<std::size_t>(std::max(answer.filter, 0));
    const ExportFormat& format = formats[std::min(filter, formats.size() - 1)];
    std::string path = endedPath(answer.path, format.ending);
    if (path.empty()) {
        return std::nullopt;
    }
    writeText(platform.settings, SettingId::ExportPath, folderOf(path));
    return Target{std::move(path), &format};
}

void ExportCommands::tellDroppedColumns(const ExportFormat& format,
                                        const std::vector<Gph*>& layers) const {
    std::string names;
    const File* last = nullptr;
    for (const Gph* const layer : layersWithoutColumns(format, layers)) {
        const File* const owner = session_.files().ownerOf(layer);
        if (owner != nullptr && owner != last) {
            names.append(names.empty() ? "" : ", ").append(owner->File_name());
        }
        last = owner;
    }
    if (!names.empty()) {
        session_.platform().dialogs.message(
            session_.texts().format(TextId::ColumnsDropped, {names}), MessageIcon::Information,
            session_.texts()(TextId::ProgramName));
    }
}

bool ExportCommands::write(const ExportFormat& format, const FilesInUse& inUse,
                           const std::vector<Gph*>& layers, const std::string& path) {
    std::optional<Failure> failure = whyNoTarget(path);
    if (!failure) {
        failure = inUse.whyNotTarget(targetsOf(format, path));
    }
    if (failure) {
        return fail(*failure);
    }
    bool cancelled = false;
    {
        const WhileBusy busy(busy_);
        const std::unique_ptr<Progress> shown =
            session_.platform().dialogs.progress(std::string(session_.texts()(TextId::Exporting))
                                                     .append(" ")
                                                     .append(fileNamePart(path)));
        ExportProgress progress(*shown);
        failure = format.write({session_, layers, path, savePicture, progress});
        cancelled = progress.cancelled();
    }
    if (failure || cancelled) {
        return failure && fail(*failure);
    }
    tellDroppedColumns(format, layers);
    return true;
}

bool ExportCommands::exportMap(const ExportFormat& format, const std::string& path) {
    if (busy_) {
        return false;
    }
    std::optional<OverlaidMap> overlaid;
    if (format.source == ExportSource::Picture) {
        overlaid.emplace(session_.platform().canvas, session_.view());
    }
    return write(format, session_.filesInUse(), session_.getGphList(), path);
}

void ExportCommands::openWithShell(const std::string& path) const {
    const Platform& platform = session_.platform();
    if (!platform.shell.open(path)) {
        platform.dialogs.message(session_.texts().format(TextId::ExportedCannotOpen, {path}),
                                 MessageIcon::Exclamation, session_.texts()(TextId::ProgramName));
    }
}

void ExportCommands::afterExport(const ExportFormat& format, const std::string& path) const {
    const bool opens = format.after == AfterExport::Open ||
                       (format.after == AfterExport::AskToOpen &&
                        session_.platform().dialogs.askYesNo(
                            namingFile(session_.texts()(TextId::AskOpenExported), path),
                            MessageIcon::Question, session_.texts()(TextId::ProgramName)));
    if (opens) {
        openWithShell(path);
    }
}

void ExportCommands::mnuFileExport() {
    if (busy_ || session_.plotCount() == 0) {
        return;
    }
    session_.tools().cancelDrag();  // it moves the picture of the map
    const File* const current = session_.files().currentFile();
    const File& named = current != nullptr ? *current : session_.files().file(0);
    const std::optional<Target> target =
        askTarget(exportFormats(), std::string(fileStem(named.File_diskPath())));
    if (target && exportMap(*target->format, target->path)) {
        afterExport(*target->format, target->path);
    }
}

void ExportCommands::mnuFileExportSel() {
    const Platform& platform = session_.platform();
    const Texts& texts = session_.texts();
    OpenRequest request{std::string(texts(TextId::ExportFilesTitle)),
                        startFolder(session_, SettingId::OpenPath),
                        {trackFilter(texts)}};
    request.several = true;
    const std::vector<std::string> paths = platform.dialogs.openFiles(request);
    if (paths.empty()) {
        return;
    }
    writeText(platform.settings, SettingId::OpenPath, folderOf(paths.front()));
    if (showTrackExport) {
        showTrackExport(paths);
    }
}

std::unique_ptr<File> ExportCommands::readReport(const std::string& path) const {
    const Platform& platform = session_.platform();
    if (pathEnding(path) != kReportEnding) {
        // The oldest reports have no mark of their own: any bytes would pass for one.
        platform.dialogs.message(session_.texts().format(TextId::FileNotCompatibleNamed, {path}),
                                 MessageIcon::Exclamation, session_.texts()(TextId::ProgramName));
        return nullptr;
    }
    std::optional<LoadedWork> work =
        loadRptFile(findIgnoringCase(path), {platform.dialogs, platform.locale, session_.texts(),
                                             session_.registrations()});
    return work ? std::move(work->group) : nullptr;
}

FilesInUse ExportCommands::inUseWith(const std::string& report) const {
    FilesInUse inUse = session_.filesInUse();
    addOpened(inUse, report);
    return inUse;
}

bool ExportCommands::exportReport(const std::string& report, const ExportFormat& format,
                                  const std::string& path) {
    const std::unique_ptr<File> read = readReport(report);
    return read != nullptr && !busy_ &&
           write(format, inUseWith(report), read->File_gphList(), path);
}

void ExportCommands::mnuFileExportRpt() {
    const Platform& platform = session_.platform();
    const Texts& texts = session_.texts();
    const std::vector<std::string> chosen =
        platform.dialogs.openFiles({std::string(texts(TextId::ChooseReport)),
                                    startFolder(session_, SettingId::OpenPath),
                                    {fileFilter(texts, TextId::FilterRpt, kReportEnding)}});
    if (busy_ || chosen.empty()) {
        return;
    }
    const std::string& report = chosen.front();
    writeText(platform.settings, SettingId::OpenPath, folderOf(report));
    const std::unique_ptr<File> read = readReport(report);
    if (read == nullptr) {
        return;
    }
    const std::optional<Target> target =
        askTarget(textFormats(), std::string(fileStem(report)).append(kTextEnding));
    if (target && write(*target->format, inUseWith(report), read->File_gphList(), target->path)) {
        openWithShell(target->path);
    }
}

bool ExportCommands::canExportGlg() const {
    return !tracksOf(session_.getGphList()).empty();
}

bool ExportCommands::exportGlg(const std::string& path) {
    std::vector<std::span<const LonLat>> tracks;
    for (const GphTrack* track : tracksOf(session_.getGphList())) {
        if (!track->empty()) {
            tracks.emplace_back(track->points());
        }
    }
    if (tracks.empty()) {
        return fail({TextId::NoTracksToExport, {}});
    }
    std::optional<Failure> failure = whyNoTarget(path);
    if (!failure) {
        failure = session_.filesInUse().whyNotTarget(path);
    }
    if (!failure) {
        failure = exporttoglg(path, tracks);
    }
    return failure ? fail(*failure) : true;
}

void ExportCommands::mnuFileExportGlg() {
    const Platform& platform = session_.platform();
    const Texts& texts = session_.texts();
    const File* const current = session_.files().currentFile();
    const std::string proposed =
        std::string(current != nullptr ? fileStem(current->File_diskPath()) : "");
    const SaveAnswer answer =
        platform.dialogs.saveFile({std::string(texts(TextId::ExportTitle)),
                                   startFolder(session_, SettingId::ExportPath),
                                   proposed,
                                   {fileFilter(texts, TextId::FilterGlg, kGlgEnding)}});
    const std::string path = endedPath(answer.path, kGlgEnding);
    if (!path.empty()) {
        writeText(platform.settings, SettingId::ExportPath, folderOf(path));
        exportGlg(path);
    }
}

}  // namespace campora
