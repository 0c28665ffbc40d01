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
std::string refusal(const std::string& path, const Texts& texts) {
    const Result<FileBytes> file = readFile(path);
    return file ? texts.format(TextId::CliNoProject, {path}) : texts.sentence(file.failure());
}

}  // namespace

int runProject(const Arguments& arguments, const Console& console) {
    const Texts texts(arguments.language);
    BatchDialogs dialogs(arguments, console.boxes);
    const std::string& path = arguments.files.front();
    std::optional<ProjectFiles> files =
        filesOfProject(path, arguments.programFolder, dialogs, texts);
    if (!files) {
        dialogs.message(refusal(path, texts), MessageIcon::Error, "");
        files = ProjectFiles{{}, false};
    }
    Arguments listed = arguments;
    listed.files = std::move(files->paths);
    const int status = runInfo(listed, console);
    return files->complete ? status : exit_status::kRefused;
}

}  // namespace campora
