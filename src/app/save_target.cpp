// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/save_target.h"

#include "app/session.h"
#include "base/paths.h"

namespace campora {

std::string startFolder(const Session& session, SettingId setting) {
    std::string folder = readText(session.platform().settings, setting);
    return isFolder(folder) ? folder : session.programFolder();
}

bool overwriteAgreed(const Session& session, const std::string& target) {
    const Texts& texts = session.texts();
    return !isThere(target) || session.platform().dialogs.askYesNo(
                                   texts.format(TextId::AskOverwrite, {target}),
                                   MessageIcon::Exclamation, texts(TextId::ProgramName));
}

}  // namespace campora
