// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "platform/settings_store.h"

namespace campora {

/// The files opened last, kept in the settings: latest first, each once, at most nine.
class RecentFiles {
public:
    explicit RecentFiles(SettingsStore& settings) : settings_(settings) {}

    [[nodiscard]] std::vector<std::string> paths() const;
    /// Puts a path first.
    void add(std::string_view path);
    /// For a file that is not there any more.
    void remove(std::string_view path);

private:
    void write(const std::vector<std::string>& paths);

    SettingsStore& settings_;
};

}  // namespace campora
