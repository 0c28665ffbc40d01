// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "lots/lot_draft.h"

#include <functional>

#include <gtest/gtest.h>

namespace campora {
namespace {

using Vertices = std::vector<LonLat>;
using Index = std::optional<std::size_t>;

constexpr LonLat kAt{9, 9};
const Vertices kTriangle = {{0, 0}, {4, 0}, {0, 4}};

LotDraft triangle() {
    LotDraft draft;
    draft.start({kTriangle, "Campo 1"});
    return draft;
}

TEST(LotDraft, EveryChangeIsUndoneAndDoneAgain) {
    using Draft = LotDraft&;
    const auto drag = [](Draft d, void (LotDraft::*begin)(std::size_t), std::size_t index) {
        (d.*begin)(index);
        d.move({1, 1});
        d.move({2, 2});
        d.endMove(true);
    };
    const auto interrupted = [](Draft d) {
        d.beginMove(0);
        d.select(1);
    };
    const std::tuple<const char*, std::function<void(Draft)>, Vertices, Index> rows[] = {
        {"append", [](Draft d) { d.append(kAt); }, {{0, 0}, {4, 0}, {0, 4}, kAt}, 3},
        {"move", [](Draft d) { d.moveTo(1, kAt); }, {{0, 0}, kAt, {0, 4}}, {}},
        {"insert", [](Draft d) { d.insertAfter(0); }, {{0, 0}, {2, 0}, {4, 0}, {0, 4}}, 1},
        {"remove", [](Draft d) { d.remove(1); }, {{0, 0}, {0, 4}}, 0},
        {"clear", [](Draft d) { d.clear(); }, {}, {}},
        {"drag", [&](Draft d) { drag(d, &LotDraft::beginMove, 2); }, {{0, 0}, {4, 0}, {2, 2}}, 2},
        {"out of a side",
         [&](Draft d) { drag(d, &LotDraft::beginInsert, 1); },
         {{0, 0}, {4, 0}, {2, 2}, {0, 4}},
         2},
        {"ended by another", interrupted, kTriangle, 1},
    };
    for (const auto& [name, change, vertices, selected] : rows) {
        SCOPED_TRACE(name);
        LotDraft draft = triangle();
        change(draft);
        draft.move(kAt);  // no drag goes on
        EXPECT_EQ(draft.vertices(), vertices);
        EXPECT_EQ(draft.selected(), selected);
        const bool changed = vertices != kTriangle;
        EXPECT_EQ(draft.canUndo(), changed);
        if (!changed) {
            continue;
        }
        draft.undo();
        EXPECT_EQ(draft.vertices(), kTriangle);
        EXPECT_EQ(draft.description(), "Campo 1");
        EXPECT_FALSE(draft.canUndo());
        draft.redo();
        EXPECT_EQ(draft.vertices(), vertices);
        EXPECT_EQ(draft.selected(), selected);
        EXPECT_FALSE(draft.canRedo());
    }
}

TEST(LotDraft, WhatChangesNothingIsNoStep) {
    LotDraft draft = triangle();
    draft.moveTo(1, {4, 0});
    draft.moveTo(3, {4, 0});
    draft.remove(3);
    draft.insertAfter(3);
    draft.beginMove(1);
    draft.move({9, 9});
    draft.endMove(false);
    draft.beginInsert(0);
    draft.endMove(false);
    draft.select(7);
    EXPECT_EQ(draft.vertices(), kTriangle);
    EXPECT_EQ(draft.selected(), Index());
    EXPECT_FALSE(draft.canUndo());
    LotDraft empty;
    empty.clear();
    EXPECT_FALSE(empty.canUndo());
}

TEST(LotDraft, RemovingKeepsTheMoveThatItEnds) {
    LotDraft draft = triangle();
    draft.beginMove(0);
    draft.move(kAt);
    draft.remove(1);
    EXPECT_EQ(draft.vertices(), (Vertices{kAt, {0, 4}}));
}

TEST(LotDraft, KnowsWhatWouldBeLost) {
    LotDraft draft = triangle();
    draft.clear();
    EXPECT_FALSE(draft.isChanged());  // it is in its file
    draft.append({1, 1});
    draft.clear();
    EXPECT_TRUE(draft.isChanged());
    draft.append({2, 2});
    draft.remove(0);
    EXPECT_TRUE(draft.isChanged());
    draft.append({3, 3});
    draft.markSaved("b.lot");
    EXPECT_FALSE(draft.isChanged());
    draft.setDescription("otra");
    EXPECT_TRUE(draft.isChanged());
}

TEST(LotDraft, ForgetsTheOldestSteps) {
    LotDraft draft;
    for (std::size_t i = 0; i < LotDraft::kMostSteps + 5; ++i) {
        draft.append({0, static_cast<double>(i)});
    }
    while (draft.canUndo()) {
        draft.undo();
    }
    EXPECT_EQ(draft.vertices().size(), 5U);
}

}  // namespace
}  // namespace campora
