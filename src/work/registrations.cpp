// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/registrations.h"

#include <optional>
#include <utility>

#include "base/encoding.h"
#include "base/files.h"
#include "base/numbers.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace campora {

namespace {

std::string keyOf(std::string_view serial) {
    return lowerCase(trim(serial));
}

/// Serial number and registration; none unless the line holds exactly one ":".
std::optional<std::pair<std::string_view, std::string_view>> splitEntry(std::string_view line) {
    const std::size_t colon = line.find(':');
    if (colon == std::string_view::npos || line.find(':', colon + 1) != std::string_view::npos) {
        return std::nullopt;
    }
    return std::pair(line.substr(0, colon), line.substr(colon + 1));
}

}  // namespace

std::string Registrations::registrationOf(std::string_view serial) const {
    const auto found = bySerial_.find(keyOf(serial));
    return found == bySerial_.end() ? std::string() : found->second;
}

void Registrations::add(std::string_view serial, std::string_view registration) {
    bySerial_.try_emplace(keyOf(serial), trim(registration));
}

RegistrationTable decodeRegistrations(std::string_view bytes) {
    RegistrationTable table;
    const std::string content = decodeText(bytes);
    TextLines lines(content);
    for (std::string_view line; lines.next(line);) {
        if (const auto entry = splitEntry(line)) {
            table.registrations.add(entry->first, entry->second);
        } else if (table.badLines.size() < RegistrationTable::kMostLinesNamed) {
            table.badLines.push_back(lines.lineNumber());
        } else {
            ++table.moreBadLines;
        }
    }
    return table;
}

Registrations loadRegistrations(std::string_view programFolder, const Desk& desk) {
    const std::string path = pathText(nativePath(programFolder) / kRegistrationsFile);
    const auto file = readFile(findIgnoringCase(path));
    if (!file) {
        return {};
    }
    RegistrationTable table = decodeRegistrations(file->text());
    for (const std::size_t number : table.badLines) {
        desk.tell({TextId::RegistrationsBadLine, {numberText(number)}});
    }
    if (table.moreBadLines > 0) {
        desk.tell({TextId::RegistrationsMoreBadLines, {numberText(table.moreBadLines)}});
    }
    return std::move(table.registrations);
}

}  // namespace campora
