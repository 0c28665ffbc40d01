// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/map_export.h"

#include <optional>

#include "app/used_files.h"
#include "base/file_endings.h"
#include "base/files.h"
#include "base/paths.h"
#include "work/glg_points.h"
#include "work/work_reader.h"

namespace campora {

std::vector<const GphTrack*> tracksOf(std::span<Gph* const> layers) {
    std::vector<const GphTrack*> tracks;
    for (const Gph* layer : layers) {
        if (const auto* track = dynamic_cast<const GphTrack*>(layer)) {
            tracks.push_back(track);
        }
    }
    return tracks;
}

bool MapExport::fail(const Failure& why) const {
    const Desk& desk = map_.desk();
    desk.tell(std::string(desk.texts(TextId::ExportFailed))
                  .append("\r\n")
                  .append(desk.texts.sentence(why)));
    return false;
}

void MapExport::tellDroppedColumns(const ExportFormat& format,
                                   const std::vector<Gph*>& layers) const {
    std::string names;
    const File* last = nullptr;
    for (const Gph* const layer : layersWithoutColumns(format, layers)) {
        const File* const owner = map_.files().ownerOf(layer);
        if (owner != nullptr && owner != last) {
            names.append(names.empty() ? "" : ", ").append(owner->File_name());
        }
        last = owner;
    }
    if (!names.empty()) {
        map_.desk().tell({TextId::ColumnsDropped, {names}}, MessageIcon::Information);
    }
}

bool MapExport::write(const ExportFormat& format, const FilesInUse& inUse,
                      const std::vector<Gph*>& layers, const std::string& path) const {
    std::optional<Failure> failure = whyNoTarget(path);
    if (!failure) {
        failure = inUse.whyNotTarget(targetsOf(format, path));
    }
    if (failure) {
        return fail(*failure);
    }
    bool cancelled = false;
    {
        const Desk& desk = map_.desk();
        const std::unique_ptr<Progress> shown = desk.dialogs.progress(
            std::string(desk.texts(TextId::Exporting)).append(" ").append(fileNamePart(path)));
        ExportProgress progress(*shown);
        failure = format.write({map_, means_, layers, path, progress});
        cancelled = progress.cancelled();
    }
    if (failure || cancelled) {
        return failure && fail(*failure);
    }
    tellDroppedColumns(format, layers);
    return true;
}

bool MapExport::exportMap(const ExportFormat& format, const std::string& path) const {
    return write(format, map_.filesInUse(), map_.getGphList(), path);
}

std::unique_ptr<File> MapExport::readReport(const std::string& path) const {
    if (pathEnding(path) != kReportEnding) {
        // The oldest reports have no mark of their own: any bytes would pass for one.
        map_.desk().tell({TextId::FileNotCompatibleNamed, {path}});
        return nullptr;
    }
    std::optional<LoadedWork> work =
        loadRptFile(findIgnoringCase(path), {map_.desk(), map_.registrations()});
    return work ? std::move(work->group) : nullptr;
}

bool MapExport::writeReport(const File& report, const std::string& source,
                            const ExportFormat& format, const std::string& path) const {
    FilesInUse inUse = map_.filesInUse();
    addOpened(inUse, source);
    return write(format, inUse, report.File_gphList(), path);
}

bool MapExport::exportGlg(const std::string& path) const {
    std::vector<std::span<const LonLat>> tracks;
    for (const GphTrack* track : tracksOf(map_.getGphList())) {
        if (!track->empty()) {
            tracks.emplace_back(track->points());
        }
    }
    if (tracks.empty()) {
        return fail({TextId::NoTracksToExport, {}});
    }
    std::optional<Failure> failure = whyNoTarget(path);
    if (!failure) {
        failure = map_.filesInUse().whyNotTarget(path);
    }
    if (!failure) {
        failure = exporttoglg(path, tracks);
    }
    return failure ? fail(*failure) : true;
}

}  // namespace campora
