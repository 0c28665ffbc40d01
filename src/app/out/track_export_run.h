// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/open_map.h"
#include "app/out/track_export.h"
#include "base/files_in_use.h"

namespace campora {

/// What came of the export of one track file.
struct TrackExportOutcome {
    bool written = false;
    /// Why it was not, or what the reader remarked on the file; empty for nothing.
    std::string remark;
};

/// The dialog that exports track files without its widgets. Pending events run between the files,
/// so `stop` may be called before `exportList` returns.
class TrackExportRun {
public:
    /// `map` outlives the run.
    explicit TrackExportRun(const OpenMap& map) : map_(map) {}

    TrackExportOptions options;
    /// Told when a file is begun ("Exportando x.nbr") and again when it is done
    /// ("Exportando x.nbr:...........Ok"); each may let events run.
    std::function<void(const std::string& line)> onBegin;
    std::function<void(const std::string& line, const TrackExportOutcome& outcome)> onDone;

    /// Exports each file to a shapefile of its name beside it, whatever became of those before;
    /// false when one failed or the user stopped.
    bool exportList(const std::vector<std::string>& paths);
    /// Exports a file to a shapefile, whose path may end in ".shp", and says what came of it.
    bool exportFiles(const std::string& source, const std::string& target);
    /// The run ends with the file it is at.
    void stop() { stopped_ = true; }
    [[nodiscard]] bool isRunning() const { return running_; }

private:
    /// One file, unless its shapefile would stand in the place of a file in use.
    [[nodiscard]] TrackExportOutcome exportOne(const std::string& source,
                                               std::string_view basePath) const;
    /// The files of the map and these.
    void lookWhatIsInUse(const std::vector<std::string>& sources);

    const OpenMap& map_;
    /// What is in use, the files to read among it; made once for a run.
    FilesInUse inUse_;
    bool running_ = false;
    bool stopped_ = false;
};

}  // namespace campora
