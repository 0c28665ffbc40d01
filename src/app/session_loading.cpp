// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// How files come into a session, and how they are put away and brought back.

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "app/session.h"
#include "base/paths.h"
#include "platform/left_undone.h"
#include "platform/quiet_dialogs.h"

namespace campora {

namespace {

/// A file without points has no box, and takes no part in the extent of the map.
void grow(BoundingBox& bound, const BoundingBox& other) {
    if (other.isSet) {
        bound.addBoundingBox(other);
    }
}

}  // namespace

bool Session::addFile(std::unique_ptr<File> file, bool updateView, bool atTop) {
    return addToMap(std::move(file), updateView, atTop, platform_.dialogs);
}

bool Session::addToMap(std::unique_ptr<File> file, bool updateView, bool atTop, Dialogs& dialogs) {
    if (!file) {
        return false;
    }
    const BoundingBox bound = file->File_bound();
    if (!files_.addFile(std::move(file), atTop, dialogs)) {
        return false;
    }
    if (updateView) {
        if (files_.loadedCount() == 1) {
            view_.totalBound.clear();
        }
        grow(view_.totalBound, bound);
        view_.fitView();
    }
    return true;
}

void Session::showOnTop(std::unique_ptr<File> file) {
    File* const made = file.get();
    if (addFile(std::move(file), true, true)) {
        files_.setCurrentFile(made);
        afterLoading(true);
    }
}

void Session::showBelow(std::unique_ptr<File> file) {
    File* const made = file.get();
    const MapView::Place place = view_.place();
    const BoundingBox bound = view_.totalBound;
    const bool isFirst = files_.empty();
    if (!addFile(std::move(file), true, false)) {
        return;
    }
    files_.setCurrentFile(made);
    const bool hasGrown = isFirst || !bound.equals(view_.totalBound);
    afterLoading(hasGrown);
    if (!hasGrown) {
        view_.goBackTo(place);
    }
}

void Session::replaceFile(const File* old, std::unique_ptr<File> file) {
    File* const shown = file.get();
    files_.replaceFile(old, std::move(file));
    selectFile(files_.indexOf(shown));
    loadFileList(true);
    if (recalcGphBound()) {
        view_.ZoomUno();
    } else {
        redraw();
    }
}

bool Session::recalcGphBound() {
    BoundingBox bound;
    for (const File* file : openFiles()) {
        grow(bound, file->File_bound());
    }
    if (bound.equals(view_.totalBound)) {
        return false;
    }
    view_.totalBound = bound;
    view_.fitView();
    return true;
}

bool Session::loadFile(std::string_view path, bool resetFirst, bool zoomAll) {
    if (!takeFile(path, resetFirst, platform_.dialogs)) {
        return false;
    }
    afterLoading(zoomAll);
    return true;
}

void Session::showQuietly(const std::vector<std::string>& paths) {
    reset();
    QuietDialogs quiet;
    if (!takeFiles(paths, false, quiet).empty()) {
        afterLoading(true);
    }
}

bool Session::takeFile(std::string_view path, bool resetFirst, Dialogs& dialogs) {
    const std::string found = findIgnoringCase(path);
    if (!resetFirst && files_.isLoaded(found)) {
        return false;
    }
    return takeWork(found, formatToOpen(found), resetFirst, dialogs);
}

bool Session::takeWork(std::string_view path, const FileFormat& format, bool resetFirst,
                       Dialogs& dialogs) {
    const OpenContext context{{dialogs, platform_.locale, texts_, registrations_}, style_.colors};
    std::optional<OpenedFile> work = format.read(path, context);
    if (!work) {
        return false;
    }
    addKeptEdits(*work->file);
    if (resetFirst) {
        reset();  // only now: a file that is refused must not cost the open ones
        sources_.clear();
    }
    if (files_.empty()) {
        hasFlowStops_.reset();
    }
    if (!addToMap(std::move(work->file), true, false, dialogs)) {
        return false;
    }
    if (format.fromLogger) {
        lastTrackFile_ = path;
    }
    style_.graduated = style_.graduated || format.graduates;
    if (work->kind) {
        lastKind_ = work->kind;
    }
    if (work->hasFlowStops) {
        hasFlowStops_ = hasFlowStops_.value_or(false) || *work->hasFlowStops;
    }
    return true;
}

void Session::afterLoading(bool zoomAll) {
    collectRanges();
    refreshColorScale();
    if (style_.mode == ColorMode::Error) {
        recalcErrorAreas();
    }
    if (zoomAll) {
        view_.ZoomUno();
    }
    platform_.window.active(true, true);
    replay_.prepareReplay();
    loadFileList(true);
    showCurrentFile();
    showFlowStops();
    platform_.window.commandsChanged();
}

std::vector<std::string> Session::takeFiles(const std::vector<std::string>& paths, bool resetFirst,
                                            Dialogs& dialogs) {
    std::vector<std::string> taken;
    const auto progress = platform_.dialogs.progress(texts_(TextId::OpeningFiles));
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (i > 0 && !progress->report(static_cast<int>(100 * i / paths.size()))) {
            tellLeftUndone(TextId::OpeningCancelled, std::span(paths).subspan(i), dialogs, texts_);
            break;
        }
        if (takeFile(paths[i], resetFirst && taken.empty(), dialogs)) {
            taken.push_back(paths[i]);
        }
    }
    return taken;
}

std::vector<std::string> Session::loadFiles(const std::vector<std::string>& paths,
                                            bool resetFirst) {
    std::vector<std::string> taken = takeFiles(paths, resetFirst, platform_.dialogs);
    if (!taken.empty()) {
        afterLoading(true);
    }
    return taken;
}

void Session::reloadFiles() {
    if (files_.empty()) {
        return;
    }
    const MapView::Place place = view_.place();
    const BoundingBox bound = view_.totalBound;
    const std::optional<int> current = files_.indexOf(files_.currentFile());
    LoadedFileList::Saved old = files_.takeAll();
    view_.totalBound = {};
    for (std::unique_ptr<File>& file : old.files) {
        const std::string path = file->File_diskPath();
        // What was made here and is on no disk stays as it is.
        if (path.empty() || !takeFile(path, false, platform_.dialogs)) {
            addFile(std::move(file), true, false);
        }
    }
    if (current && *current < files_.loadedCount()) {
        files_.setCurrentFile(&files_.file(*current));
    }
    const bool sameExtent = bound.equals(view_.totalBound);
    afterLoading(!sameExtent);
    if (sameExtent) {
        view_.goBackTo(place);
    }
}

void Session::plotPreview(bool save, bool zoomAll) {
    if (save == saved_.has_value()) {
        return;  // put away already, or nothing to bring back
    }
    if (save) {
        saved_.emplace(SavedMap{title_, files_.takeAll(), view_.totalBound, hasFlowStops_,
                                style_.graduated, style_.mode, lastKind_, lastTrackFile_,
                                defaultScale_.content(), unitScale_.content(), view_.place(),
                                tools_.tool()});
        view_.totalBound = {};
        return;
    }
    SavedMap saved = std::move(*saved_);
    saved_.reset();
    files_.putBack(std::move(saved.files));
    style_.graduated = saved.graduated;
    style_.mode = saved.mode;
    lastKind_ = saved.lastKind;
    lastTrackFile_ = std::move(saved.lastTrackFile);
    if (files_.empty()) {
        reset();
        return;
    }
    hasFlowStops_ = saved.hasFlowStops;
    view_.totalBound = saved.totalBound;
    view_.fitView();
    afterLoading(false);
    loading_ = true;
    // With the classes that the user had made.
    defaultScale_.setContent(std::move(saved.scale));
    unitScale_.setContent(std::move(saved.unitScale));
    spread_ = {};
    loading_ = false;
    showLegend();
    showTitle(saved.title);
    tools_.setTool(saved.tool);
    if (zoomAll) {
        view_.ZoomUno();
    } else {
        view_.goBackTo(saved.place);
    }
}

}  // namespace campora
