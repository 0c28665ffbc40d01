// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>
#include <memory>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "app/out/export_formats.h"
#include "base/files_in_use.h"
#include "model/file.h"

namespace campora {

class Session;

/// The commands that write what the program shows in the formats of others. One runs at a time.
class ExportCommands {
public:
    /// `session` outlives this.
    explicit ExportCommands(Session& session) : session_(session) {}

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
    void mnuFileExportGlg();
    /// Whether there is a track on the map.
    [[nodiscard]] bool canExportGlg() const;

    // The same without questions, for the batch program too. Each says what went wrong and answers
    // whether the file was written; nothing is written otherwise. A file that is in use is never
    // the target.

    bool exportMap(const ExportFormat& format, const std::string& path);
    bool exportReport(const std::string& report, const ExportFormat& format,
                      const std::string& path);
    bool exportGlg(const std::string& path);

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
    /// Writes the layers, unless the target is in use; false when that failed, which is said, or
    /// was cancelled.
    bool write(const ExportFormat& format, const FilesInUse& inUse, const std::vector<Gph*>& layers,
               const std::string& path);
    /// Says which files made the table of a format do without columns, if any did.
    void tellDroppedColumns(const ExportFormat& format, const std::vector<Gph*>& layers) const;
    /// The files in use, and a report that is not on the map.
    [[nodiscard]] FilesInUse inUseWith(const std::string& report) const;
    /// Null when the report is refused, which is said.
    [[nodiscard]] std::unique_ptr<File> readReport(const std::string& path) const;
    void afterExport(const ExportFormat& format, const std::string& path) const;
    void openWithShell(const std::string& path) const;
    [[nodiscard]] bool fail(const Failure& why) const;

    Session& session_;
    bool busy_ = false;
};

}  // namespace campora
