// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "work/registrations.h"

#include <optional>
#include <utility>

#include "base/encoding.h"
#include "base/files.h"
#include "base/paths.h"
#include "base/text.h"
#include "base/text_lines.h"

namespace campora {

namespace {

constexpr std::string_view kFileName = "matriculas.txt";
/// A file that is something else altogether must not bury the user in message boxes.
constexpr std::size_t kMostMessages = 20;

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

Registrations loadRegistrations(std::string_view programFolder, Dialogs& dialogs,
                                const Texts& texts) {
    Registrations registrations;
    const std::string path = pathText(nativePath(programFolder) / kFileName);
    const auto file = readFile(findIgnoringCase(path));
    if (!file) {
        return registrations;
    }
    const auto report = [&](TextId text, std::size_t number) {
        dialogs.message(texts.format(text, {std::to_string(number)}), MessageIcon::Exclamation,
                        texts(TextId::ProgramName));
    };
    const std::string content = decodeText(file->text());
    TextLines lines(content);
    std::size_t badLines = 0;
    for (std::string_view line; lines.next(line);) {
        if (const auto entry = splitEntry(line)) {
            registrations.add(entry->first, entry->second);
        } else if (++badLines <= kMostMessages) {
            report(TextId::RegistrationsBadLine, lines.lineNumber());
        }
    }
    if (badLines > kMostMessages) {
        report(TextId::RegistrationsMoreBadLines, badLines - kMostMessages);
    }
    return registrations;
}

}  // namespace campora
