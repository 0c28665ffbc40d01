// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>

/// Where things stand in a dBASE III table, for those who read and who write it. Numbers are
/// little-endian.
namespace campora::dbase {

// Bytes from the start of the file.
namespace header {
inline constexpr std::uint8_t kVersion = 3;  // u8 at 0, then the date: years from 1900, month, day
inline constexpr std::size_t kRecordCount = 4;  // u32
inline constexpr std::size_t kHeaderSize = 8;   // u16, of the header with its fields
inline constexpr std::size_t kRecordSize = 10;  // u16, the mark of deleted records included
inline constexpr std::size_t kLanguage = 29;    // u8
inline constexpr std::size_t kFields = 32;      // their descriptions begin
inline constexpr std::size_t kLeast = 33;       // bytes of a header without fields: the end alone
inline constexpr std::uint8_t kFieldsEnd = 0x0D;
}  // namespace header

// Bytes from the start of a field's description.
namespace field {
inline constexpr std::size_t kNameSize = 11;  // ended by a zero byte when shorter
inline constexpr std::size_t kType = 11;      // a letter
inline constexpr std::size_t kWidth = 16;     // u8
inline constexpr std::size_t kSize = 32;
}  // namespace field

// Types of fields; all hold text.
namespace type {
inline constexpr char kNumber = 'N';
inline constexpr char kFloat = 'F';
inline constexpr char kText = 'C';
inline constexpr char kDate = 'D';  // yyyymmdd
inline constexpr char kLogical = 'L';
}  // namespace type

inline constexpr std::size_t kDateWidth = 8;
inline constexpr char kNotDeleted = ' ';  // a record begins with it

}  // namespace campora::dbase
