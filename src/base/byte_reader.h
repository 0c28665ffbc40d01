// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <limits>
#include <span>

namespace campora {

/// A checked cursor over the bytes of a file. Reading past the end throws `FormatError` with the
/// offset (text `FileCutShort`); the cursor then stays where it was.
/// The bytes must outlive the reader. All is inline: reports hold millions of numbers.
class ByteReader {
public:
    explicit ByteReader(std::span<const std::byte> bytes, std::size_t offset = 0) : bytes_(bytes) {
        seek(offset);
    }

    [[nodiscard]] std::size_t offset() const { return offset_; }
    [[nodiscard]] std::size_t remaining() const { return bytes_.size() - offset_; }

    void seek(std::size_t offset) {
        if (offset > bytes_.size()) {
            failAt(bytes_.size());
        }
        offset_ = offset;
    }
    void skip(std::size_t count) {
        if (count > remaining()) {
            failAt(bytes_.size());
        }
        offset_ += count;
    }
    [[nodiscard]] std::span<const std::byte> take(std::size_t count) {
        if (count > remaining()) {
            failAt(offset_);
        }
        const auto taken = bytes_.subspan(offset_, count);
        offset_ += count;
        return taken;
    }

    [[nodiscard]] std::uint8_t u8() { return littleEndian<std::uint8_t>(); }
    [[nodiscard]] std::uint16_t u16le() { return littleEndian<std::uint16_t>(); }
    [[nodiscard]] std::uint32_t u32le() { return littleEndian<std::uint32_t>(); }
    [[nodiscard]] std::int32_t i32le() { return std::bit_cast<std::int32_t>(u32le()); }
    [[nodiscard]] std::int32_t i32be() {
        const std::uint32_t value = u32le();
        return std::bit_cast<std::int32_t>((value >> 24U) | ((value >> 8U) & 0x0000FF00U) |
                                           ((value << 8U) & 0x00FF0000U) | (value << 24U));
    }
    [[nodiscard]] float f32le() { return std::bit_cast<float>(u32le()); }
    [[nodiscard]] double f64le() { return std::bit_cast<double>(littleEndian<std::uint64_t>()); }

private:
    static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

    [[noreturn]] static void failAt(std::size_t offset);

    template <typename Unsigned>
    [[nodiscard]] Unsigned littleEndian() {
        const std::span<const std::byte> bytes = take(sizeof(Unsigned));
        Unsigned value = 0;
        for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
            const auto byte = static_cast<Unsigned>(bytes[i]);
            value = static_cast<Unsigned>(value | static_cast<Unsigned>(byte << (8U * i)));
        }
        return value;
    }

    std::span<const std::byte> bytes_;
    std::size_t offset_ = 0;
};

}  // namespace campora
