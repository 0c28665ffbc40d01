// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <map>
#include <string>
#include <string_view>

#include "base/texts.h"
#include "platform/dialogs.h"

namespace campora {

/// Registrations of the aircraft that carry the loggers, by the logger's serial number (blanks
/// around it and case do not count).
class Registrations {
public:
    /// Empty when the serial is unknown.
    [[nodiscard]] std::string registrationOf(std::string_view serial) const;
    /// The first registration given for a serial stays.
    void add(std::string_view serial, std::string_view registration);

    [[nodiscard]] std::size_t size() const { return bySerial_.size(); }

private:
    std::map<std::string, std::string, std::less<>> bySerial_;
};

/// Reads "matriculas.txt" in `programFolder`: a serial number, ":" and a registration a line.
/// Without the file there are no registrations; each line of another shape is reported with its
/// number and skipped.
[[nodiscard]] Registrations loadRegistrations(std::string_view programFolder, Dialogs& dialogs,
                                              const Texts& texts);

}  // namespace campora
