// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "rtree/r2_tree.h"

#include <algorithm>
#include <limits>
#include <random>
#include <span>

#include <gtest/gtest.h>

#include "base/sha256.h"

namespace campora {
namespace {

using Ids = std::vector<std::int32_t>;

Ids idsOf(const std::vector<const R2TreeEntry*>& entries) {
    Ids ids;
    for (const R2TreeEntry* entry : entries) {
        ids.push_back(entry->ChildID);
    }
    return ids;
}

Ids idsAt(const R2Tree& tree, const Rectangle& w, int mode) {
    return idsOf(tree.Find(w.xMin, w.xMax, w.yMin, w.yMax, mode)->entries);
}

/// Levels below the node; the promises about nodes are looked at on the way.
int checkedHeight(const R2TreeNode& node) {
    const auto fewest = node.IsLeaf() ? node.Tree->MinLeafEntries : node.Tree->MinNodeEntries;
    EXPECT_TRUE(node.IsRoot() || node.Entries.size() >= fewest);
    int height = 0;
    for (const R2TreeEntry& entry : node.Entries) {
        EXPECT_TRUE(rectangleInside(node.rectangle(), entry.rectangle()));
        if (entry.ChildNode) {
            EXPECT_EQ(entry.ChildNode->ParentEntry(), &entry);
            EXPECT_EQ(entry.ChildNode->Level(), node.Level() + 1);
            EXPECT_EQ(entry.rectangle(), entry.ChildNode->rectangle());
            const int below = checkedHeight(*entry.ChildNode) + 1;
            EXPECT_TRUE(height == 0 || height == below) << "leaves of one depth";
            height = below;
        }
    }
    return height;
}

/// Items at random places, and how a tree holds them.
struct Crowd {
    const char* name;
    int span;  // of the corners
    int side;  // longest side
    int grid;  // corners are multiples of this
    std::uint8_t most;
    std::uint8_t fewest;
    int items;
    const char* order;  // first digits of the sum of all that is found
};

// The order of what is found decides which of several zones a place belongs to: the sums are those
// of a tree that was written down afresh, without any of this one's short ways.
TEST(R2Tree, FindsAllThatOverlapsInTheOrderOfItsRules) {
    const Crowd rows[] = {
        {"zones apart", 1'000'000'000, 9'000'000, 1, 50, 25, 3000, "5ef43527338c5bd8"},
        {"zones that overlap", 1'000'000, 300'000, 1, 50, 25, 2000, "bfc8b85b88a9ee05"},
        {"a grid, with many ties", 3000, 300, 100, 50, 25, 2000, "b3c6f948c45ba2e7"},
        {"points", 40, 1, 1, 50, 25, 1500, "b520358c97cf72af"},
        {"narrow nodes", 1'000'000, 200'000, 1, 4, 2, 800, "757418991ea5a5cc"},
        {"nodes of one", 1'000'000, 200'000, 1, 1, 1, 12, "b4d808cbd2503102"},
    };
    std::mt19937 random(5101);
    for (const Crowd& row : rows) {
        SCOPED_TRACE(row.name);
        const auto below = [&](int limit) {
            return static_cast<int>(random() % unsigned(limit)) / row.grid * row.grid;
        };
        const auto rectangle = [&] {
            const int x = below(row.span) - row.span / 2;
            const int y = below(row.span) - row.span / 2;
            return Rectangle{x, x + below(row.side), y, y + below(row.side)};
        };
        R2Tree tree;
        tree.MaxNodeEntries = tree.MaxLeafEntries = row.most;
        tree.MinNodeEntries = tree.MinLeafEntries = row.fewest;
        std::vector<Rectangle> items;
        for (int id = 0; id < row.items; ++id) {
            const Rectangle r = items.emplace_back(rectangle());
            tree.Insert(r.xMin, r.yMax, r.xMax, r.yMin, id);
        }
        EXPECT_EQ(tree.EntriesCount(), row.items);
        EXPECT_EQ(checkedHeight(tree.root()), tree.Height());
        std::string order;
        for (int i = 0; i < 300; ++i) {
            const Rectangle w = rectangle();
            Ids found = idsAt(tree, w, R2Tree::kOverlapping);
            for (const std::int32_t id : found) {
                order += std::to_string(id) + " ";
            }
            Ids expected;
            for (std::size_t id = 0; id < items.size(); ++id) {
                const Rectangle& box = items[id];
                if (box.xMin <= w.xMax && w.xMin <= box.xMax && box.yMin <= w.yMax &&
                    w.yMin <= box.yMax) {
                    expected.push_back(static_cast<std::int32_t>(id));
                }
            }
            std::sort(found.begin(), found.end());
            ASSERT_EQ(found, expected) << i;
        }
        EXPECT_EQ(sha256(std::as_bytes(std::span(order))).substr(0, 16), row.order);
    }
}

TEST(R2Tree, ModesOfFinding) {
    R2Tree tree;
    tree.Insert(0, 0, 10, 10, 1);
    tree.Insert(2, 2, 4, 4, 2);
    tree.Insert(10, 10, 20, 20, 3);
    const Rectangle window{2, 10, 2, 10};
    EXPECT_EQ(idsAt(tree, window, 0), Ids{2});
    EXPECT_EQ(idsAt(tree, window, 1), Ids{2});
    EXPECT_EQ(idsAt(tree, {0, 20, 0, 20}, 1), (Ids{1, 2, 3})) << "edges may touch";
    EXPECT_EQ(idsAt(tree, window, 2), (Ids{1, 2, 3})) << "touching counts";
    EXPECT_EQ(idsAt(tree, {11, 11, 9, 9}, 2), Ids{});
    EXPECT_EQ(idsOf(tree.Find(10, 2, 10, 2, 1)->entries), Ids{2}) << "corners in any order";
    EXPECT_FALSE(tree.Find(2, 4, 2, 5, 3));
    EXPECT_EQ(tree.Find(2, 4, 2, 4, 3).value().leaves, (std::vector{&tree.root()}));
    EXPECT_EQ(tree.Find(90, 91, 90, 91, 4).value().leaves, (std::vector{&tree.root()}));
    EXPECT_FALSE(R2Tree().Find(0, 0, 0, 0, 3));
}

TEST(R2Tree, CountsItsNodesTheirRoomAndItsSteps) {
    R2Tree tree;
    for (int i = 0; i < 51; ++i) {
        tree.Insert(i, 0, i, 0, i);
    }
    EXPECT_EQ(tree.NodesCount(), 3);
    EXPECT_DOUBLE_EQ(tree.SpaceUtilization(), 53.0 / 150);
    EXPECT_TRUE(tree.Find(0, 50, 0, 0, R2Tree::kOverlapping));
    EXPECT_EQ(tree.Accesses(), 3);
}

TEST(R2Tree, TakesTheWidestCoordinates) {
    constexpr std::int32_t low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();
    R2Tree tree;
    for (int i = 0; i < 60; ++i) {
        tree.Insert(low + i, low, high, high - i, i);
    }
    EXPECT_EQ(idsAt(tree, {low, low, 0, 0}, 2), Ids{0});
    EXPECT_EQ(idsAt(tree, {0, 0, 0, 0}, 2).size(), 60U);
}

}  // namespace
}  // namespace campora
