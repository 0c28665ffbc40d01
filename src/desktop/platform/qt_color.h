// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <QColor>

#include "base/color.h"

namespace campora {

[[nodiscard]] inline QColor toQt(Color color) {
    return {color.red(), color.green(), color.blue()};
}

}  // namespace campora
