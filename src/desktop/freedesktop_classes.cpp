// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "desktop/freedesktop_classes.h"

namespace campora {

void FreedesktopClasses::setDefault(std::string_view /*key*/, std::string_view /*value*/) {}

void FreedesktopClasses::finish() {}

}  // namespace campora
