// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/map_view.h"
#include "base/texts.h"
#include "colour/color_scale.h"
#include "model/map_style.h"
#include "platform/clipboard.h"
#include "platform/dialogs.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"
#include "platform/settings_store.h"
#include "platform/user_locale.h"
#include "work/loaded_file_list.h"
#include "work/registrations.h"
#include "work/value_ranges.h"

namespace campora {

/// What a session asks of the desktop it runs on; all of it outlives the session.
struct Platform {
    MapCanvas& canvas;
    MainWindowControls& window;
    Dialogs& dialogs;
    SettingsStore& settings;
    const UserLocale& locale;
    Clipboard& clipboard;
};

/// The one object behind a main window (or behind one run of the batch program): open files, view,
/// style and texts, and the operations of the window's menus and lists.
class Session {
public:
    /// `programFolder`: where the registrations are.
    Session(const Platform& platform, Language language, std::string programFolder);

    /// Start-up: colours and switches from the settings, the registrations, the empty map.
    void start();

    [[nodiscard]] const Texts& texts() const { return texts_; }
    [[nodiscard]] LoadedFileList& files() { return files_; }
    [[nodiscard]] const ValueRanges& ranges() const { return ranges_; }
    [[nodiscard]] MapView& view() { return view_; }
    [[nodiscard]] MapStyle& style() { return style_; }
    [[nodiscard]] ColorScale& defaultScale() { return *defaultScale_; }

    [[nodiscard]] int plotCount() const { return files_.loadedCount(); }
    /// False when the duplicate rule kept the file out.
    bool addFile(std::unique_ptr<File> file, bool updateView, bool atTop);
    bool recalcGphBound();
    void removeFile(const File* file);
    /// Opens a file by its ending. False when it is open already, was refused or no reader takes
    /// it; nothing has changed then, apart from `resetFirst`.
    bool loadFile(std::string_view path, bool resetFirst, bool zoomAll);
    /// Opens several in order: the first replaces what is open when `resetFirst`. Answers how many
    /// were taken.
    int loadFiles(const std::vector<std::string>& paths, bool resetFirst);
    void reset();
    void setTitle(bool untitled);
    [[nodiscard]] std::vector<Gph*> getGphList() const;
    /// Puts the open files away and shows an empty map (`save`), or brings them back.
    void plotPreview(bool save, bool zoomAll);
    void loadFileList(bool selectCurrent);

    /// The user chose a row of the file list, or none.
    void selectFile(std::optional<int> row);
    void zoomToCurrentFile();
    enum class Move { Up, Down, Top, Bottom };
    void moveCurrentFile(Move where);
    void removeCurrentFile();
    /// The summary as text lines on the clipboard.
    void copyData();
    /// Asks for a file and opens it in place of the others.
    void fileOpen();
    /// The canvas has another size.
    void canvasResized();
    /// Draws the files from the last to the first.
    void plotAll(MapContext& context) const;
    /// Builds the default scale anew for the current mode and shows it in the legend.
    void refreshColorScale();

private:
    struct SavedMap;

    void showSummary();
    void showLegend();
    void afterLoading(bool zoomAll);

    Platform platform_;
    Texts texts_;
    std::string programFolder_;
    MapStyle style_;
    std::unique_ptr<ColorScale> defaultScale_;
    Registrations registrations_;
    ValueRanges ranges_;
    LoadedFileList files_;
    MapView view_;
    std::string title_;
    std::unique_ptr<SavedMap> saved_;
    ColorScale::Subscription scaleChanges_;
    bool loading_ = false;
};

}  // namespace campora
