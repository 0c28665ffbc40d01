// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/track_export_run.h"
#include "base/interruption.h"
#include "base/plain_text.h"
#include "cli/batch_map.h"
#include "cli/commands.h"

namespace campora {

int runExportTrack(const Arguments& arguments, const Console& console) {
    BatchMap batch(arguments, console.boxes);
    TrackExportRun tracks(batch.map());
    tracks.options = arguments.trackExport;
    tracks.onBegin = [](const std::string& /*line*/) {};
    tracks.onDone = [&console, &tracks](const std::string& line,
                                        const TrackExportOutcome& outcome) {
        console.out << plainLine(line) << '\n';
        if (!outcome.remark.empty()) {
            console.boxes << oneLine(outcome.remark) << '\n';
        }
        if (isInterrupted()) {
            tracks.stop();
        }
    };
    const bool written = arguments.output.empty()
                             ? tracks.exportList(arguments.files)
                             : tracks.exportFiles(arguments.files.front(), arguments.output);
    return written ? exit_status::kDone : exit_status::kRefused;
}

}  // namespace campora
