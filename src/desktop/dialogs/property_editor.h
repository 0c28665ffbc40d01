// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <functional>

#include "app/open/summary_editor.h"
#include "platform/desk.h"

class QWidget;

namespace campora {

/// Opens an editor of the rows of a summary that has no file, modally. What the user accepts is
/// handed to `keep`; the editor stays open when it answers false.
void editProperties(SummaryRows rows, const std::function<bool(const SummaryRows&)>& keep,
                    const Desk& desk, QWidget* parent);

}  // namespace campora
