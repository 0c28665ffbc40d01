// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// The program's style: light, with the green of the icons as its one accent.
/// The application object exists already.
void applyLook();

}  // namespace campora
