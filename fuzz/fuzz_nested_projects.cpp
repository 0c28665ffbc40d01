// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

// Projects that list each other, themselves and files of every kind.

#include <cstddef>
#include <cstdint>
#include <optional>
#include <string>

#include "app/open/file_loading.h"
#include "app/open/load_project.h"
#include "base/paths.h"
#include "support/file_set.h"
#include "support/scratch_folder.h"
#include "support/stop.h"
#include "support/watched_platform.h"

using namespace campora;

extern "C" int LLVMFuzzerTestOneInput(const std::uint8_t* data, std::size_t size) {
    static const ScratchFolder folder("projects");
    const FileSet set(textOf(data, size));
    if (set.files.empty()) {
        return -1;
    }
    folder.clear();
    folder.write(set);
    WatchedDialogs dialogs(set);
    const ChosenLocale locale(set);
    const Texts texts;
    OpenMap map({dialogs, texts, locale}, folder.path());
    const std::string path = folder.file(set.files.front().name);
    int before = dialogs.said();
    const std::optional<ProjectFiles> project = filesOfProject(path, folder.path(), map.desk());
    if (!project) {
        return 0;
    }
    for (const std::string& file : project->paths) {
        if (!isThere(file) || formatOf(file) == nullptr) {
            stop("a project stands for a file that no reader takes", file);
        }
    }
    if (dialogs.said() > before && project->complete) {
        stop("a project with missing files counts as whole");
    }
    before = dialogs.said();
    loadProject(map, path);
    if (map.files().empty() && dialogs.said() == before) {
        stop("silent refusal", path);
    }
    return 0;
}
