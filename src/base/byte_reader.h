// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <span>

namespace campora {

/// A checked cursor over the bytes of a file. Reading past the end throws `FormatError` (text
/// `FileCutShort`) with the offset of what could not be read whole; the cursor then stays where it
/// was. Moving past the end throws it with the size.
/// The bytes must outlive the reader.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::byte> bytes, std::size_t offset = 0);

    [[nodiscard]] std::size_t offset() const { return offset_; }
    [[nodiscard]] std::size_t remaining() const { return bytes_.size() - offset_; }

    void seek(std::size_t offset);
    void skip(std::size_t count);
    [[nodiscard]] std::span<const std::byte> take(std::size_t count);

    [[nodiscard]] std::uint8_t u8();
    [[nodiscard]] std::uint16_t u16le();
    [[nodiscard]] std::uint32_t u32le();
    [[nodiscard]] std::int32_t i32le();
    [[nodiscard]] std::int32_t i32be();
    [[nodiscard]] float f32le();
    [[nodiscard]] double f64le();

private:
    std::span<const std::byte> bytes_;
    std::size_t offset_ = 0;
};

}  // namespace campora
