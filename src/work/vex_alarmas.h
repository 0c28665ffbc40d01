// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "base/texts.h"
#include "work/work_kind.h"

namespace campora {

/// What alarm `bit` (0 to 31) of a machine of that kind means; empty for bits without a meaning and
/// for bits beyond 31. Older reports use the seeders' table.
[[nodiscard]] std::string_view alarmText(const Texts& texts, WorkKind kind, int bit);

/// The names of the alarms that have one, in the order of their bits, joined by "; ".
[[nodiscard]] std::string alarmNames(const Texts& texts, WorkKind kind, std::uint32_t alarms);

/// The bits that have a text.
[[nodiscard]] std::uint32_t knownAlarms(WorkKind kind);

}  // namespace campora
