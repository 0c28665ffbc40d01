// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "presc/pre_grid.h"

#include <cstdint>
#include <string>
#include <vector>

#include <gtest/gtest.h>

#include "support/failures.h"
#include "support/shape_bytes.h"

namespace campora {
namespace {

using Doses = std::vector<std::int16_t>;

PreHeader smallHeader(int channels) {
    return {3430000, 5815500, 2, 1, 20, 1855, 1529, channels};
}

TEST(PreGrid, EveryByteHasItsPlace) {
    using namespace std::string_literals;
    const std::string expected =
        "[LATITUD] = \xC0\x59\x51\x4A"s   // 3430000
        "[LONGITUD] = \x44\x79\xB1\x4A"s  // 5815458
        "[ANCHO] = \x02\x00[ALTO] = \x01\x00"s
        "[CUADRADO] = \x14\x00[LAT] = \x3F\x07[LONG] = \xF9\x05\x00\x00\x00\x02"s
        "\x01\x00\xFE\xFF\xFF\x7F\x00\x80"s;
    PreHeader header = smallHeader(2);
    header.longitude = 5815458.0F;
    EXPECT_EQ(encodePre(header, Doses{1, -2, 32767, -32768}), expected);

    const PreGrid read = decodePre(bytesOf(expected));
    EXPECT_EQ(read.header, header);
    EXPECT_EQ(read.doses, (Doses{1, -2, 32767, -32768}));
}

TEST(PreGrid, CoordinatesAreNegatedDegreesAndMinutes) {
    const std::tuple<double, float, float> rows[] = {
        {-34.5, 3430000.0F, -34.5F},           {-58.258333, 5815500.0F, -58.25833F},
        {-0.00001, 1.0F, -0.00002F},           {50.25, -5055000.0F, 50.25F},
        {-61.2500083333, 6115000.0F, -61.25F},
    };
    for (const auto& [degrees, stored, read] : rows) {
        EXPECT_EQ(encodePreCoordinate(degrees), stored) << degrees;
        EXPECT_EQ(decodePreCoordinate(stored), read) << degrees;
    }
}

TEST(PreGrid, AFileThatLiesIsRefused) {
    using namespace std::string_literals;
    const std::tuple<const char*, std::size_t, std::string, TextId> rows[] = {
        {"no columns", 43, "\x00\x00"s, TextId::GridImpossible},
        {"latitude not a number", 12, "\x00\x00\xC0\x7F"s, TextId::GridImpossible},
        {"latitude at the pole", 12, "\x40\x54\x09\xCB"s, TextId::GridImpossible},
        {"more columns than cells", 43, "\xFF\x7F"s, TextId::FileCutShort},
        {"more channels than doses", 95, "\xFF"s, TextId::FileCutShort},
    };
    const std::string whole = encodePre(smallHeader(1), Doses{7, 8});
    for (const auto& [name, at, bytes, text] : rows) {
        SCOPED_TRACE(name);
        std::string lying = whole;
        lying.replace(at, bytes.size(), bytes);
        EXPECT_EQ(failureOf([&lying] { return decodePre(bytesOf(lying)); }).value().text, text);
    }
}

}  // namespace
}  // namespace campora
