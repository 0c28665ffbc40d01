// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

namespace campora {

/// The texts that a person reads, one enumerator a row of `text_table.def`. The number of a text is
/// that of its Spanish form; 300 more is the Portuguese one, 600 more the English one.
enum class TextId : int {
#define CAMPORA_TEXT(name, id, spanish, portuguese, english) name = (id),
#include "base/text_table.def"
#undef CAMPORA_TEXT
};

}  // namespace campora
