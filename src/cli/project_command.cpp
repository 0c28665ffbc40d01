// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include <utility>

#include "app/open/load_project.h"
#include "base/files.h"
#include "cli/batch_map.h"
#include "cli/commands.h"

namespace campora {

namespace {

/// Why there is no project behind a path.
Failure whyNoProject(const std::string& path) {
    const Result<FileBytes> file = readFile(path);
    return file ? Failure{TextId::CliNoProject, {path}} : file.failure();
}

}  // namespace

int runProject(const Arguments& arguments, const Console& console) {
    BatchDesk batch(arguments, console.boxes);
    const Desk desk = batch.desk();
    const std::string& path = arguments.files.front();
    std::optional<ProjectFiles> files = filesOfProject(path, arguments.programFolder, desk);
    if (!files) {
        desk.tell(whyNoProject(path));
        files = ProjectFiles{{}, false};
    }
    Arguments listed = arguments;
    listed.files = std::move(files->paths);
    const int status = runInfo(listed, console);
    return files->complete ? status : exit_status::kRefused;
}

}  // namespace campora
