// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "rtree/r2_tree.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <string>

#include <gtest/gtest.h>

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

/// The same tree without nodes that know their parents: every page is a list of pages, grown by
/// calling itself, and everything is computed anew wherever it is needed.
struct Page {
    Rectangle box;
    std::int32_t id = 0;
    std::vector<Page> children;  // none for an item
    bool leaf = true;            // whether the children are items
};

class SlowTree {
public:
    explicit SlowTree(std::size_t most, std::size_t fewest) : most_(most), fewest_(fewest) {}

    void insert(const Rectangle& box, std::int32_t id) {
        std::vector<Page> halves = insertInto(root_, Page{box, id, {}, true});
        if (halves.size() == 2) {
            root_ = Page{cover(halves), 0, halves, false};
        }
    }
    [[nodiscard]] Ids overlapping(const Rectangle& w) const {
        Ids ids;
        collect(root_, w, ids);
        return ids;
    }

private:
    static double area(const Rectangle& a) {
        return (double(a.yMax) - double(a.yMin)) * (double(a.xMax) - double(a.xMin));
    }
    static Rectangle cover(const std::vector<Page>& pages) {
        Rectangle box = pages.front().box;
        for (const Page& page : pages) {
            box = {std::min(box.xMin, page.box.xMin), std::max(box.xMax, page.box.xMax),
                   std::min(box.yMin, page.box.yMin), std::max(box.yMax, page.box.yMax)};
        }
        return box;
    }
    static double growth(const Rectangle& box, const Page& page) {
        return area(cover({Page{box, 0, {}, true}, page})) - area(box);
    }
    static bool meet(const Rectangle& a, const Rectangle& b) {
        return a.xMin <= b.xMax && b.xMin <= a.xMax && a.yMin <= b.yMax && b.yMin <= a.yMax;
    }

    std::vector<Page> insertInto(Page& page, const Page& item) {
        std::vector<Page> extra{item};
        if (!page.leaf) {
            std::size_t best = 0;
            for (std::size_t i = 0; i < page.children.size(); ++i) {
                const Rectangle& box = page.children[i].box;
                const Rectangle& bestBox = page.children[best].box;
                if (growth(box, item) < growth(bestBox, item) ||
                    (growth(box, item) == growth(bestBox, item) && area(box) <= area(bestBox))) {
                    best = i;
                }
            }
            std::vector<Page> halves = insertInto(page.children[best], item);
            if (halves.empty()) {
                page.box = cover(page.children);
                return {};
            }
            page.children[best] = halves[0];
            extra = {halves[1]};
        }
        page.children.push_back(extra[0]);
        page.box = cover(page.children);
        return page.children.size() > most_ ? split(page) : std::vector<Page>();
    }

    std::vector<Page> split(const Page& page) const {
        std::vector<Page> left = page.children;
        std::size_t a = 0;
        std::size_t b = 1;
        double most = 0;
        for (std::size_t i = 0; i < left.size(); ++i) {
            for (std::size_t j = i + 1; j < left.size(); ++j) {
                const double dead =
                    area(cover({left[i], left[j]})) - area(left[i].box) - area(left[j].box);
                if (dead > most) {
                    most = dead;
                    a = i;
                    b = j;
                }
            }
        }
        std::vector<Page> one{left[a]};
        std::vector<Page> two{left[b]};
        left.erase(left.begin() + long(b));
        left.erase(left.begin() + long(a));
        while (!left.empty()) {
            if (one.size() + left.size() == fewest_ || two.size() + left.size() == fewest_) {
                std::vector<Page>& poor = one.size() + left.size() == fewest_ ? one : two;
                poor.insert(poor.end(), left.begin(), left.end());
                break;
            }
            std::size_t next = 0;
            double preference = -1;
            for (std::size_t i = 0; i < left.size(); ++i) {
                const double d =
                    std::abs(growth(cover(one), left[i]) - growth(cover(two), left[i]));
                if (d >= preference) {
                    preference = d;
                    next = i;
                }
            }
            const double toOne = growth(cover(one), left[next]);
            const double toTwo = growth(cover(two), left[next]);
            const double areaOne = area(cover(one));
            const double areaTwo = area(cover(two));
            const bool first = toOne != toTwo       ? toOne < toTwo
                               : areaOne != areaTwo ? areaOne < areaTwo
                                                    : one.size() < two.size();
            (first ? one : two).push_back(left[next]);
            left.erase(left.begin() + long(next));
        }
        return {Page{cover(one), 0, one, page.leaf}, Page{cover(two), 0, two, page.leaf}};
    }

    static void collect(const Page& page, const Rectangle& w, Ids& ids) {
        for (const Page& child : page.children) {
            if (meet(child.box, w)) {
                if (page.leaf) {
                    ids.push_back(child.id);
                } else {
                    collect(child, w, ids);
                }
            }
        }
    }

    std::size_t most_;
    std::size_t fewest_;
    Page root_;
};

struct Kind {
    const char* name;
    int span;  // of the corners
    int side;  // longest side
    int grid;  // corners are multiples of this
    std::uint8_t most;
    std::uint8_t fewest;
    int items;
};

Rectangle randomRectangle(std::mt19937& random, const Kind& kind) {
    const auto below = [&](int limit) { return static_cast<int>(random() % unsigned(limit)); };
    const int x = (below(kind.span) - kind.span / 2) / kind.grid * kind.grid;
    const int y = (below(kind.span) - kind.span / 2) / kind.grid * kind.grid;
    return {x, x + below(kind.side) / kind.grid * kind.grid, y,
            y + below(kind.side) / kind.grid * kind.grid};
}

TEST(R2Tree, FindsInTheOrderOfASlowTwin) {
    const Kind kinds[] = {
        {"zones apart", 1'000'000'000, 9'000'000, 1, 50, 25, 3000},
        {"zones that overlap", 1'000'000, 300'000, 1, 50, 25, 2000},
        {"a grid, with many ties", 3000, 300, 100, 50, 25, 2000},
        {"points", 40, 1, 1, 50, 25, 1500},
        {"narrow nodes", 1'000'000, 200'000, 1, 4, 2, 800},
        {"nodes of one", 1'000'000, 200'000, 1, 1, 1, 12},
    };
    std::mt19937 random(5101);
    for (const Kind& kind : kinds) {
        SCOPED_TRACE(kind.name);
        R2Tree tree;
        tree.MaxNodeEntries = tree.MaxLeafEntries = kind.most;
        tree.MinNodeEntries = tree.MinLeafEntries = kind.fewest;
        SlowTree twin(kind.most, kind.fewest);
        for (int id = 0; id < kind.items; ++id) {
            const Rectangle r = randomRectangle(random, kind);
            tree.Insert(r.xMin, r.yMax, r.xMax, r.yMin, id);
            twin.insert(r, id);
        }
        ASSERT_EQ(tree.EntriesCount(), kind.items);
        std::size_t found = 0;
        for (int i = 0; i < 300; ++i) {
            Rectangle w = randomRectangle(random, kind);
            if (i % 2 == 0) {
                w = {w.xMin, w.xMin, w.yMin, w.yMin};
            }
            const Ids ids = idsAt(tree, w, R2Tree::kOverlapping);
            ASSERT_EQ(ids, twin.overlapping(w)) << i;
            found += ids.size();
        }
        EXPECT_GT(found, 0U);
    }
}

/// Depth of the leaves below the node, -1 when a promise about the nodes is broken.
int checkedHeight(const R2TreeNode& node, bool isRoot) {
    const std::size_t fewest =
        node.IsLeaf() ? node.Tree->MinLeafEntries : node.Tree->MinNodeEntries;
    EXPECT_TRUE(isRoot || node.Entries.size() >= fewest);
    int height = 0;
    for (const R2TreeEntry& entry : node.Entries) {
        EXPECT_TRUE(rectangleInside(node.rectangle(), entry.rectangle()));
        if (entry.ChildNode) {
            EXPECT_EQ(entry.ChildNode->ParentEntry(), &entry);
            EXPECT_EQ(entry.ChildNode->Level(), node.Level() + 1);
            EXPECT_EQ(entry.rectangle(), entry.ChildNode->rectangle());
            const int below = checkedHeight(*entry.ChildNode, false) + 1;
            EXPECT_TRUE(height == 0 || height == below) << "leaves of one depth";
            height = below;
        }
    }
    return height;
}

TEST(R2Tree, StaysBalanced) {
    const Kind kind{"", 1'000'000, 50'000, 1, 50, 25, 0};
    std::mt19937 random(7);
    R2Tree tree;
    for (int id = 0; id < 5000; ++id) {
        const Rectangle r = randomRectangle(random, kind);
        tree.Insert(r.xMin, r.yMin, r.xMax, r.yMax, id);
    }
    EXPECT_EQ(checkedHeight(tree.root(), true), tree.Height());
    EXPECT_EQ(tree.Height(), 2);
    EXPECT_GE(tree.SpaceUtilization(), 0.5);
    EXPECT_LE(tree.SpaceUtilization(), 1);
}

TEST(R2Tree, SplitsAtTheFiftyFirst) {
    R2Tree tree;
    EXPECT_EQ(tree.NodesCount(), 1);
    for (int i = 0; i < 50; ++i) {
        tree.Insert(10 * i, 0, 10 * i + 5, 5, i);
    }
    EXPECT_EQ(tree.Height(), 0);
    EXPECT_EQ(tree.NodesCount(), 1);
    EXPECT_EQ(tree.SpaceUtilization(), 1);
    tree.Insert(500, 0, 505, 5, 50);
    EXPECT_EQ(tree.Accesses(), 4) << "two halves, a root, and the root taking its place";
    EXPECT_EQ(tree.Height(), 1);
    EXPECT_EQ(tree.NodesCount(), 3);
    EXPECT_EQ(tree.EntriesCount(), 51);
    EXPECT_DOUBLE_EQ(tree.SpaceUtilization(), 53.0 / 150);
    checkedHeight(tree.root(), true);
    EXPECT_EQ(tree.MinX(), 0);
    EXPECT_EQ(tree.MaxX(), 505);
    EXPECT_EQ(tree.MinY(), 0);
    EXPECT_EQ(tree.MaxY(), 5);
    EXPECT_EQ(idsAt(tree, {505, 505, 5, 5}, 2), Ids{50});
    EXPECT_EQ(tree.Accesses(), 2);
}

TEST(R2Tree, KeepsTheDirectionOfTheDiagonal) {
    const struct Row {
        const char* name;
        std::int32_t x1, y1, x2, y2;
        bool ascending;
    } rows[] = {
        {"from lower left", 1, 2, 3, 4, true},
        {"from upper right", 3, 4, 1, 2, true},
        {"from upper left", 1, 4, 3, 2, false},
        {"from lower right", 3, 2, 1, 4, false},
        {"level", 1, 2, 3, 2, true},
        {"a point", 1, 2, 1, 2, true},
    };
    for (const Row& row : rows) {
        SCOPED_TRACE(row.name);
        R2Tree tree;
        tree.Insert(row.x1, row.y1, row.x2, row.y2, 9);
        const R2TreeEntry& entry = tree.root().Entries.at(0);
        EXPECT_EQ(entry.rectangle(),
                  (Rectangle{1, std::max(row.x1, row.x2), 2, std::max(row.y1, row.y2)}));
        EXPECT_EQ(entry.AscendingDiagonal, row.ascending);
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
    EXPECT_EQ(tree.Find(2, 4, 2, 4, 3)->leaves, (std::vector{&tree.root()}));
    EXPECT_EQ(tree.Find(90, 91, 90, 91, 4)->leaves, (std::vector{&tree.root()}));
    EXPECT_FALSE(R2Tree().Find(0, 0, 0, 0, 3));
}

TEST(R2Tree, TakesTheWidestCoordinates) {
    constexpr std::int32_t low = std::numeric_limits<std::int32_t>::min();
    constexpr std::int32_t high = std::numeric_limits<std::int32_t>::max();
    R2Tree tree;
    for (int i = 0; i < 60; ++i) {
        tree.Insert(low + i, low, high, high - i, i);
    }
    EXPECT_EQ(tree.Height(), 1);
    EXPECT_EQ(idsAt(tree, {low, low, 0, 0}, 2), Ids{0});
    EXPECT_EQ(idsAt(tree, {0, 0, 0, 0}, 2).size(), 60U);
}

TEST(R2Tree, SplitsWhatWastesNoArea) {
    R2Tree tree;
    for (int i = 0; i < 51; ++i) {
        tree.Insert(7, 7, 7, 7, i);
    }
    EXPECT_EQ(tree.NodesCount(), 3);
    checkedHeight(tree.root(), true);
    EXPECT_EQ(idsAt(tree, {7, 7, 7, 7}, 2).size(), 51U);
}

TEST(R2TreeNode, RefusesTwoEntriesOverItsMaximum) {
    R2Tree tree;
    tree.MaxLeafEntries = 3;
    R2TreeNode node(tree);
    for (int i = 0; i < 4; ++i) {
        R2TreeEntry entry;
        entry.setRectangle({i, i + 1, -i, i});
        node.AddEntry(std::move(entry));
    }
    EXPECT_EQ(node.rectangle(), (Rectangle{0, 4, -3, 3}));
    R2TreeEntry beyond;
    beyond.setRectangle({100, 100, 100, 100});
    try {
        node.AddEntry(std::move(beyond));
        ADD_FAILURE() << "taken";
    } catch (const R2TreeError& error) {
        EXPECT_EQ(error.code, -1111);
    }
    EXPECT_EQ(node.Entries.size(), 4U);
    EXPECT_EQ(node.MaxX, 4);

    R2Tree roomless;
    roomless.MaxLeafEntries = 0;
    EXPECT_THROW(roomless.Insert(0, 0, 1, 1, 0), std::invalid_argument);
}

}  // namespace

}  // namespace campora
