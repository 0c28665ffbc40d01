// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_loading.h"

#include <algorithm>
#include <iterator>
#include <string>
#include <utility>

#include "base/file_endings.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "lots/load_lot.h"
#include "platform/file_filter.h"
#include "presc/gph_presc.h"
#include "presc/load_grid.h"

namespace campora {

namespace {

using WorkLoader = std::optional<LoadedWork> (*)(std::string_view, const WorkDesk&);

template <WorkLoader load>
std::optional<OpenedFile> openWork(std::string_view path, const ReadingDesk& desk) {
    std::optional<LoadedWork> work = load(path, desk);
    if (!work) {
        return std::nullopt;
    }
    work->group->ranges = work->ranges;
    return OpenedFile{std::move(work->group), work->kind, work->hasFlowStops};
}

/// Maps of other programs that people have and try to open.
constexpr std::string_view kForeignMaps[] = {".gpkg", kGeoJsonEnding, ".json", kKmlEnding,
                                             ".kmz",  ".gpx",         ".dxf",  ".tab"};

/// What there is to be done about a map that is none of the program's.
std::string foreignMapText(std::string_view path, const Texts& texts) {
    std::string endings;
    for (const FileFormat& format : fileFormats()) {
        endings.append(format.ending).append(", ");
    }
    return texts.format(TextId::FileNotCompatibleNamed, {std::string(path)}) + "\n" +
           texts.format(TextId::FormatsThatOpen, {endings + std::string(kProjectEnding)}) + "\n" +
           std::string(texts(TextId::FormatNeedsShape));
}

std::optional<OpenedFile> openGrid(std::string_view path, const ReadingDesk& desk) {
    const bool isForeign = std::any_of(
        std::begin(kForeignMaps), std::end(kForeignMaps),
        [name = lowerCase(path)](std::string_view ending) { return name.ends_with(ending); });
    if (isForeign && canOpen(path)) {
        desk.titled(TextId::WrongFileFormat)
            .tell(foreignMapText(path, desk.texts), MessageIcon::Error);
        return std::nullopt;
    }
    std::unique_ptr<File> grid = loadGrid(path, desk, desk.colors.back);
    if (!grid) {
        return std::nullopt;
    }
    return OpenedFile{std::move(grid), std::nullopt, std::nullopt};
}

std::optional<OpenedFile> openZones(std::string_view path, const ReadingDesk& desk) {
    if (!canOpen(path)) {
        const Result<FileBytes> file = readFile(path);
        const Failure why =
            file ? Failure{TextId::FileNotCompatibleNamed, {std::string(path)}} : file.failure();
        desk.tellWrongFile(why);
        return std::nullopt;
    }
    auto zones = std::make_unique<GphPresc>(desk.colors.shape);
    if (!zones->loadFromFile(path, desk)) {
        return std::nullopt;
    }
    return OpenedFile{std::move(zones), std::nullopt, std::nullopt};
}

std::optional<OpenedFile> openLot(std::string_view path, const ReadingDesk& desk) {
    std::unique_ptr<File> lot = loadLot(path, desk);
    if (!lot) {
        return std::nullopt;
    }
    return OpenedFile{std::move(lot), std::nullopt, std::nullopt};
}

constexpr FileFormat kFormats[] = {
    {kReportEnding, TextId::FilterReports, true, false, openWork<loadRptFile>},
    {kTextEnding, TextId::FilterTextTables, true, false, openWork<loadRptTextTable>},
    {kTrackEnding, TextId::FilterTrackFiles, false, true, openWork<loadTrackFile>},
    {kShapeEnding, TextId::FilterShapes, false, false, openZones},
    {kVrtEnding, TextId::FilterPrescriptions, false, false, openGrid},
    {kLotEnding, TextId::FilterLots, false, false, openLot},
    // The last: files without an ending of the table are offered to its reader.
    {kPreEnding, TextId::FilterPrescriptions, false, false, openGrid},
};

}  // namespace

std::span<const FileFormat> fileFormats() {
    return kFormats;
}

const FileFormat* formatOf(std::string_view path) {
    const std::string ending = pathEnding(path);
    const auto* const found =
        std::find_if(std::begin(kFormats), std::end(kFormats),
                     [&ending](const FileFormat& format) { return format.ending == ending; });
    return found == std::end(kFormats) ? nullptr : found;
}

const FileFormat& formatToOpen(std::string_view path) {
    const FileFormat* const format = formatOf(path);
    return format != nullptr ? *format : *std::rbegin(kFormats);
}

std::vector<FileFilter> openFilters(const Texts& texts) {
    std::vector<FileFilter> filters{{std::string(texts(TextId::FilterSupported)), {}}};
    for (const FileFormat& format : kFormats) {
        filters.push_back(fileFilter(texts, format.filterCaption, format.ending));
    }
    // A project is known by its first line; this is the ending that they mostly have.
    filters.push_back(fileFilter(texts, TextId::FilterProjects, kProjectEnding));
    for (std::size_t i = 1; i < filters.size(); ++i) {
        filters.front().patterns.push_back(filters[i].patterns.front());
    }
    filters.push_back({std::string(texts(TextId::FilterAllFiles)), {"*"}});
    return filters;
}

}  // namespace campora
