// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/file_types.h"

#include <string>

#include "base/file_endings.h"
#include "base/paths.h"

namespace campora {

namespace {

struct FileType {
    std::string_view ending;
    /// The name of the type, which never changes: a registration that is there is renewed.
    std::string_view type;
    std::string_view picture;
};

constexpr FileType kTypes[] = {
    {kReportEnding, "FurrowScope.RptFile", "rpt.ico"},
    {kPreEnding, "FurrowScope.PreFile", "pre.ico"},
};

}  // namespace

void registerFileTypes(std::string_view programPath, ClassesRegistry& classes) {
    const std::string command = std::string(programPath) + " \"%1\"";
    for (const auto& [ending, type, picture] : kTypes) {
        const std::string key(type);
        classes.setDefault(ending, type);
        classes.setDefault(key + "\\shell\\open\\command", command);
        classes.setDefault(key + "\\DefaultIcon",
                           std::string(folderPart(programPath)).append(picture));
    }
    classes.finish();
}

}  // namespace campora
