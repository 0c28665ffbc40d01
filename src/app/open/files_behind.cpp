// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/files_behind.h"

#include <cstddef>
#include <optional>
#include <string>

#include "app/open/file_loading.h"
#include "base/file_endings.h"
#include "base/file_head.h"
#include "base/folder_files.h"
#include "base/paths.h"
#include "base/text.h"
#include "work/companion_names.h"
#include "work/registrations.h"

namespace campora {

namespace {

/// Zeros at the start of a report that tell it as blank: more than a header and a record.
constexpr std::size_t kBlankReport = 4096;

/// The report that is written beside a prescription holds zeros until the console has worked.
bool isBlankReport(const std::string& path) {
    if (pathEnding(path) != kReportEnding ||
        !isThere(findIgnoringCase(
            std::string(path, 0, path.size() - kReportEnding.size()).append(kPreEnding)))) {
        return false;
    }
    const std::optional<std::string> head = readFileHead(path, kBlankReport);
    return head && head->find_first_not_of('\0') == std::string::npos;
}

bool accompanies(const std::string& path) {
    if (equalIgnoringCase(fileNamePart(path), kRegistrationsFile) || isBlankReport(path)) {
        return true;
    }
    const std::string track = companionNames(path).trackPath;
    return !track.empty() && track != path && isThere(findIgnoringCase(track));
}

}  // namespace

std::vector<std::string> filesBehind(std::string_view path) {
    if (!isFolder(path)) {
        return {std::string(path)};
    }
    return filesIn(path, [](const std::string& file) {
        return formatOf(file) != nullptr && !accompanies(file);
    });
}

}  // namespace campora
