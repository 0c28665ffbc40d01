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
        {"f64le", 0, [](ByteReader& r) { (void)r.f64le(); }, "0"},
        {"take of a lying count", 1, [](ByteReader& r) { (void)r.take(kHuge); }, "1"},
        {"skip that would wrap", 2, [](ByteReader& r) { r.skip(kHuge); }, "5"},
        {"seek", 2, [](ByteReader& r) { r.seek(6); }, "5"},
    };
    const std::vector<std::byte> bytes(5);
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
