// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>

#include "model/map_style.h"

namespace campora {

/// The machine that did the work; reports of the older forms do not say which.
enum class WorkKind : unsigned char { Seeder = 0, Sprayer = 1, OlderForm = 2 };

/// The scale of the work of such a machine; there is one while a scale is shown.
[[nodiscard]] inline const ColorScale& scaleOf(const MapStyle& style, WorkKind kind) {
    return kind == WorkKind::Sprayer || style.unitScale == nullptr ? *style.scale
                                                                   : *style.unitScale;
}

/// The alarms that are selected for machines of that kind, a bit an alarm.
[[nodiscard]] inline std::uint32_t checkedAlarms(const MapStyle& style, WorkKind kind) {
    return style.alarmSelection[kind == WorkKind::Sprayer ? 1 : 0];
}

[[nodiscard]] inline bool isAlarmChecked(const MapStyle& style, WorkKind kind, int bit) {
    return bit >= 0 && bit < 32 &&
           ((checkedAlarms(style, kind) >> static_cast<unsigned>(bit)) & 1U) != 0;
}

}  // namespace campora
