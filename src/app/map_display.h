// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <string>
#include <vector>

#include "app/map_view.h"
#include "app/open_map.h"
#include "colour/color_scale.h"
#include "model/file.h"
#include "platform/main_window_controls.h"
#include "platform/map_canvas.h"

namespace campora {

/// Shows an open map in a window: the picture, the list of files, summary, title, legend and which
/// commands can be used. Whoever changes the map says here what is to be shown anew.
class MapDisplay {
public:
    /// All of it outlives the display.
    MapDisplay(OpenMap& map, MapCanvas& canvas, MainWindowControls& window);
    MapDisplay(const MapDisplay&) = delete;
    MapDisplay& operator=(const MapDisplay&) = delete;
    ~MapDisplay() = default;

    // Each may be empty.

    /// The map is about to be drawn anew, or to be moved.
    std::function<void()> beforeDrawing;
    /// What is on the canvas lies elsewhere or is something else.
    std::function<void()> onDrawn;
    /// The open files are others.
    std::function<void()> onFilesChanged;
    /// Nothing is open any more.
    std::function<void()> onEmpty;
    /// The file that the picture is drawn without; null for none.
    std::function<const File*()> leftOut;

    [[nodiscard]] MapView& view() { return view_; }
    [[nodiscard]] const MapView& view() const { return view_; }
    [[nodiscard]] MapCanvas& canvas() const { return canvas_; }
    [[nodiscard]] MainWindowControls& window() const { return window_; }

    /// Everything beside the picture.
    void refresh();
    /// Everything: the whole map.
    void showWhole();
    /// Everything: the map where it was, or whole when its extent has changed.
    void showChange();
    /// Everything, for a map without files.
    void showEmpty();
    /// Draws the map again as it stands, in the user's background.
    void redraw() { view_.refrescar("-1"); }
    /// Draws the map again in another style, which the menus show as well.
    void styleChanged();
    /// Fits the view to the open files; false when their extent is what it was. Draws nothing.
    bool recalcGphBound();
    /// The canvas has another size.
    void canvasResized();
    /// Does something that gives the canvas another size; what it shows stays in its middle.
    void keepingPlace(const std::function<void()>& change);

    /// Lists the open files, the current one selected when `selectCurrent` says so.
    void loadFileList(bool selectCurrent);
    /// Summary, title and legend.
    void showCurrentFile();
    void showSummary();
    void showLegend();
    /// The remark on the open work.
    void showFlowStops();
    /// The title for the current file, when there is one, or for untitled work.
    void setTitle(bool untitled);
    [[nodiscard]] const std::string& title() const { return title_; }
    void showTitle(std::string title);

    /// The summary of the current file as it is now, in the user's words; none without a file.
    [[nodiscard]] std::vector<SummaryRow> summary() const;
    /// The scale and the plain colours as they are now.
    [[nodiscard]] LegendContent legend() const;

private:
    OpenMap& map_;
    MapCanvas& canvas_;
    MainWindowControls& window_;
    MapView view_;
    std::string title_;
    /// To the scale that the legend shows.
    ColorScale::Subscription scaleChanges_;
};

}  // namespace campora
