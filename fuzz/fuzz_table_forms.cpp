// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// The reader of text tables with every form, decimal symbol and answer to its questions; what it
// makes of a table is exported and read again.

#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>
#include <string_view>
#include <variant>
#include <vector>

#include "base/failure.h"
#include "base/files.h"
#include "export/txt_export.h"
#include "support/file_set.h"
#include "support/scratch_folder.h"
#include "support/stop.h"
#include "support/watched_platform.h"
#include "work/gph_track.h"
#include "work/rpt_text_table.h"
#include "work/work_reader.h"

using namespace campora;

namespace {

/// As the program opens one: what is plainly no table is thrown out, and told.
std::optional<LoadedWork> tableOf(std::string_view bytes, const WorkDesk& desk) {
    try {
        return readRptTextTable("a.txt", FileBytes(std::string(bytes)), desk);
    } catch (const FormatError& error) {
        desk.dialogs.message(desk.texts.sentence(error.failure()), MessageIcon::Error, "");
        return std::nullopt;
    }
}

/// Every position on the globe; answers how many there are.
std::size_t countPoints(const File& file) {
    std::size_t points = 0;
    for (const Gph* layer : file.File_gphList()) {
        const auto* const track = dynamic_cast<const GphTrack*>(layer);
        if (track == nullptr) {
            stop("a table made something else than a track", layer->Gph_kind());
        }
        for (const LonLat at : track->points()) {
            if (!(std::abs(at.x) <= 180 && std::abs(at.y) <= 90)) {
                stop("a position off the globe reached the map");
            }
            ++points;
        }
    }
    return points;
}

/// A table of eight columns is what the program itself writes of such work.
void checkRoundTrip(const File& file, std::size_t points, const UserLocale& locale,
                    WatchedDialogs& dialogs, const ScratchFolder& out) {
    const std::vector<Gph*> layers = file.File_gphList();
    const std::vector<const Gph*> exported(layers.begin(), layers.end());
    const auto shown = dialogs.progress("");
    ExportProgress progress(*shown);
    const std::string path = out.file("table.txt");
    const TextTableForm form{.decimalSymbol = locale.decimalSymbol()};
    if (txtExport(exported, path, form, locale, progress)) {
        stop("a table cannot be written");
    }
    const std::string text = "title\r\n" + std::string(readFile(path)->text());
    const RptTextTable table = splitTable(text);
    const TableRecords read =
        decodeRecords(table.records, TableForm::EightColumns, locale.decimalSymbol(), 0);
    if (table.columns != 8 || read.records.size() != points) {
        stop("a table that was exported reads otherwise", text);
    }
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder out("table");
    const FileSet set(textOf(data, size));
    if (set.files.empty()) {
        return -1;
    }
    WatchedDialogs dialogs(set);
    const ChosenLocale locale(set);
    const Texts texts;
    const Registrations none;
    const std::optional<LoadedWork> work =
        tableOf(set.files.front().bytes, {{dialogs, texts, locale}, none});
    if (!work) {
        if (dialogs.said() == 0) {
            stop("silent refusal");
        }
        return 0;
    }
    const std::size_t points = countPoints(*work->group);
    for (const auto& [property, value, unit] : work->group->File_resumen().entries()) {
        checkText(property, "summary");
        checkText(value, "summary");
    }
    checkRoundTrip(*work->group, points, locale, dialogs, out);
    return 0;
}
