// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/used_files.h"

#include <string>

#include "base/file_endings.h"
#include "base/paths.h"
#include "base/text.h"
#include "export/shapefile_writer.h"
#include "presc/generation.h"
#include "presc/gph_presc_vex.h"
#include "work/companion_names.h"

namespace campora {

namespace {

/// Names, without folder, of what may stand beside a file and belong to it.
std::vector<std::string> namesBeside(std::string_view path) {
    const std::string stem(fileStem(path));
    const std::string ending = pathEnding(path);
    std::vector<std::string> names;
    if (ending == kShapeEnding) {
        names = filesOfShapefile(stem);
        names.insert(names.end(), {stem + ".qpj", stem + ".shp.xml"});
    } else if (ending == kPreEnding) {
        names.emplace_back(fileNamePart(companionPath(path)));
    } else if (ending == kReportEnding) {
        names = {stem + ".campora.json", std::string(fileNamePart(path)) + ".campora.json"};
    } else if (const CompanionNames pair = companionNames(path); !pair.trackPath.empty()) {
        names = {std::string(fileNamePart(pair.trackPath)),
                 std::string(fileNamePart(pair.summaryPath))};
    }
    return names;
}

}  // namespace

void addOpened(FilesInUse& files, std::string_view path) {
    if (!path.empty()) {
        files.addWith(path, namesBeside(path));
    }
}

void addFileOf(FilesInUse& used, const File& file) {
    addOpened(used, file.File_diskPath());
    if (const auto* const prescription = dynamic_cast<const GphPrescVex*>(&file)) {
        for (int i = 0; i < prescription->channelsCnt(); ++i) {
            addOpened(used, prescription->channel(i).File_diskPath());
        }
    }
}

}  // namespace campora
