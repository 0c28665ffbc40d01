// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/map_display.h"
#include "app/map_tools.h"
#include "app/open_map.h"
#include "app/out/export_formats.h"
#include "app/out/map_export.h"
#include "app/settings.h"
#include "platform/services.h"

namespace campora {

/// The commands that write what the program shows in the formats of others. One runs at a time.
class ExportCommands {
public:
    /// All of it outlives this.
    ExportCommands(OpenMap& map, MapDisplay& display, MapTools& tools, const Services& services);

    /// Set by whoever has a canvas, for the formats that are pictures.
    SavePicture savePicture;
    /// Shows the dialog that exports these track files; set by the window.
    std::function<void(const std::vector<std::string>& paths)> showTrackExport;

    /// Asks where to and in which format, and writes the layers of the map; a text is opened
    /// afterwards, a KML document when the user wants it.
    void mnuFileExport();
    /// Asks for track files and shows the dialog for them.
    void mnuFileExportSel();
    /// Asks for a report and writes it as a text table, without showing it on the map.
    void mnuFileExportRpt();
    /// Asks where to and writes the points of all tracks in the GLG point format.
    void exportGlg();
    /// The map with its scale bar to the clipboard; the canvas stays as it was.
    void copyImage();
    /// Whether there is a track on the map.
    [[nodiscard]] bool canExportGlg() const;

private:
    /// Where to, as the user says, with the ending of the chosen format; none when the user
    /// cancels. `proposed`: a file name.
    struct Target {
        std::string path;
        const ExportFormat* format = nullptr;
    };
    [[nodiscard]] std::optional<Target> askTarget(std::span<const ExportFormat> formats,
                                                  std::string proposed) const;
    /// The path with the ending of its format; empty when the user cancels.
    [[nodiscard]] std::string endedPath(const std::string& chosen, std::string_view ending) const;
    [[nodiscard]] MapExport mapExport() const;
    /// The map as it is drawn, with its scale bar and arrows.
    [[nodiscard]] Picture picture() const;
    /// What a writer answers; no other export begins meanwhile.
    [[nodiscard]] bool written(const std::function<bool()>& write);
    [[nodiscard]] std::string folderFor(SettingId setting) const;
    void afterExport(const ExportFormat& format, const std::string& path) const;
    void openWithShell(const std::string& path) const;

    OpenMap& map_;
    MapDisplay& display_;
    MapTools& tools_;
    const Services& services_;
    bool busy_ = false;
};

}  // namespace campora
