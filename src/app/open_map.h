// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/loaded_file_list.h"
#include "app/mode_layer.h"
#include "app/work_scales.h"
#include "base/files_in_use.h"
#include "model/bounding_box.h"
#include "model/file.h"
#include "model/gph.h"
#include "model/map_style.h"
#include "model/value_ranges.h"
#include "platform/desk.h"
#include "work/registrations.h"
#include "work/work_kind.h"

namespace campora {

struct FileFormat;

/// How files are opened.
struct OpenManner {
    /// The first that is taken replaces what is open.
    bool inPlace = false;
    /// Files that these are read from beside themselves; in use until others take their place.
    std::vector<std::string> sources = {};
    /// Where to say what is wrong with a file; null: at the map's own desk.
    const Desk* desk = nullptr;
    /// Told after each file but the last, and may end the work; null: a window of the desk, and a
    /// word on what was left undone.
    Progress* progress = nullptr;
};

/// What was opened since the program began.
struct WorkHistory {
    /// Of the machine of the report read last; none before the first.
    std::optional<WorkKind> lastKind;
    /// Whether a track file with a step without flow is open; none without track files.
    std::optional<bool> hasFlowStops;
    /// The logger's track file opened last; empty when there was none.
    std::string lastTrackFile;
};

/// The open files and all that follows from them and from how the user wants to see them: ranges
/// of values, colour scales, hectares in error. Knows no window, canvas or clock; whoever shows the
/// map is to show it anew after a change.
class OpenMap {
public:
    /// `programFolder`: where the registrations and the templates are.
    OpenMap(const Desk& desk, std::string programFolder);
    OpenMap(const OpenMap&) = delete;
    OpenMap& operator=(const OpenMap&) = delete;
    ~OpenMap() = default;

    /// Called when everything has been closed, also in the middle of opening others in its place;
    /// may be empty.
    std::function<void()> onReset;

    [[nodiscard]] const Desk& desk() const { return desk_; }
    [[nodiscard]] const std::string& programFolder() const { return programFolder_; }
    /// Who carries which logger; none before `readRegistrations`, which says what is wrong with
    /// the table.
    [[nodiscard]] const Registrations& registrations() const { return registrations_; }
    void readRegistrations();

    [[nodiscard]] LoadedFileList& files() { return files_; }
    [[nodiscard]] const LoadedFileList& files() const { return files_; }
    /// How many files are open.
    [[nodiscard]] int plotCount() const { return files_.loadedCount(); }
    /// All layers of all open files, first file first.
    [[nodiscard]] std::vector<Gph*> getGphList() const;
    /// Of the files that are open.
    [[nodiscard]] const ValueRanges& ranges() const { return ranges_; }
    [[nodiscard]] const WorkHistory& history() const { return history_; }

    [[nodiscard]] MapStyle& style() { return style_; }
    [[nodiscard]] const MapStyle& style() const { return style_; }
    [[nodiscard]] WorkScales& scales() { return scales_; }
    /// The scales anew for the style as it is, and what a mode draws in place of the work.
    void refreshColorScale();

    /// Makes the layer of a mode from what is open; null when there is nothing that it could show.
    using MakeModeLayer = std::function<std::unique_ptr<ModeLayer>(const OpenMap& map)>;
    /// From now on the map is in that mode and shows such a layer, made anew whenever the work
    /// changes. False, and nothing else is done, when there is nothing to show. The mode ends with
    /// the last thing that it could show, or when the style takes another one.
    [[nodiscard]] bool showModeLayer(ColorMode mode, MakeModeLayer make);
    /// What is drawn in place of the work; null for nothing.
    [[nodiscard]] const ModeLayer* modeLayer() const;

    /// Opens files by their endings, in order, until the user has enough; says what is wrong with
    /// each that is refused. One that is open already is left out. Answers those that were taken.
    std::vector<std::string> openAll(const std::vector<std::string>& paths,
                                     const OpenManner& manner = {});
    /// Reads every file again; one that cannot be read, or is on no disk yet, stays as it was.
    void reload();
    /// Adds a file that was made here, as the current one. False when the duplicate rule kept it
    /// out.
    bool addFile(std::unique_ptr<File> file, bool atTop);
    /// Another file in the place of an open one, as the current file.
    void replaceFile(const File* old, std::unique_ptr<File> file);
    /// Nothing for a file that is not open, or null.
    void removeFile(const File* file);
    /// Closes everything.
    void reset();

    /// Puts the open files away, so that others can be shown for a while.
    void putAway();
    /// Closes those and brings back what was put away, with its classes.
    void bringBack();

    /// What no command writes over: the open files but for `but`, which may be null, those that are
    /// put away, and all that they use or were read from.
    [[nodiscard]] FilesInUse filesInUse(const File* but = nullptr) const;

private:
    struct PutAway {
        LoadedFileList::Saved files;
        WorkHistory history;
        bool graduated = true;
        ColorMode mode = ColorMode::Dose;
        WorkScales::Content scales;
    };

    [[nodiscard]] bool take(std::string_view path, bool inPlace, const Desk& desk);
    [[nodiscard]] bool takeWork(std::string_view path, const FileFormat& format, bool inPlace,
                                const Desk& desk);
    /// What follows from the files.
    void filesChanged();
    void remakeModeLayer();

    Desk desk_;
    std::string programFolder_;
    Registrations registrations_;
    MapStyle style_;
    LoadedFileList files_;
    WorkScales scales_;
    ValueRanges ranges_;
    WorkHistory history_;
    std::vector<std::string> sources_;
    std::optional<PutAway> putAway_;
    MakeModeLayer makeModeLayer_;
    /// Of the mode that it was made for.
    std::unique_ptr<ModeLayer> modeLayer_;
    ColorMode layeredMode_ = ColorMode::Dose;
};

/// The box around the open files; not set without points.
[[nodiscard]] BoundingBox boundOf(const OpenMap& map);

/// Brings the hectares in error of every file up to date with the error map.
void recalcErrorAreas(OpenMap& map);

/// Lets a dose channel, from 0, colour the work; prescriptions show it. -1 is the total. Files that
/// lack it are named.
void selectChannel(OpenMap& map, int index);

}  // namespace campora
