// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "app/colours/legend_commands.h"
#include "app/colours/map_modes.h"
#include "app/loaded_file_list.h"
#include "app/lots/lot_commands.h"
#include "app/lots/lot_editor.h"
#include "app/map/place_marks.h"
#include "app/map/replay.h"
#include "app/map_tools.h"
#include "app/map_view.h"
#include "app/open/file_commands.h"
#include "app/open/file_loading.h"
#include "app/open/summary_commands.h"
#include "app/out/export_commands.h"
#include "app/presc/presc_commands.h"
#include "base/files_in_use.h"
#include "base/texts.h"
#include "colour/color_scale.h"
#include "model/map_style.h"
#include "model/value_ranges.h"
#include "platform/classes_registry.h"
#include "platform/clipboard.h"
#include "platform/clock.h"
#include "platform/dialogs.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"
#include "platform/settings_store.h"
#include "platform/shell.h"
#include "platform/user_locale.h"
#include "work/registrations.h"

namespace campora {

/// What a session asks of the desktop it runs on; all of it outlives the session.
struct Platform {
    MapCanvas& canvas;
    MainWindowControls& window;
    Dialogs& dialogs;
    SettingsStore& settings;
    const UserLocale& locale;
    Clipboard& clipboard;
    Clock& clock;
    ClassesRegistry& classes;
    Shell& shell;
};

/// The one object behind a main window (or behind one run of the batch program): open files, view,
/// style and texts, and the operations of the window's menus and lists.
class Session {
public:
    /// `programFolder`: where the registrations are.
    Session(const Platform& platform, Language language, std::string programFolder);
    Session(const Session&) = delete;
    Session& operator=(const Session&) = delete;
    ~Session() = default;

    /// Start-up: colours and switches from the settings, the registrations, the empty map.
    void start();

    // The commands of the window, by what they are about.
    [[nodiscard]] FileCommands& fileCommands() { return fileCommands_; }
    [[nodiscard]] const FileCommands& fileCommands() const { return fileCommands_; }
    [[nodiscard]] MapModes& modes() { return modes_; }
    [[nodiscard]] const MapModes& modes() const { return modes_; }
    [[nodiscard]] PrescCommands& prescription() { return prescription_; }
    [[nodiscard]] const PrescCommands& prescription() const { return prescription_; }
    [[nodiscard]] ExportCommands& exports() { return exports_; }
    [[nodiscard]] const ExportCommands& exports() const { return exports_; }
    [[nodiscard]] LotCommands& lots() { return lots_; }
    [[nodiscard]] const LotCommands& lots() const { return lots_; }
    [[nodiscard]] LotEditor& lotEditor() { return lotEditor_; }
    [[nodiscard]] const LotEditor& lotEditor() const { return lotEditor_; }
    [[nodiscard]] MapTools& tools() { return tools_; }
    [[nodiscard]] const MapTools& tools() const { return tools_; }
    [[nodiscard]] Replay& replay() { return replay_; }
    [[nodiscard]] const Replay& replay() const { return replay_; }

    [[nodiscard]] const Platform& platform() const { return platform_; }
    [[nodiscard]] const Texts& texts() const { return texts_; }
    /// Every text of the window from now on, and at the next start.
    void setLanguage(Language language);
    /// How positions are shown, from now on and at the next start.
    void setCoordType(CoordType type);
    [[nodiscard]] CoordType coordType() const { return coordType_; }
    /// The text that printed pages carry.
    std::string printDescription;
    [[nodiscard]] const std::string& programFolder() const { return programFolder_; }
    [[nodiscard]] const Registrations& registrations() const { return registrations_; }
    [[nodiscard]] LoadedFileList& files() { return files_; }
    /// Of the files that are open.
    [[nodiscard]] const ValueRanges& ranges() const { return ranges_; }
    [[nodiscard]] MapView& view() { return view_; }
    [[nodiscard]] MapStyle& style() { return style_; }
    [[nodiscard]] const MapStyle& style() const { return style_; }
    /// The scale of work in litres, and of everything else that has none of its own.
    [[nodiscard]] ColorScale& defaultScale() { return defaultScale_; }
    /// The scale of work in units of seed.
    [[nodiscard]] ColorScale& unitScale() { return unitScale_; }

    /// The scale of the legend: the current file's own or that of its unit of dose.
    [[nodiscard]] ColorScale& shownScale();
    /// The commands on that scale.
    [[nodiscard]] LegendCommands& legend() { return legend_; }
    /// The commands on the summary of the current file.
    [[nodiscard]] SummaryCommands& summary() { return summary_; }
    [[nodiscard]] const SummaryCommands& summary() const { return summary_; }
    /// Kind of the machine of the report read last; none before the first.
    [[nodiscard]] std::optional<WorkKind> lastKind() const { return lastKind_; }

    [[nodiscard]] int plotCount() const { return files_.loadedCount(); }
    /// False when the duplicate rule kept the file out.
    bool addFile(std::unique_ptr<File> file, bool updateView, bool atTop);
    /// Adds a file that was made here as the first and current one, and shows the whole map.
    void showOnTop(std::unique_ptr<File> file);
    /// Adds a file that was made here as the last and current one; the view stays where it is
    /// unless the map has grown.
    void showBelow(std::unique_ptr<File> file);
    /// Shows another file in the place of an open one, as the current file.
    void replaceFile(const File* old, std::unique_ptr<File> file);
    /// Collects the boxes of the open files anew and fits the view; false when nothing changed.
    bool recalcGphBound();
    void removeFile(const File* file);
    /// Opens a file by its ending, in place of what is open when `resetFirst`. False when it is
    /// open already, was refused or no reader takes it; nothing has changed then. Without `zoomAll`
    /// nothing is redrawn: the caller does that after the last of several files.
    bool loadFile(std::string_view path, bool resetFirst, bool zoomAll);
    /// Opens several in order, until the user has enough, and shows the whole map; with
    /// `resetFirst` the first that is taken replaces what is open. Answers those that were taken.
    std::vector<std::string> loadFiles(const std::vector<std::string>& paths, bool resetFirst);
    /// Shows these files alone, without a message or question; for previews, after `plotPreview`.
    void showQuietly(const std::vector<std::string>& paths);
    /// Whether the open files may go: asks about what was made here and is not saved.
    [[nodiscard]] bool mayCloseFiles() const {
        return prescription_.mayClose() && lots_.mayClose();
    }
    /// Keeps a file that open ones were read from, until others take their place.
    void addSource(std::string path) { sources_.push_back(std::move(path)); }
    /// What no command writes over: the open files but for `but`, which may be null, and all that
    /// they use or were read from.
    [[nodiscard]] FilesInUse filesInUse(const File* but = nullptr) const;
    /// Reads every open file again; one that cannot be read stays as it was.
    void reloadFiles();
    /// The logger's track file opened last; empty when there was none.
    [[nodiscard]] const std::string& lastTrackFile() const { return lastTrackFile_; }
    /// The empty map.
    void reset();
    /// The title for the current file, when there is one, or for untitled work.
    void setTitle(bool untitled);
    /// All layers of all open files, first file first.
    [[nodiscard]] std::vector<Gph*> getGphList() const;
    /// Puts the open files away, so that another can be shown alone (`save`), or brings them back.
    void plotPreview(bool save, bool zoomAll);
    void loadFileList(bool selectCurrent);

    /// The user chose a row of the file list, or none.
    void selectFile(std::optional<int> row);
    void zoomToCurrentFile();
    enum class Move { Up, Down, Top, Bottom };
    void moveCurrentFile(Move where);
    void removeCurrentFile();
    /// Brings the hectares in error of every file up to date with the error map.
    void recalcErrorAreas();
    /// The summary as text lines on the clipboard.
    void copyData();
    /// The canvas has another size.
    void canvasResized();
    /// Draws the files from the last to the first.
    void plotAll(MapContext& context) const;
    /// The same with a word on how far it is between layers; false when the user has had enough.
    [[nodiscard]] bool plotAll(MapContext& context, Progress& progress) const;
    /// Builds the scales of work anew for the current mode and shows the legend; does not redraw.
    /// The date map is left when nothing loaded has a date.
    void refreshColorScale();
    /// The summary of the current file as it is now, in the user's words; none without a file.
    [[nodiscard]] std::vector<SummaryRow> summaryRows() const;
    void showSummary();
    /// The scale and the plain colours as they are now.
    [[nodiscard]] LegendContent legendContent();
    void showLegend();
    /// Draws the map again as it stands, in the user's background.
    void redraw() { view_.refrescar("-1"); }

private:
    /// What is put away during a preview.
    struct SavedMap {
        std::string title;
        LoadedFileList::Saved files;
        BoundingBox totalBound;
        std::optional<bool> hasFlowStops;
        bool graduated = true;
        ColorMode mode = ColorMode::Dose;
        std::optional<WorkKind> lastKind;
        std::string lastTrackFile;
        ColorScale::Content scale;
        ColorScale::Content unitScale;
        MapView::Place place;
        MapTools::Tool tool = MapTools::Tool::None;
    };

    /// How the worked area lies in the classes of a scale.
    struct Spread {
        const ColorScale* scale = nullptr;
        /// Part of the area, 0 to 1, in the class that has most.
        double largestShare = 0;
        /// Whether most of the area has more than one value.
        bool canSpread = false;
    };

    [[nodiscard]] std::vector<File*> openFiles() const;
    /// Where the open files lie, the first on top.
    [[nodiscard]] std::vector<MarkedPlace> places() const;
    /// Those whose work counts in units of seed, or in litres.
    [[nodiscard]] std::vector<File*> workIn(bool units) const;
    /// What the current file counts in, or else the first work; none without work.
    [[nodiscard]] std::optional<bool> shownUnits() const;
    [[nodiscard]] ColorScale& scaleOf(bool units) { return units ? unitScale_ : defaultScale_; }
    /// What of `shownScale` the map uses; null when it is none of it.
    [[nodiscard]] const ColorScale* legendScale();
    /// Of the scale of work that the legend shows.
    [[nodiscard]] const Spread& spreadOf(const ColorScale& scale);
    void addSpreading(LegendContent& legend, const ColorScale& scale);
    bool setUpScales();
    void collectRanges();
    /// In words, a line each.
    [[nodiscard]] std::string remarksOf(const File& file) const;
    /// In the order in which they are drawn; not those of `without`, which may be null.
    [[nodiscard]] std::vector<const Gph*> layersFromBelow(const File* without) const;
    /// Reads a file and adds it; neither list nor legend are shown anew yet.
    bool takeFile(std::string_view path, bool resetFirst, Dialogs& dialogs);
    /// Several in order, until the user has enough; answers those that were taken.
    std::vector<std::string> takeFiles(const std::vector<std::string>& paths, bool resetFirst,
                                       Dialogs& dialogs);
    bool takeWork(std::string_view path, const FileFormat& format, bool resetFirst,
                  Dialogs& dialogs);
    bool addToMap(std::unique_ptr<File> file, bool updateView, bool atTop, Dialogs& dialogs);
    void afterLoading(bool zoomAll);
    void showTitle(std::string title);
    /// Summary, title and legend.
    void showCurrentFile();
    void showFlowStops();

    Platform platform_;
    Texts texts_;
    std::string programFolder_;
    MapStyle style_;
    ColorScale defaultScale_;
    ColorScale unitScale_;
    Spread spread_;
    Registrations registrations_;
    ValueRanges ranges_;
    LoadedFileList files_;
    MapView view_;
    MapTools tools_;
    Replay replay_;
    MapModes modes_{*this};
    FileCommands fileCommands_{*this};
    PrescCommands prescription_{*this};
    LotCommands lots_{*this};
    LotEditor lotEditor_{*this};
    ExportCommands exports_{*this};
    CoordType coordType_ = CoordType::Degrees;
    std::string title_;
    std::string lastTrackFile_;
    std::vector<std::string> sources_;
    std::optional<SavedMap> saved_;
    ColorScale::Subscription scaleChanges_;
    LegendCommands legend_{*this};
    SummaryCommands summary_{*this};
    /// Whether a track file with a step without flow has been opened; none without track files.
    std::optional<bool> hasFlowStops_;
    std::optional<WorkKind> lastKind_;
    /// While set, a change of the scale neither redraws nor reaches the legend.
    bool loading_ = false;
};

}  // namespace campora
