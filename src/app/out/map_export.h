// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <span>
#include <string>
#include <utility>
#include <vector>

#include "app/open_map.h"
#include "app/out/export_formats.h"
#include "base/files_in_use.h"
#include "model/file.h"
#include "work/gph_track.h"

namespace campora {

/// Writes what is open in the formats of others. Each operation says what went wrong and answers
/// whether the file was written; nothing is written otherwise. A file that is in use is never the
/// target.
class MapExport {
public:
    /// `map` outlives this.
    MapExport(const OpenMap& map, ExportMeans means) : map_(map), means_(std::move(means)) {}

    bool exportMap(const ExportFormat& format, const std::string& path) const;
    /// The points of all tracks in the GLG point format.
    bool exportGlg(const std::string& path) const;

    /// Reads a report without showing it on the map; null when it is refused.
    [[nodiscard]] std::unique_ptr<File> readReport(const std::string& path) const;
    /// Writes a report that was read from `source`.
    bool writeReport(const File& report, const std::string& source, const ExportFormat& format,
                     const std::string& path) const;

private:
    bool write(const ExportFormat& format, const FilesInUse& inUse, const std::vector<Gph*>& layers,
               const std::string& path) const;
    /// Says which files made the table of a format do without columns, if any did.
    void tellDroppedColumns(const ExportFormat& format, const std::vector<Gph*>& layers) const;
    [[nodiscard]] bool fail(const Failure& why) const;

    const OpenMap& map_;
    ExportMeans means_;
};

/// Those among the layers.
[[nodiscard]] std::vector<const GphTrack*> tracksOf(std::span<Gph* const> layers);

}  // namespace campora
