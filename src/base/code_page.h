// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace campora {

/// The code pages in which tables of Latin America are written.
enum class CodePage { Windows1252, Utf8, Dos437, Dos850, Dos860 };

/// The page that a ".cpg" file names ("UTF-8", "1252", "ISO-8859-1", "cp850"...), blanks and case
/// aside; none for a page that is not known.
[[nodiscard]] std::optional<CodePage> codePageOfName(std::string_view name);

/// The page of the language byte in a dBASE table's header; Windows-1252 for 0 and for pages that
/// are not known.
[[nodiscard]] CodePage codePageOfLanguage(std::uint8_t language);

/// UTF-8. Bytes that claim to be UTF-8 and are not are read as Windows-1252.
[[nodiscard]] std::string decodeCodePage(std::string_view bytes, CodePage page);

}  // namespace campora
