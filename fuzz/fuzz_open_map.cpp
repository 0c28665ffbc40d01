// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A folder of files as a user meets it: opened, drawn in every mode, clicked on, replayed, written
// in every format and read back.

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <optional>
#include <set>
#include <string>
#include <string_view>
#include <vector>

#include "app/out/export_formats.h"
#include "app/session.h"
#include "base/paths.h"
#include "paint/picture_file.h"
#include "presc/shape_reader.h"
#include "support/file_set.h"
#include "support/scratch_folder.h"
#include "support/stop.h"
#include "support/watched_canvas.h"
#include "support/watched_platform.h"

using namespace campora;

namespace {

CanvasPoint placeOf(const FileSet& set, std::size_t byte) {
    const CanvasSize size = kMapSize;
    return {size.width * set.choices[byte] / 255, size.height * set.choices[byte + 1] / 255};
}

/// False when nothing was taken, which a person must have been told.
bool open(WatchedSession& watched, const FileSet& set, const ScratchFolder& folder) {
    std::vector<std::string> paths;
    if (set.choice(0, 6)) {
        paths.push_back(folder.path());
    } else if (set.choice(0, 4)) {
        for (const FileSet::Entry& entry : set.files) {
            paths.push_back(folder.file(entry.name));
        }
    } else {
        paths.push_back(folder.file(set.files.front().name));
    }
    const int before = watched.dialogs.said();
    const bool taken = watched.session.fileCommands().openPaths(paths, true);
    if (!taken && watched.dialogs.said() == before) {
        stop("silent refusal", paths.front());
    }
    if (taken != (watched.session.map().plotCount() > 0)) {
        stop("taken, but not on the map", paths.front());
    }
    return taken;
}

void drawInEveryMode(Session& session) {
    ColorModeCommands& modes = session.colours().modes;
    DrawingCommands& drawing = session.colours().drawing;
    drawing.mnuEditDrawAll();
    modes.mnuAlarmsPaint();
    modes.mnuAlarmsAlarm(1);
    modes.mnuColorDateMap();
    modes.mnuColorErrorMap();
    modes.mnuColorErrorMap();
    modes.mnuEditGraduated();
    drawing.mnuEditDoted();
    drawing.mnuEditDrawBorder();
    modes.mnuEditGraduated();
    modes.mnuEditGraduatedByLtsMin();
    for (int channel = 0; channel < std::min(modes.channelCount(), 4); ++channel) {
        checkText(modes.channelCaption(channel), "channel");
        modes.mnuColorScaleSelCH(channel);
    }
    modes.mnuColorScaleSelTotal();
    modes.mnuEditGraduatedByLtsHect();
    drawing.mnuEditDrawAll();
}

void drag(MapTools& tools, CanvasPoint from, CanvasPoint to) {
    tools.move(from);
    tools.press(MapTools::Button::Left, from);
    tools.move(to);
    tools.release(MapTools::Button::Left, to);
    tools.leave();
}

void useTools(Session& session, const FileSet& set) {
    const CanvasPoint one = placeOf(set, 4);
    const CanvasPoint other = placeOf(set, 6);
    MapTools& tools = session.tools();
    for (const auto tool :
         {ToolId::Info, ToolId::PrescDosis, ToolId::Ruler, ToolId::ZoomSelect, ToolId::Pan}) {
        tools.setTool(tool);
        drag(tools, one, tool == ToolId::Pan ? one : other);
    }
    session.display().view().zoomPicture(other, 2);
    session.display().view().settle();
    session.display().view().scrollBy(0.25, -0.5);
    session.display().view().zoomPicture(one, -1);
    session.display().view().settle();
    session.display().view().zoomIn();
    session.listCommands().selectFile(0);
    session.listCommands().zoomToCurrentFile();
    session.display().view().ZoomUno();
    session.summaryCommands().copyData(session.services().clipboard);
}

void drawLot(Session& session, const FileSet& set) {
    LotEditor& editor = session.lotEditor();
    editor.open();
    if (!editor.isOpen()) {
        return;
    }
    const CanvasPoint one = placeOf(set, 4);
    const CanvasPoint other = placeOf(set, 6);
    MapTools& tools = session.tools();
    for (const CanvasPoint corner : {one, CanvasPoint{one.x, other.y}, other}) {
        drag(tools, corner, corner);  // a click
    }
    drag(tools, one, {other.x, one.y});
    drag(tools, {one.x, (one.y + other.y) / 2}, {0, 0});
    checkText(editor.figures(), "figures of a lot");
    editor.undo();
    editor.redo();
    if (editor.isWhole()) {
        editor.save();
    }
    static_cast<void>(editor.close());
}

void replay(Session& session, const FileSet& set) {
    Replay& replay = session.replay();
    replay.setSpeed(0);
    replay.setSpeedShown(true);
    if (!replay.shown().available) {
        return;
    }
    replay.seek(replay.shown().maximum * set.choices[4] / 255);
    replay.play();
    replay.stop();
}

/// The files that a format may leave.
bool belongsTo(const ExportFormat& format, const std::string& name) {
    const std::string ending = pathEnding(name);
    if (format.ending == ".shp") {
        return name.starts_with("out.") &&
               (ending == ".shp" || ending == ".shx" || ending == ".dbf" || ending == ".prj" ||
                ending == ".cpg");
    }
    return name == std::string("out").append(format.ending);
}

void readBack(WatchedSession& watched, const std::string& path) {
    if (pathEnding(path) == ".shp") {
        ShapeReader reader;
        if (const std::optional<Failure> failure = reader.open(path)) {
            stop("export refused", watched.session.texts().sentence(*failure));
        }
        if (reader.notes().damage || reader.notes().tableWarning) {
            stop("damaged export", path);
        }
    } else if (pathEnding(path) == ".txt") {
        const int before = watched.dialogs.said();
        // The one of the format before has the same name, and is open when it was read.
        if (!watched.session.map().files().isLoaded(path) &&
            watched.session.map().openAll({path}).empty() && watched.dialogs.said() == before) {
            stop("text table refused in silence", path);
        }
    }
}

void exportAs(WatchedSession& watched, const ExportFormat& format, const ScratchFolder& out) {
    const std::string path = out.file("out").append(format.ending);
    const int before = watched.dialogs.said();
    Session& session = watched.session;
    const MapExport exporter(
        session.map(), {session.services().clock.today(),
                        [&session] { return session.display().canvas().picture(); }, savePicture});
    const bool written = exporter.exportMap(format, path);
    const std::set<std::string> names = out.names();
    if (!written && watched.dialogs.said() == before) {
        stop("silent failure of an export", format.word);
    }
    if (written != names.contains(std::string("out").append(format.ending))) {
        stop(written ? "export without a file" : "file of a failed export", format.word);
    }
    for (const std::string& name : names) {
        if (!written || !belongsTo(format, name)) {
            stop("leftover of an export", name);
        }
    }
    if (written) {
        readBack(watched, path);
    }
    out.clear();
}

void exportAll(WatchedSession& watched, const FileSet& set, const ScratchFolder& out) {
    for (const ExportFormat& format : exportFormats()) {
        // Pictures take as long as all the rest: seldom.
        if (format.source == ExportSource::Layers || set.choices[3] == 1) {
            exportAs(watched, format, out);
        }
    }
    if (watched.session.exportCommands().canExportGlg()) {
        static_cast<void>(MapExport(watched.session.map(), {}).exportGlg(out.file("out.glg")));
        out.clear();
    }
}

/// The folder holds what it held; a file less where the user agreed that it be deleted.
void checkFolder(const ScratchFolder& folder, const std::set<std::string>& before, bool agreed) {
    const std::set<std::string> now = folder.names();
    for (const std::string& name : now) {
        if (!before.contains(name)) {
            stop("leftover", name);
        }
    }
    if (!agreed && now != before) {
        stop("a file is gone");
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder("map");
    static const ScratchFolder out("out");
    const FileSet set(textOf(data, size));
    if (set.files.empty()) {
        return -1;
    }
    folder.clear();
    out.clear();
    folder.write(set);
    std::filesystem::create_directory_symlink(CAMPORA_DATA "/kml", nativePath(folder.file("kml")));
    const std::set<std::string> before = folder.names();
    static WatchedCanvas canvas;
    WatchedSession watched(set, canvas, folder.path());
    watched.dialogs.folder = out.path();
    if (open(watched, set, folder)) {
        Session& session = watched.session;
        drawInEveryMode(session);
        useTools(session, set);
        replay(session, set);
        exportAll(watched, set, out);
        drawLot(session, set);
        out.clear();
        session.fileCommands().reload();
        session.display().view().DrawMap();
        session.setLanguage(Language::English);
    }
    checkFolder(folder, before, watched.dialogs.agreed());
    return 0;
}
