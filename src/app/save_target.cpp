// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/save_target.h"

#include <filesystem>
#include <system_error>

#include "app/session.h"
#include "base/paths.h"

namespace campora {

bool isFolder(std::string_view path) {
    std::error_code ignored;
    return std::filesystem::is_directory(nativePath(path), ignored);
}

std::string startFolder(const Session& session, SettingId setting) {
    std::string folder = readText(session.platform().settings, setting);
    return isFolder(folder) ? folder : session.programFolder();
}

bool overwriteAgreed(const Session& session, const std::string& target) {
    const Texts& texts = session.texts();
    std::error_code ignored;
    return !std::filesystem::exists(nativePath(target), ignored) ||
           session.platform().dialogs.askYesNo(texts.format(TextId::AskOverwrite, {target}),
                                               MessageIcon::Exclamation,
                                               texts(TextId::ProgramName));
}

}  // namespace campora
