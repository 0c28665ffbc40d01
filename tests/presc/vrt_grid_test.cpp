// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/vrt_grid.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/failures.h"
#include "support/shape_bytes.h"

namespace campora {
namespace {

using namespace std::string_literals;
using Doses = std::vector<std::int16_t>;

VrtHeader smallHeader() {
    return {-61.25F, -33.5F, 7.5F, 2, 1, 2, "Lote 7", "Maíz"};
}

TEST(VrtGrid, EveryByteHasItsPlace) {
    const std::string expected = "\x9B\x1A\x6F\x01"s +
                                 "\x00\x00\x75\xC2"s
                                 "\x00\x00\x06\xC2"s
                                 "\x00\x00\xF0\x40"s +
                                 "\x02\x00\x00\x00"s
                                 "\x01\x00\x00\x00"s
                                 "\x02"s +
                                 "Lote 7"s + std::string(10, '\0') + "Ma\xEDz"s +
                                 std::string(60, '\0') + std::string(4, '\0') +
                                 "\xE2\x04\x00\x00\xFF\xFF\x00\x80"s;
    EXPECT_EQ(encodeVrt(smallHeader(), Doses{1250, 0, -1, -32768}), expected);

    ASSERT_TRUE(isVrtFile(bytesOf(expected)));
    const VrtGrid read = decodeVrt(bytesOf(expected));
    EXPECT_EQ(read.header, smallHeader());
    EXPECT_EQ(read.doses, (Doses{1250, 0, -1, -32768}));
}

TEST(VrtGrid, TextsAreCutToTheirFields) {
    VrtHeader header = smallHeader();
    header.name = "Ñandú de veinte letras";
    header.description = std::string(70, 'd');
    const VrtGrid read = decodeVrt(bytesOf(encodeVrt(header, Doses{1, 2, 3, 4})));
    EXPECT_EQ(read.header.name, "Ñandú de veinte ");
    EXPECT_EQ(read.header.description, std::string(64, 'd'));
    EXPECT_EQ(read.doses, (Doses{1, 2, 3, 4}));
}

TEST(VrtGrid, AFileThatLiesIsRefused) {
    const std::tuple<const char*, std::size_t, std::string, TextId> rows[] = {
        {"west edge not a number", 4, "\x00\x00\xC0\x7F"s, TextId::GridImpossible},
        {"south edge at the pole", 8, "\x00\x00\xB4\x42"s, TextId::GridImpossible},
        {"resolution 0", 12, "\x00\x00\x00\x00"s, TextId::GridImpossible},
        {"columns below zero", 16, "\xFF\xFF\xFF\xFF"s, TextId::GridImpossible},
        {"no channels", 24, "\x00"s, TextId::GridImpossible},
        {"a row too many", 20, "\x02"s, TextId::FileCutShort},
    };
    for (const auto& [name, at, bytes, text] : rows) {
        SCOPED_TRACE(name);
        std::string lying = encodeVrt(smallHeader(), Doses{1, 2, 3, 4});
        lying.replace(at, bytes.size(), bytes);
        EXPECT_EQ(failureOf([&lying] { return decodeVrt(bytesOf(lying)); }).value().text, text);
    }
}

}  // namespace
}  // namespace campora
