// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/companion_names.h"

#include "base/file_endings.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"

namespace campora {

namespace {

/// `path` with another ending and, in the lower-cased file name, `to` for every `from`.
std::string renamed(std::string_view path, std::string_view ending, std::string_view from,
                    std::string_view to) {
    const std::string_view name = fileNamePart(path);
    const std::string_view folder = path.substr(0, path.size() - name.size());
    return std::string(folder) + replaceAll(lowerCase(fileStem(path)), from, to) +
           std::string(ending);
}

std::string summaryOf(std::string_view path) {
    return renamed(path, kTextEnding, "log", "Wrk");
}

}  // namespace

CompanionNames companionNames(std::string_view path) {
    const std::string ending = pathEnding(path);
    if (ending == kTextEnding) {
        return {std::string(path), renamed(path, kTrackEnding, "wrk", "Log")};
    }
    if (ending == kTrackEnding) {
        return {summaryOf(path), std::string(path)};
    }
    return {};
}

std::string findLogForReport(std::string_view path) {
    std::string found = findIgnoringCase(summaryOf(path));
    return canOpen(found) ? found : std::string();
}

}  // namespace campora
