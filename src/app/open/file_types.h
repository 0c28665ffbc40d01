// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string_view>

#include "platform/classes_registry.h"

namespace campora {

/// Makes this program the one that opens reports and prescriptions from the desktop.
/// `programPath`: the running program, with its folder.
void registerFileTypes(std::string_view programPath, ClassesRegistry& classes);

}  // namespace campora
