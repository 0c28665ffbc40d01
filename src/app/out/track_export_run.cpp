// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/out/track_export_run.h"

#include <cstddef>
#include <span>

#include "app/used_files.h"
#include "base/file_endings.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "export/shapefile_writer.h"
#include "platform/left_undone.h"
#include "platform/quiet_dialogs.h"
#include "work/work_reader.h"

namespace campora {

namespace {

constexpr std::string_view kResultDots = ":...........";

/// Keeps what the reader of a file says, instead of a box for each file of a run.
class RemarkDialogs final : public QuietDialogs {
public:
    std::string remarks;

    void message(std::string_view text, MessageIcon /*icon*/,
                 std::string_view /*caption*/) override {
        remarks.append(remarks.empty() ? "" : "\n").append(trim(replaceAll(text, "\r\n", "\n")));
    }
};

}  // namespace

TrackExportOutcome TrackExportRun::exportOne(const std::string& source,
                                             std::string_view basePath) const {
    if (const auto refused = inUse_.whyNotTarget(filesOfShapefile(basePath))) {
        return {false, map_.desk().texts.sentence(*refused)};
    }
    RemarkDialogs dialogs;
    const std::optional<LoadedWork> work =
        loadTrackFile(source, {map_.desk().with(dialogs), map_.registrations()});
    if (!work) {
        return {false, dialogs.remarks};
    }
    const std::optional<Failure> failure = exportTrack(*work->group, basePath, options);
    return {!failure, failure ? map_.desk().texts.sentence(*failure) : dialogs.remarks};
}

void TrackExportRun::lookWhatIsInUse(const std::vector<std::string>& sources) {
    inUse_ = map_.filesInUse();
    for (const std::string& source : sources) {
        addOpened(inUse_, source);
    }
}

bool TrackExportRun::exportList(const std::vector<std::string>& paths) {
    if (running_) {
        return false;
    }
    running_ = true;
    stopped_ = false;
    bool all = true;
    lookWhatIsInUse(paths);
    const Texts& texts = map_.desk().texts;
    for (const std::string& path : paths) {
        std::string line = std::string(texts(TextId::Exporting)) + ' ';
        line += fileNamePart(path);
        onBegin(line);
        const std::string found = findIgnoringCase(path);
        const TrackExportOutcome outcome = exportOne(found, shapeBaseOf(found));
        line += kResultDots;
        line += texts(outcome.written ? TextId::ExportOk : TextId::Error);
        onDone(line, outcome);
        all = all && outcome.written;
        if (stopped_) {
            tellLeftUndone(
                TextId::ExportCancelled,
                std::span(paths).subspan(static_cast<std::size_t>(&path - paths.data()) + 1),
                map_.desk());
            break;
        }
    }
    running_ = false;
    return all && !stopped_;
}

bool TrackExportRun::exportFiles(const std::string& source, const std::string& target) {
    const std::string base = pathEnding(target) == kShapeEnding ? shapeBaseOf(target) : target;
    const Texts& texts = map_.desk().texts;
    const std::optional<Failure> refused = whyNoTarget(target);
    lookWhatIsInUse({source});
    const TrackExportOutcome outcome = refused ? TrackExportOutcome{false, texts.sentence(*refused)}
                                               : exportOne(findIgnoringCase(source), base);
    std::string text(texts(outcome.written ? TextId::FileExported : TextId::FileNotExported));
    if (!outcome.remark.empty()) {
        text.append("\r\n").append(outcome.remark);
    }
    map_.desk().tell(text, outcome.written ? MessageIcon::Information : MessageIcon::Exclamation);
    return outcome.written;
}

}  // namespace campora
