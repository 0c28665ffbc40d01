// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/file_loading.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "base/paths.h"

namespace campora {

namespace {

constexpr FileFormat kFormats[] = {
    {".rpt", TextId::FilterReports, true, false, loadRptFile},
    {".txt", TextId::FilterTextTables, true, false, loadRptTextTable},
    {".nbr", TextId::FilterTrackFiles, false, true, loadTrackFile},
};

std::string patternOf(const FileFormat& format) {
    return std::string("*").append(format.ending);
}

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

std::vector<FileFilter> openFilters(const Texts& texts) {
    std::vector<FileFilter> filters{{std::string(texts(TextId::FilterSupported)), {}}};
    for (const FileFormat& format : kFormats) {
        filters.front().patterns.push_back(patternOf(format));
        filters.push_back({std::string(texts(format.filterCaption)), {patternOf(format)}});
    }
    // A project is known by its first line; this is the ending that they mostly have.
    filters.front().patterns.push_back("*.fsp");
    filters.push_back({std::string(texts(TextId::FilterProjects)), {"*.fsp"}});
    filters.push_back({std::string(texts(TextId::FilterAllFiles)), {"*"}});
    return filters;
}

}  // namespace campora
