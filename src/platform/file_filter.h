// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <string>
#include <string_view>

#include "base/file_endings.h"
#include "base/texts.h"
#include "platform/dialogs.h"

namespace campora {

/// The files of one ending (".rpt").
[[nodiscard]] inline FileFilter fileFilter(const Texts& texts, TextId caption,
                                           std::string_view ending) {
    return {std::string(texts(caption)), {std::string("*").append(ending)}};
}

[[nodiscard]] inline FileFilter trackFilter(const Texts& texts) {
    return fileFilter(texts, TextId::FilterNimbra, kTrackEnding);
}

}  // namespace campora
