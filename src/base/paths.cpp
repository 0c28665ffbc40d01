// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/paths.h"

#include <algorithm>
#include <system_error>
#include <type_traits>

#include "base/encoding.h"
#include "base/text.h"

namespace campora {

namespace {

namespace fs = std::filesystem;

constexpr std::string_view kSeparators = "\\/";
constexpr bool kSlashSystem = fs::path::preferred_separator == '/';
constexpr bool kBytesInNames = std::is_same_v<fs::path::value_type, char>;

fs::path pathOfUtf8(std::string_view text) {
    return {std::u8string(text.begin(), text.end())};
}

bool isThere(const fs::path& path) {
    std::error_code ignored;
    return fs::exists(path, ignored);
}

/// Whether `a` comes before `b`; an empty name stands for none.
bool isBetter(const std::string& a, const std::string& b) {
    return b.empty() || a < b;
}

}  // namespace

std::string_view fileNamePart(std::string_view path) {
    return path.substr(path.find_last_of(kSeparators) + 1);  // npos + 1 is 0
}

std::string_view folderPart(std::string_view path) {
    const std::size_t backslash = path.rfind('\\');
    const std::size_t last = backslash != std::string_view::npos ? backslash : path.rfind('/');
    return path.substr(0, last + 1);
}

std::string folderOf(std::string_view path) {
    return std::string(path.substr(0, path.size() - fileNamePart(path).size()));
}

std::string_view fileStem(std::string_view path) {
    const std::string_view name = fileNamePart(path);
    return name.substr(0, name.rfind('.'));
}

std::string pathEnding(std::string_view path) {
    return lowerCase(lastCharacters(path, 4));
}

bool isThere(std::string_view path) {
    return isThere(nativePath(path));
}

bool isFolder(std::string_view path) {
    std::error_code ignored;
    return fs::is_directory(nativePath(path), ignored);
}

bool isSameFile(std::string_view a, std::string_view b) {
    std::error_code ignored;
    return a == b || fs::equivalent(nativePath(a), nativePath(b), ignored);
}

fs::path nativePath(std::string_view path) {
    if (!kBytesInNames && !isUtf8(path)) {
        // Names are UTF-16 on such a system: bytes that are not UTF-8 could not be converted.
        return pathOfUtf8(fromWindows1252(path));
    }
    fs::path asWritten = pathOfUtf8(path);
    if (kSlashSystem && path.find('\\') != std::string_view::npos && !isThere(asWritten)) {
        return pathOfUtf8(replaceAll(path, "\\", "/"));
    }
    return asWritten;
}

std::string pathText(const fs::path& path) {
    const std::u8string text = path.u8string();
    return {text.begin(), text.end()};
}

std::string findIgnoringCase(std::string_view path) {
    const std::string_view name = fileNamePart(path);
    if (name.empty() || isThere(nativePath(path))) {
        return std::string(path);
    }
    const std::string_view folder = path.substr(0, path.size() - name.size());
    const std::string wanted = lowerCase(name);
    std::string best;
    std::error_code error;
    fs::directory_iterator entry(folder.empty() ? fs::path(".") : nativePath(folder), error);
    for (; !error && entry != fs::directory_iterator(); entry.increment(error)) {
        const std::string candidate = pathText(entry->path().filename());
        std::error_code ignored;
        if (lowerCase(candidate) == wanted && isBetter(candidate, best) &&
            entry->is_regular_file(ignored)) {
            best = candidate;
        }
    }
    return std::string(folder) + (best.empty() ? std::string(name) : best);
}

}  // namespace campora
