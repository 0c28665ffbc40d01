// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <fstream>
#include <set>
#include <string>

namespace campora {

/// The names below "[section]" in outside_names.txt: what users have stored and scripts rely on.
[[nodiscard]] inline std::set<std::string> outsideNames(const std::string& section) {
    std::ifstream file(CAMPORA_SOURCE_DIR "/tests/support/outside_names.txt");
    std::set<std::string> names;
    bool inside = false;
    for (std::string line; std::getline(file, line);) {
        if (line.starts_with('[')) {
            inside = line == "[" + section + "]";
        } else if (inside && !line.empty()) {
            names.insert(line);
        }
    }
    return names;
}

}  // namespace campora
