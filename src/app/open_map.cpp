// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open_map.h"

#include <algorithm>
#include <cstddef>
#include <span>
#include <utility>

#include "app/open/file_loading.h"
#include "app/used_files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "model/file_gph_group.h"
#include "platform/left_undone.h"
#include "presc/multi_channel.h"
#include "work/color_modes.h"
#include "work/edits_file.h"

namespace campora {

OpenMap::OpenMap(const Desk& desk, std::string programFolder)
    : desk_(desk), programFolder_(std::move(programFolder)), scales_(files_, style_) {}

void OpenMap::readRegistrations() {
    registrations_ = loadRegistrations(programFolder_, desk_);
}

std::vector<Gph*> OpenMap::getGphList() const {
    std::vector<Gph*> all;
    for (const File* file : files_.all()) {
        const std::vector<Gph*> layers = file->File_gphList();
        all.insert(all.end(), layers.begin(), layers.end());
    }
    return all;
}

BoundingBox boundOf(const OpenMap& map) {
    BoundingBox bound;
    for (const File* file : map.files().all()) {
        // A file without points has no box, and takes no part in the extent of the map.
        if (const BoundingBox& box = file->File_bound(); box.isSet) {
            bound.addBoundingBox(box);
        }
    }
    return bound;
}

void recalcErrorAreas(OpenMap& map) {
    for (File* file : map.files().all()) {
        if (auto* const group = dynamic_cast<FileGphGroup*>(file)) {
            group->calcErrorArea(map.style(), map.desk().locale);
        }
    }
}

std::vector<std::string> OpenMap::openAll(const std::vector<std::string>& paths,
                                          const OpenManner& manner) {
    std::vector<std::string> taken;
    const Desk& desk = manner.desk != nullptr ? *manner.desk : desk_;
    const std::unique_ptr<Progress> window =
        manner.progress != nullptr ? nullptr
                                   : desk_.dialogs.progress(desk_.texts(TextId::OpeningFiles));
    Progress& progress = manner.progress != nullptr ? *manner.progress : *window;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (take(paths[i], manner.inPlace && taken.empty(), desk)) {
            taken.push_back(paths[i]);
        }
        const bool isLast = i + 1 == paths.size();
        if (!isLast && !progress.report(static_cast<int>(100 * (i + 1) / paths.size()))) {
            if (window != nullptr) {
                tellLeftUndone(TextId::OpeningCancelled, std::span(paths).subspan(i + 1), desk);
            }
            break;
        }
    }
    sources_.insert(sources_.end(), manner.sources.begin(), manner.sources.end());
    if (!taken.empty()) {
        filesChanged();
    }
    return taken;
}

bool OpenMap::take(std::string_view path, bool inPlace, const Desk& desk) {
    const std::string found = findIgnoringCase(path);
    if (!inPlace && files_.isLoaded(found)) {
        return false;
    }
    return takeWork(found, formatToOpen(found), inPlace, desk);
}

bool OpenMap::takeWork(std::string_view path, const FileFormat& format, bool inPlace,
                       const Desk& desk) {
    std::optional<OpenedFile> work = format.read(path, {{desk, registrations_}, style_.colors});
    if (!work) {
        return false;
    }
    addKeptEdits(*work->file);
    if (inPlace) {
        reset();  // only now: a file that is refused must not cost the open ones
        sources_.clear();
    }
    if (files_.empty()) {
        history_.hasFlowStops.reset();
    }
    if (!files_.addFile(std::move(work->file), false, desk)) {
        return false;
    }
    if (format.fromLogger) {
        history_.lastTrackFile = path;
    }
    style_.graduated = style_.graduated || format.graduates;
    if (work->kind) {
        history_.lastKind = work->kind;
    }
    if (work->hasFlowStops) {
        history_.hasFlowStops = history_.hasFlowStops.value_or(false) || *work->hasFlowStops;
    }
    return true;
}

void OpenMap::refreshColorScale() {
    remakeModeLayer();
    scales_.refresh();
}

bool OpenMap::showModeLayer(ColorMode mode, MakeModeLayer make) {
    std::unique_ptr<ModeLayer> layer = make(*this);
    if (layer == nullptr) {
        return false;
    }
    makeModeLayer_ = std::move(make);
    modeLayer_ = std::move(layer);
    layeredMode_ = mode;
    style_.mode = mode;
    scales_.refresh();
    return true;
}

const ModeLayer* OpenMap::modeLayer() const {
    return style_.mode == layeredMode_ ? modeLayer_.get() : nullptr;
}

void OpenMap::remakeModeLayer() {
    if (style_.mode != layeredMode_ || !makeModeLayer_) {
        modeLayer_.reset();
        return;
    }
    modeLayer_ = files_.empty() ? nullptr : makeModeLayer_(*this);
    if (modeLayer_ == nullptr) {
        style_.mode = ColorMode::Dose;
    }
}

void OpenMap::filesChanged() {
    ranges_ = rangesOf(files_.all());
    refreshColorScale();
    if (style_.mode == ColorMode::Error) {
        recalcErrorAreas(*this);
    }
}

void OpenMap::reload() {
    const std::optional<int> current = files_.indexOf(files_.currentFile());
    LoadedFileList::Saved old = files_.takeAll();
    for (std::unique_ptr<File>& file : old.files) {
        const std::string path = file->File_diskPath();
        if (path.empty() || !take(path, false, desk_)) {
            files_.addFile(std::move(file), false, desk_);
        }
    }
    if (current && *current < files_.loadedCount()) {
        files_.setCurrentFile(&files_.file(*current));
    }
    filesChanged();
}

bool OpenMap::addFile(std::unique_ptr<File> file, bool atTop) {
    File* const made = file.get();
    if (!files_.addFile(std::move(file), atTop, desk_)) {
        return false;
    }
    files_.setCurrentFile(made);
    filesChanged();
    return true;
}

void OpenMap::replaceFile(const File* old, std::unique_ptr<File> file) {
    File* const shown = file.get();
    files_.replaceFile(old, std::move(file));
    files_.setCurrentFile(shown);
}

void OpenMap::removeFile(const File* file) {
    const std::optional<int> index = files_.indexOf(file);
    if (!index) {
        return;
    }
    const bool wasCurrent = files_.currentFile() == file;
    const bool hadWork = countsUnits(*file).has_value();
    files_.removeFile(file);
    if (files_.empty()) {
        reset();
        return;
    }
    ranges_ = rangesOf(files_.all());
    scales_.forgetSpread();
    if (wasCurrent) {
        files_.setCurrentFile(&files_.file(std::min(*index, files_.loadedCount() - 1)));
    }
    remakeModeLayer();
    if (hadWork) {
        scales_.refresh();  // the classes are those of the work that is left
    }
}

void OpenMap::reset() {
    files_.clearFiles();
    remakeModeLayer();
    ranges_ = {};
    history_.hasFlowStops.reset();
    if (onReset) {
        onReset();
    }
}

void OpenMap::putAway() {
    putAway_.emplace(
        PutAway{files_.takeAll(), history_, style_.graduated, style_.mode, scales_.content()});
}

void OpenMap::bringBack() {
    PutAway saved = std::move(*putAway_);
    putAway_.reset();
    files_.putBack(std::move(saved.files));
    style_.graduated = saved.graduated;
    style_.mode = saved.mode;
    history_ = std::move(saved.history);
    if (files_.empty()) {
        reset();
        return;
    }
    filesChanged();
    scales_.setContent(std::move(saved.scales));  // the classes that the user had made
}

FilesInUse OpenMap::filesInUse(const File* but) const {
    FilesInUse used;
    used.add(pathText(nativePath(programFolder_) / kRegistrationsFile));
    const auto add = [&used, but](const File& file) {
        if (&file != but) {
            addFileOf(used, file);
        }
        for (const std::string& source : file.madeFrom) {
            addOpened(used, source);
        }
    };
    for (const File* file : files_.all()) {
        add(*file);
    }
    if (putAway_) {
        for (const std::unique_ptr<File>& file : putAway_->files.files) {
            add(*file);
        }
    }
    for (const std::string& source : sources_) {
        addOpened(used, source);
    }
    return used;
}

void selectChannel(OpenMap& map, int index) {
    map.style().selectedChannel = index;
    for (File* file : map.files().all()) {
        auto* const several = dynamic_cast<MultiChannel*>(file);
        if (several == nullptr) {
            continue;
        }
        if (index < 0) {
            several->showTotal();
        } else if (index < several->channelsCnt()) {
            several->setCurrentChannel(index);
        } else {
            map.desk().tell(
                {TextId::FileWithoutChannel, {file->File_name(), numberText(index + 1)}});
        }
    }
}

}  // namespace campora
