// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/merge_lots.h"

#include <gtest/gtest.h>

#include "support/lot_files.h"

namespace campora {
namespace {

using Lines = std::vector<std::string>;

TEST(MergeLots, SaysWhatTheUserShouldKnow) {
    const std::vector<LonLat> line = {{0, 0}, {1, 1}, {2, 2}};
    const std::tuple<const char*, std::vector<std::vector<LonLat>>, Lines> rows[] = {
        {"they overlap", {squareRing(0, 0, 2), squareRing(1, 1, 2)}, {}},
        {"none with area", {line, {{4, 4}}}, {"Los lotes no encierran ninguna superficie"}},
        {"apart, round a hole and one without area",
         {{{0, 0}, {3, 0}, {3, 1}, {0, 1}},
          {{0, 2}, {3, 2}, {3, 3}, {0, 3}},
          {{0, 0}, {1, 0}, {1, 3}, {0, 3}},
          {{2, 0}, {3, 0}, {3, 3}, {2, 3}},
          squareRing(9, 9, 1),
          line},
         {"Quedan 2 contornos separados",
          "Un lote no puede tener huecos. Quedaron incluidos en el contorno: 1",
          "Lotes que no encierran ninguna superficie y no se unieron: 1"}},
    };
    for (const auto& [name, rings, remarks] : rows) {
        std::vector<Lot> lots;
        for (const std::vector<LonLat>& ring : rings) {
            lots.push_back({ring, ""});
        }
        EXPECT_EQ(mergeRemarks(mergeLots(lots), Texts()), remarks) << name;
    }
}

TEST(MergeLots, EachLineOfTheDescriptionsOnceAndAtMostTen) {
    const MergedLots merged =
        mergeLots(std::vector<Lot>{{squareRing(0, 0, 2), "1\r\n2\r\n3\r\n4\r\n5\r\n6\r\n"},
                                   {squareRing(1, 1, 2), "3\n2\n7\n8\n9\n10\n11\n"}});
    ASSERT_EQ(merged.lots.size(), 1U);
    EXPECT_EQ(descriptionLines(merged.lots[0].description),
              (Lines{"1", "2", "3", "4", "5", "6", "7", "8", "9", "10"}));
}

}  // namespace
}  // namespace campora
