// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "base/byte_reader.h"

#include <functional>
#include <limits>
#include <vector>

#include <gtest/gtest.h>

#include "support/failures.h"

namespace campora {
namespace {

std::vector<std::byte> bytesOf(std::initializer_list<int> values) {
    std::vector<std::byte> bytes;
    for (const int value : values) {
        bytes.push_back(static_cast<std::byte>(value));
    }
    return bytes;
}

TEST(ByteReader, NumbersOfBothByteOrders) {
    const auto bytes = bytesOf({0xFE,                                              // u8
                                0x34, 0xF2,                                        // u16le
                                0x78, 0x56, 0x34, 0xF2,                            // u32le
                                0xFE, 0xFF, 0xFF, 0xFF,                            // i32le
                                0xFF, 0xFF, 0xFE, 0x01,                            // i32be
                                0x00, 0x00, 0x48, 0xC1,                            // f32le
                                0x00, 0x00, 0x00, 0x00, 0x00, 0x00, 0x04, 0xC0});  // f64le
    ByteReader reader(bytes);
    EXPECT_EQ(reader.u8(), 0xFEU);
    EXPECT_EQ(reader.u16le(), 0xF234U);
    EXPECT_EQ(reader.u32le(), 0xF2345678U);
    EXPECT_EQ(reader.i32le(), -2);
    EXPECT_EQ(reader.i32be(), -511);
    EXPECT_EQ(reader.f32le(), -12.5F);
    EXPECT_EQ(reader.f64le(), -2.5);
    EXPECT_EQ(reader.remaining(), 0U);
}

TEST(ByteReader, MovesAndTakes) {
    const auto bytes = bytesOf({1, 2, 3, 4, 5});
    ByteReader reader(bytes, 1);
    reader.skip(1);
    EXPECT_EQ(reader.take(2).data(), bytes.data() + 2);
    EXPECT_EQ(reader.offset(), 4U);
    reader.seek(5);
    EXPECT_TRUE(reader.take(0).empty());
}

/// Offset that the failure of `read` names.
std::string cutAt(const std::function<void()>& read) {
    const std::optional<Failure> failure = failureOf([&read] { return read(), 0; });
    return failure && failure->text == TextId::FileCutShort ? failure->arguments.at(0)
                                                            : "not thrown";
}

TEST(ByteReader, ReadingPastTheEndIsRefusedAndMovesNothing) {
    constexpr std::size_t kHuge = std::numeric_limits<std::size_t>::max();
    // From an offset within five bytes, and the place that is named.
    using Read = std::function<void(ByteReader&)>;
    const std::tuple<const char*, std::size_t, Read, const char*> rows[] = {
        {"u8", 5, [](ByteReader& r) { (void)r.u8(); }, "5"},
        {"u16le", 4, [](ByteReader& r) { (void)r.u16le(); }, "4"},
        {"i32be", 3, [](ByteReader& r) { (void)r.i32be(); }, "3"},
        {"f64le", 0, [](ByteReader& r) { (void)r.f64le(); }, "0"},
        {"take", 1, [](ByteReader& r) { (void)r.take(5); }, "1"},
        {"take of a lying count", 1, [](ByteReader& r) { (void)r.take(kHuge); }, "1"},
        {"skip", 1, [](ByteReader& r) { r.skip(5); }, "5"},
        {"skip that would wrap", 2, [](ByteReader& r) { r.skip(kHuge); }, "5"},
        {"seek", 2, [](ByteReader& r) { r.seek(6); }, "5"},
    };
    const auto bytes = bytesOf({1, 2, 3, 4, 5});
    for (const auto& [name, offset, read, place] : rows) {
        SCOPED_TRACE(name);
        ByteReader reader(bytes, offset);
        EXPECT_EQ(cutAt(std::bind(read, std::ref(reader))), place);
        EXPECT_EQ(reader.offset(), offset);
    }
    EXPECT_EQ(cutAt([&] { (void)ByteReader(bytes, 6); }), "5");
    EXPECT_EQ(cutAt([] { (void)ByteReader({}).u8(); }), "0");
}

}  // namespace
}  // namespace campora
