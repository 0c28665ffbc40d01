// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include "base/texts.h"
#include "model/file_properties.h"
#include "platform/dialogs.h"

class QWidget;

namespace campora {

/// Opens an editor of a summary that has no file, modally. What the user accepts lasts as long as
/// the file is open. Whether the user accepted.
bool editProperties(FileProperties& summary, Dialogs& dialogs, const Texts& texts, QWidget* parent);

}  // namespace campora
