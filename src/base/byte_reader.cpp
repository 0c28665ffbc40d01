// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/byte_reader.h"

#include <bit>
#include <limits>

#include "base/failure.h"
#include "base/numbers.h"

namespace campora {

namespace {

static_assert(std::numeric_limits<float>::is_iec559 && std::numeric_limits<double>::is_iec559);

[[noreturn]] void failAt(std::size_t offset) {
    throw FormatError({TextId::FileCutShort, {numberText(offset)}});
}

template <typename Unsigned>
Unsigned littleEndian(std::span<const std::byte> bytes) {
    Unsigned value = 0;
    for (std::size_t i = 0; i < sizeof(Unsigned); ++i) {
        const auto byte = static_cast<Unsigned>(bytes[i]);
        value = static_cast<Unsigned>(value | static_cast<Unsigned>(byte << (8U * i)));
    }
    return value;
}

}  // namespace

ByteReader::ByteReader(std::span<const std::byte> bytes, std::size_t offset) : bytes_(bytes) {
    seek(offset);
}

void ByteReader::seek(std::size_t offset) {
    if (offset > bytes_.size()) {
        failAt(bytes_.size());
    }
    offset_ = offset;
}

void ByteReader::skip(std::size_t count) {
    if (count > remaining()) {
        failAt(bytes_.size());
    }
    offset_ += count;
}

std::span<const std::byte> ByteReader::take(std::size_t count) {
    if (count > remaining()) {
        failAt(offset_);
    }
    const auto taken = bytes_.subspan(offset_, count);
    offset_ += count;
    return taken;
}

std::uint8_t ByteReader::u8() {
    return std::to_integer<std::uint8_t>(take(1)[0]);
}

std::uint16_t ByteReader::u16le() {
    return littleEndian<std::uint16_t>(take(2));
}

std::uint32_t ByteReader::u32le() {
    return littleEndian<std::uint32_t>(take(4));
}

std::int32_t ByteReader::i32le() {
    return std::bit_cast<std::int32_t>(u32le());
}

std::int32_t ByteReader::i32be() {
    const std::uint32_t value = u32le();
    return std::bit_cast<std::int32_t>((value >> 24U) | ((value >> 8U) & 0x0000FF00U) |
                                       ((value << 8U) & 0x00FF0000U) | (value << 24U));
}

float ByteReader::f32le() {
    return std::bit_cast<float>(u32le());
}

double ByteReader::f64le() {
    return std::bit_cast<double>(littleEndian<std::uint64_t>(take(8)));
}

}  // namespace campora
