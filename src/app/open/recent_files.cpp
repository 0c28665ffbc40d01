// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/recent_files.h"

#include <algorithm>
#include <cstddef>

#include "app/settings.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace campora {

namespace {

constexpr std::size_t kMost = 9;

}  // namespace

std::vector<std::string> RecentFiles::paths() const {
    std::vector<std::string> found;
    const std::string stored = readText(settings_, SettingId::RecentFiles);
    for (const std::string_view line : readAllLines(stored)) {
        if (!trim(line).empty() && found.size() < kMost) {
            found.emplace_back(trim(line));
        }
    }
    return found;
}

void RecentFiles::add(std::string_view path) {
    std::vector<std::string> all = paths();
    std::erase_if(all, [path](const std::string& known) { return equalIgnoringCase(known, path); });
    all.insert(all.begin(), std::string(path));
    all.resize(std::min(all.size(), kMost));
    write(all);
}

void RecentFiles::remove(std::string_view path) {
    std::vector<std::string> all = paths();
    std::erase(all, path);
    write(all);
}

void RecentFiles::write(const std::vector<std::string>& paths) {
    std::string text;
    for (const std::string& path : paths) {
        text.append(path).append("\n");
    }
    writeText(settings_, SettingId::RecentFiles, text);
}

}  // namespace campora
