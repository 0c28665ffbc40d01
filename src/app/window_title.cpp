// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/window_title.h"

#include <cstddef>

#include "base/encoding.h"
#include "campora_version.h"

namespace campora {

namespace {

constexpr std::string_view kSeparators = "\\/";
constexpr int kMostCharacters = 50;

std::string bracketed(std::string_view text) {
    return "Campora - [" + std::string(text) + "]";
}

}  // namespace

std::string fileTitle(std::string_view path) {
    if (path.find_first_of(kSeparators) == std::string_view::npos) {
        return bracketed(path);
    }
    const std::string_view end = lastCharacters(path, kMostCharacters);
    const std::size_t separator = end.find_first_of(kSeparators);
    const bool found = separator != std::string_view::npos;
    return bracketed("..." + std::string(found ? end.substr(separator) : end));
}

std::string untitledTitle() {
    return bracketed("Untitled");
}

std::string versionTitle() {
    return "Campora " + std::string(kVersion);
}

}  // namespace campora
