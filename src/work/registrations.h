// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <map>
#include <string>
#include <string_view>
#include <vector>

#include "platform/desk.h"

namespace campora {

/// Name of the registration table.
inline constexpr std::string_view kRegistrationsFile = "matriculas.txt";

/// Registrations of the aircraft that carry the loggers, by the logger's serial number (blanks
/// around it and case do not count).
class Registrations {
public:
    /// Empty when the serial is unknown.
    [[nodiscard]] std::string registrationOf(std::string_view serial) const;
    /// The first registration given for a serial stays.
    void add(std::string_view serial, std::string_view registration);

private:
    std::map<std::string, std::string, std::less<>> bySerial_;
};

/// A registration table and what is wrong with it.
struct RegistrationTable {
    Registrations registrations;
    /// Numbers, from 1, of the lines of another shape; at most `kMostLinesNamed` of them.
    std::vector<std::size_t> badLines;
    /// How many more there are.
    std::size_t moreBadLines = 0;

    /// A file that is something else altogether must not bury the user in messages.
    static constexpr std::size_t kMostLinesNamed = 20;
};

/// A serial number, ":" and a registration a line; every other line, a blank one too, is bad.
[[nodiscard]] RegistrationTable decodeRegistrations(std::string_view bytes);

/// Reads the table in `programFolder`. Without the file there are no registrations; each bad
/// line is reported with its number and skipped.
[[nodiscard]] Registrations loadRegistrations(std::string_view programFolder, const Desk& desk);

}  // namespace campora
