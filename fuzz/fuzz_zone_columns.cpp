// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// A map of zones with its table, index and projection, from the choice of its dose column to the
// files for the consoles.

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <memory>
#include <string>
#include <vector>

#include "app/presc/dose_columns.h"
#include "app/session.h"
#include "base/files.h"
#include "base/numbers.h"
#include "model/geodesy.h"
#include "presc/generation.h"
#include "presc/pre_grid.h"
#include "presc/vrt_grid.h"
#include "support/file_set.h"
#include "support/scratch_folder.h"
#include "support/stop.h"
#include "support/watched_canvas.h"
#include "support/watched_platform.h"

using namespace campora;

namespace {

/// The map with its dose column; empty when it was refused, which a person must have been told.
std::vector<std::unique_ptr<GphPresc>> chooseColumn(WatchedSession& watched, const FileSet& set) {
    DoseColumns columns(watched.session.map().desk());
    int before = watched.dialogs.said();
    columns.readMap(0, watched.dialogs.toOpen.front());
    const int count = static_cast<int>(columns.columns(0).size());
    checkText(columns.doseLabel(0), "label of the doses");
    for (const std::string& name : columns.columns(0)) {
        checkText(name, "column");
    }
    if (columns.columns(0).empty() && !columns.isWhole(0) && watched.dialogs.said() == before) {
        stop("silent refusal of a map");
    }
    for (int column = 1; column <= count; ++column) {
        columns.chooseColumn(0, column);
        checkText(columns.doseLabel(0), "label of the doses");
    }
    columns.chooseColumn(0, 1 + static_cast<int>(set.pick(2, 16)));
    before = watched.dialogs.said();
    if (!columns.confirm()) {
        if (watched.dialogs.said() == before) {
            stop("silent refusal of a column");
        }
        return {};
    }
    return columns.getChannels();
}

void changeDoses(Session& session, const FileSet& set) {
    session.prescCommands().askDose = [](const ColorScale& /*scale*/, float current) {
        return std::optional(current + 10);
    };
    MapTools& tools = session.tools();
    const CanvasPoint place{kMapSize.width * set.choices[4] / 255,
                            kMapSize.height * set.choices[5] / 255};
    for (const auto tool : {ToolId::PrescDosis, ToolId::Info}) {
        tools.setTool(tool);
        tools.press(MapTools::Button::Left, place);
        tools.release(MapTools::Button::Left, place);
    }
}

/// A width of cells in metres by which the grid has a few thousand of them.
std::string widthFor(const BoundingBox& bound) {
    constexpr double kMostAcross = 100;
    const double degrees = std::max(bound.maxX - bound.minX, bound.maxY - bound.minY);
    return numberText(std::ceil(degrees * METERS_PER_DEGREE / kMostAcross) + 1);
}

template <typename Decoded>
void checkSaved(const ScratchFolder& out, std::string_view ending,
                Decoded (*decode)(std::span<const std::byte>)) {
    for (const std::string& name : out.names()) {
        if (name.ends_with(ending)) {
            try {
                const Result<FileBytes> file = readFile(out.file(name));
                static_cast<void>(decode(file->bytes()));
            } catch (const FormatError&) {
                stop("a prescription that was saved is refused", name);
            }
        } else if (!name.starts_with("saved")) {
            stop("leftover", name);
        }
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder("zones");
    static const ScratchFolder out("saved");
    const FileSet set(textOf(data, size));
    if (!set.has("a.shp")) {
        return -1;
    }
    folder.clear();
    out.clear();
    folder.write(set);
    static WatchedCanvas canvas;
    WatchedSession watched(set, canvas, folder.path());
    watched.dialogs.folder = out.path();
    watched.dialogs.toOpen = {folder.file("a.shp")};
    Session& session = watched.session;
    PrescCommands& prescription = session.prescCommands();
    prescription.chooseChannels = [&] { return chooseColumn(watched, set); };
    prescription.mnuFilePrescript();
    if (prescription.isOpen()) {
        changeDoses(session, set);
        watched.dialogs.width = widthFor(prescription.prescription()->File_bound());
        const int before = watched.dialogs.said();
        prescription.mnuFileSavePrescript();
        checkSaved(out, ".pre", decodePre);
        out.clear();
        prescription.saveVrt();
        checkSaved(out, ".vrt", decodeVrt);
        if (watched.dialogs.said() == before) {
            stop("prescriptions neither saved nor refused");
        }
    }
    return 0;
}
