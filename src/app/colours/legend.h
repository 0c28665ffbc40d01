// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/texts.h"
#include "colour/color_scale.h"
#include "model/map_style.h"
#include "platform/main_window_controls.h"
#include "platform/user_locale.h"
#include "work/work_kind.h"

namespace campora {

/// The rows of the legend for the current style: the classes of `scale`, when one is given, with
/// their bounds (dates for a date scale, one value for a single-value class); the plain colours
/// that the style uses, named after the kind of work; the two alarm colours in the alarm map, the
/// error sample in the error map.
[[nodiscard]] LegendContent legendContent(const MapStyle& style, const ColorScale* scale,
                                          WorkKind kind, const Texts& texts,
                                          const UserLocale& locale);

}  // namespace campora
