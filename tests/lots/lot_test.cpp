// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/lot.h"

#include <string>

#include <gtest/gtest.h>

namespace campora {

namespace {

using Vertices = std::vector<LonLat>;

const Vertices kTriangle = {{-58.5, -34.25}, {-58.4, -34.25}, {-58.4, -34.3}};

TEST(Lot, HoldsTheDescriptionAndTheVerticesWithTheirSignsTurnedRound) {
    const std::string bytes = encodeLot(kTriangle, "Campo 1");
    EXPECT_EQ(bytes, "Campo 1\r\n"
                     "34.25 , 58.5\r\n"
                     "34.25 , 58.4\r\n"
                     "34.3 , 58.4\r\n");
    EXPECT_EQ(decodeLot(bytes), (Lot{kTriangle, "Campo 1\r\n"}));
}

TEST(Lot, CoordinatesComeBackAsTheyWere) {
    const Vertices vertices = {
        {-58, 0}, {0, 12.3456789012}, {180, -90}, {0.0000000001, -0.5}, {-179.9999999999, 89.1}};
    const std::string bytes = encodeLot(vertices, "");
    EXPECT_TRUE(bytes.starts_with(". , 58.\r\n-12.3456789012 , .\r\n90. , -180.\r\n"));
    EXPECT_EQ(decodeLot(bytes), (Lot{vertices, ""}));
}

TEST(Lot, ALineIsAVertexWhenItsFirstTwoPiecesAreNumbers) {
    const std::pair<const char*, LonLat> rows[] = {{"34.25 , 58.5", {-58.5, -34.25}},
                                                   {"34.25,58.5", {-58.5, -34.25}},
                                                   {"\t 34.25 ,  58.5 ", {-58.5, -34.25}},
                                                   {"34.25 , 58.5, pampa", {-58.5, -34.25}},
                                                   {"-34.25,+58.5", {-58.5, 34.25}},
                                                   {"1e1,5E-1", {-0.5, -10}},
                                                   {". , -.", {0, 0}},
                                                   {"1e-400,1", {-1, 0}}};
    for (const auto& [line, vertex] : rows) {
        EXPECT_EQ(decodeLot(line), (Lot{{vertex}, ""})) << line;
    }
    for (const std::string line : {"34.25", "34.25 ,", " , 58.5", "34.25 , 58.5 m", "34.25 , 58.5_",
                                   "nan,inf", "0x10,0x10", "1.2.3,4", "1e,4", ".e1,4", "-,+", ""}) {
        EXPECT_EQ(decodeLot(line + "\r\n"), (Lot{{}, line + "\r\n"})) << line;
    }
}

TEST(Lot, TwoNumbersThatAreNoPositionAreDescription) {
    for (const std::string line :
         {"90.1,0", "0,-180.1", "1e400,0", "0,1e400", "-1e400,-1e400", "99999999999,5"}) {
        SCOPED_TRACE(line);
        const Lot lot = decodeLot("Campo\r\n1,1\r\n" + line);
        EXPECT_EQ(lot, (Lot{{{-1, -1}}, "Campo\r\n" + line + "\r\n", {1, 3}}));
        EXPECT_EQ(decodeLot(encodeLot(lot.vertices, lot.description)).description, lot.description);
    }
}

TEST(Lot, IsWrittenInTheCodePageOfConsoles) {
    EXPECT_EQ(encodeLot({}, "Ñandú \u4e00"), "\xD1"
                                             "and\xFA ?\r\n");
    EXPECT_TRUE(decodeLot(encodeLot({}, "ï»¿1,2")).vertices.empty());
    EXPECT_EQ(decodeLot("\xD1"
                        "and\xFA")
                  .description,
              "Ñandú\r\n");
    EXPECT_EQ(decodeLot("\xEF\xBB\xBF"
                        "1,2")
                  .vertices,
              (Vertices{{-2, -1}}));
}

}  // namespace
}  // namespace campora
