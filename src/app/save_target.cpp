// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/save_target.h"

#include "base/paths.h"

namespace campora {

std::string keptFolder(const SettingsStore& settings, SettingId setting,
                       const std::string& otherwise) {
    std::string folder = readText(settings, setting);
    return isFolder(folder) ? folder : otherwise;
}

bool overwriteAgreed(const Desk& desk, const std::string& target) {
    return !isThere(target) || desk.ask(desk.texts.format(TextId::AskOverwrite, {target}));
}

}  // namespace campora
