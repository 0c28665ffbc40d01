// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/qt_settings_store.h"

#include "desktop/qt_text.h"

namespace campora {

namespace {

QString pathOf(std::string_view key) {
    return "Config/" + toQt(key);
}

}  // namespace

QtSettingsStore::QtSettingsStore() : settings_("Campora", "Campora") {}

QtSettingsStore::QtSettingsStore(const QString& iniFile)
    : settings_(iniFile, QSettings::IniFormat) {}

std::optional<std::string> QtSettingsStore::read(std::string_view key) const {
    const QString path = pathOf(key);
    if (!settings_.contains(path)) {
        return std::nullopt;
    }
    return toUtf8(settings_.value(path).toString());
}

void QtSettingsStore::write(std::string_view key, std::string_view value) {
    settings_.setValue(pathOf(key), toQt(value));
}

}  // namespace campora
