// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <optional>

#include <QSettings>

#include "platform/settings_store.h"

namespace campora {

/// The desktop's own store of the user's settings: application "Campora", section "Config".
class QtSettingsStore final : public SettingsStore {
public:
    QtSettingsStore();
    /// In a file of its own.
    explicit QtSettingsStore(const QString& iniFile);

    [[nodiscard]] std::optional<std::string> read(std::string_view key) const override;
    void write(std::string_view key, std::string_view value) override;

private:
    /// None when its file is no ordinary one: then nothing is known and nothing is kept.
    std::optional<QSettings> settings_;
};

}  // namespace campora
