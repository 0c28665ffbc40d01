// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "app/colours/legend_commands.h"
#include "base/texts.h"
#include "platform/main_window_controls.h"

class QMenu;
class QWidget;

namespace campora {

/// What the user can do with the scale in the legend, as a menu that deletes itself when it closes.
/// `row`: the class that it was asked for, -1 for none. The commands outlive the parent.
[[nodiscard]] QMenu* makeLegendMenu(QWidget& parent, const LegendContent& legend, int row,
                                    LegendCommands& commands, const Texts& texts);

}  // namespace campora
