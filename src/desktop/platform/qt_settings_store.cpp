// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/platform/qt_settings_store.h"

#include <filesystem>
#include <system_error>

#include <QStandardPaths>

#include "desktop/platform/qt_text.h"

namespace campora {

namespace {

QString pathOf(std::string_view key) {
    return "Config/" + toQt(key);
}

bool isOrdinary(const QString& path) {
    std::error_code ignored;
    const auto status = std::filesystem::status(path.toStdU16String(), ignored);
    return !std::filesystem::exists(status) || std::filesystem::is_regular_file(status);
}

/// Whether all files of the store can be read: the store would wait for ever for what somebody
/// writes into a pipe.
bool canRead() {
#ifndef _WIN32
    for (const QString& folder :
         QStandardPaths::standardLocations(QStandardPaths::GenericConfigLocation)) {
        if (!isOrdinary(folder + "/Campora/Campora.conf") ||
            !isOrdinary(folder + "/Campora.conf")) {
            return false;
        }
    }
#endif
    return true;
}

}  // namespace

QtSettingsStore::QtSettingsStore() {
    if (canRead()) {
        settings_.emplace("Campora", "Campora");
    }
}

QtSettingsStore::QtSettingsStore(const QString& iniFile) {
    if (isOrdinary(iniFile)) {
        settings_.emplace(iniFile, QSettings::IniFormat);
    }
}

std::optional<std::string> QtSettingsStore::read(std::string_view key) const {
    const QString path = pathOf(key);
    if (!settings_ || !settings_->contains(path)) {
        return std::nullopt;
    }
    return toUtf8(settings_->value(path).toString());
}

void QtSettingsStore::write(std::string_view key, std::string_view value) {
    if (settings_) {
        settings_->setValue(pathOf(key), toQt(value));
    }
}

}  // namespace campora
