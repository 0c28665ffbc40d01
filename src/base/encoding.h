// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace campora {

/// A character and how many bytes of UTF-8 it takes.
struct Utf8Character {
    char32_t value = 0;
    std::size_t length = 0;
};

/// The character at the start of a text (not empty); none where its bytes are not UTF-8.
[[nodiscard]] std::optional<Utf8Character> firstCharacter(std::string_view text);

[[nodiscard]] bool isUtf8(std::string_view bytes);

/// Whether a byte of UTF-8 goes on with a character instead of beginning one.
[[nodiscard]] constexpr bool continuesCharacter(char byte) {
    return (static_cast<unsigned char>(byte) & 0xC0U) == 0x80U;
}

/// The last characters of a text; all of it where it has no more.
[[nodiscard]] std::string_view lastCharacters(std::string_view text, int count);

/// `character`: of the basic plane.
void appendUtf8(std::string& text, char32_t character);

/// The characters of the bytes 0x80 to 0xFF in a code page, U+FFFD for those that it leaves open.
using UpperHalf = std::u16string_view;

/// Bytes of a code page whose lower half is ASCII, to UTF-8.
[[nodiscard]] std::string fromCodePage(std::string_view bytes, UpperHalf upper);

/// Windows-1252 to UTF-8; the five bytes that the code page leaves open become U+FFFD.
[[nodiscard]] std::string fromWindows1252(std::string_view bytes);

/// UTF-8 to Windows-1252; a character that the code page lacks becomes "?", and so does each byte
/// that is not UTF-8.
[[nodiscard]] std::string toWindows1252(std::string_view text);

/// Text of a file of unknown origin: UTF-8 when it is valid UTF-8 (a leading byte-order mark is
/// dropped), Windows-1252 otherwise.
[[nodiscard]] std::string decodeText(std::string_view bytes);

/// As `decodeText` for a part of a file whose encoding is already known (`utf8`: see `isUtf8` of
/// the whole file). A part that was cut inside a character is read as Windows-1252 all the same.
[[nodiscard]] std::string decodeText(std::string_view bytes, bool utf8);

}  // namespace campora
