// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/open/project_file.h"

#include "base/encoding.h"
#include "base/file_head.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace campora {

namespace {

constexpr std::string_view kHeader = "furrowscope project file";
constexpr char kComment = '#';
constexpr std::string_view kSeparators = "\\/";
/// The first line is looked for in so many bytes.
constexpr std::size_t kHeadBytes = 4096;

bool beginsProject(std::string_view bytes) {
    std::string_view line;
    TextLines lines(bytes.substr(0, kHeadBytes));
    return lines.next(line) && lowerCase(line).find(kHeader) != std::string::npos;
}

}  // namespace

std::optional<std::vector<std::string>> decodeProject(std::string_view bytes,
                                                      std::string_view programFolder) {
    if (!beginsProject(bytes)) {
        return std::nullopt;
    }
    const std::string folder = beforeRelative(programFolder);
    const std::string text = decodeText(bytes);
    TextLines lines(text);
    std::string_view line;
    static_cast<void>(lines.next(line));  // the header
    std::vector<std::string> paths;
    while (lines.next(line)) {
        const std::string_view entry = trim(line);
        if (entry.starts_with(kComment)) {
            continue;
        }
        const bool isRelative = entry.find_first_of(kSeparators) == 0;
        paths.push_back(isRelative ? folder + std::string(entry) : std::string(entry));
    }
    return paths;
}

std::string beforeRelative(std::string_view programFolder) {
    std::string folder(programFolder);
    if (folder.empty() || kSeparators.find(folder.back()) == std::string_view::npos) {
        folder += '\\';
    }
    return folder;
}

bool isProject(std::string_view path) {
    const std::optional<std::string> head = readFileHead(path, kHeadBytes);
    return head && beginsProject(*head);
}

}  // namespace campora
