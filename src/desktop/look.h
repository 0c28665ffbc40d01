// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

class QApplication;

namespace campora {

/// The program's style: light, with the green of the icons as its one accent.
void applyLook(QApplication& application);

}  // namespace campora
