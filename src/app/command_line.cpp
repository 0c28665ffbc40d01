// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "app/command_line.h"

#include <algorithm>
#include <cstddef>

#include "base/text.h"

namespace campora {

namespace {

constexpr char kQuote = '"';

/// The parts between dashes that do not stand within quotes.
std::vector<std::string_view> fieldsOf(std::string_view line) {
    std::vector<std::string_view> fields;
    bool quoted = false;
    std::size_t begin = 0;
    for (std::size_t i = 0; i < line.size(); ++i) {
        if (line[i] == kQuote) {
            quoted = !quoted;
        } else if (line[i] == '-' && !quoted) {
            fields.push_back(line.substr(begin, i - begin));
            begin = i + 1;
        }
    }
    fields.push_back(line.substr(begin));
    return fields;
}

std::vector<std::string> pathsIn(std::string_view field) {
    std::vector<std::string> paths;
    if (std::count(field.begin(), field.end(), kQuote) > 2) {
        while (field.find(kQuote) != std::string_view::npos) {
            field.remove_prefix(field.find(kQuote) + 1);
            const std::size_t end = std::min(field.find(kQuote), field.size());
            paths.emplace_back(field.substr(0, end));
            field.remove_prefix(std::min(end + 1, field.size()));
        }
    } else {
        paths.push_back(replaceAll(trim(field), "\"", ""));
    }
    std::erase(paths, "");
    return paths;
}

}  // namespace

StartRequest parseCommandLine(std::string_view line) {
    const std::vector<std::string_view> fields = fieldsOf(line);
    StartRequest request;
    request.paths = pathsIn(fields.front());
    for (const std::string_view field : std::span(fields).subspan(1)) {
        const std::string_view word = trim(field);
        request.anim = request.anim || word == "anim";
        request.realtime = request.realtime || word == "realtime";
        request.repeat = request.repeat || word == "repeat";
    }
    return request;
}

StartRequest parseCommandLine(std::span<const std::string> arguments) {
    std::vector<std::string> paths;
    std::string switches;
    for (const std::string& argument : arguments) {
        if (argument.starts_with('-')) {
            switches += argument;
        } else if (!argument.empty()) {
            paths.push_back(argument);
        }
    }
    StartRequest request = parseCommandLine(switches);
    request.paths = std::move(paths);
    return request;
}

}  // namespace campora
