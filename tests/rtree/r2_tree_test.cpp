// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "rtree/r2_tree.h"

#include <algorithm>
#include <cmath>
#include <limits>
#include <random>
#include <tuple>
#include <utility>

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

/// The same tree written down at once: a page is a list of pages that are copied and measured anew
/// whenever they are needed.
struct Page {
    Rectangle box;
    std::int32_t id = 0;
    bool leaf = true;  // whether the children are items
    std::vector<Page> children = {};
};
using Pages = std::vector<Page>;

double area(const Rectangle& a) {
    return (double(a.yMax) - double(a.yMin)) * (double(a.xMax) - double(a.xMin));
}
Rectangle cover(const Pages& pages) {
    Rectangle box = pages.front().box;
    for (const Page& page : pages) {
        box = {std::min(box.xMin, page.box.xMin), std::max(box.xMax, page.box.xMax),
               std::min(box.yMin, page.box.yMin), std::max(box.yMax, page.box.yMax)};
    }
    return box;
}
double growth(const Rectangle& box, const Page& page) {
    return area(cover({Page{box}, page})) - area(box);
}
Page takeFrom(Pages& pages, std::size_t at) {
    const Page page = pages[at];
    pages.erase(pages.begin() + long(at));
    return page;
}

Pages split(const Page& page, std::size_t fewest) {
    Pages left = page.children;
    std::pair<std::size_t, std::size_t> seeds{0, 1};
    double most = 0;
    for (std::size_t i = 0; i < left.size(); ++i) {
        for (std::size_t j = i + 1; j < left.size(); ++j) {
            const double dead =
                area(cover({left[i], left[j]})) - area(left[i].box) - area(left[j].box);
            seeds = dead > most ? std::pair(i, j) : seeds;
            most = std::max(most, dead);
        }
    }
    Pages two{takeFrom(left, seeds.second)};
    Pages one{takeFrom(left, seeds.first)};
    while (!left.empty()) {
        if (one.size() + left.size() == fewest || two.size() + left.size() == fewest) {
            Pages& poor = one.size() + left.size() == fewest ? one : two;
            poor.insert(poor.end(), left.begin(), left.end());
            break;
        }
        std::size_t next = 0;
        for (std::size_t i = 0; i < left.size(); ++i) {
            const auto preference = [&](std::size_t at) {
                return std::abs(growth(cover(one), left[at]) - growth(cover(two), left[at]));
            };
            next = preference(i) >= preference(next) ? i : next;
        }
        const Page page1 = takeFrom(left, next);
        const auto rank = [&](const Pages& pages) {
            return std::tuple(growth(cover(pages), page1), area(cover(pages)), pages.size());
        };
        (rank(one) < rank(two) ? one : two).push_back(page1);
    }
    return {Page{cover(one), 0, page.leaf, one}, Page{cover(two), 0, page.leaf, two}};
}

/// The halves of the page when it was split.
Pages insertInto(Page& page, const Page& item, std::size_t most, std::size_t fewest) {
    if (page.leaf) {
        page.children.push_back(item);
    } else {
        Page* best = &page.children.front();
        for (Page& child : page.children) {
            const auto rank = [&](const Page& p) {
                return std::pair(growth(p.box, item), area(p.box));
            };
            best = rank(child) <= rank(*best) ? &child : best;
        }
        const Pages halves = insertInto(*best, item, most, fewest);
        if (!halves.empty()) {
            *best = halves[0];
            page.children.push_back(halves[1]);
        }
    }
    page.box = cover(page.children);
    return page.children.size() > most ? split(page, fewest) : Pages();
}

void collect(const Page& page, const Rectangle& w, Ids& ids) {
    for (const Page& child : page.children) {
        const Rectangle& box = child.box;
        if (box.xMin <= w.xMax && w.xMin <= box.xMax && box.yMin <= w.yMax && w.yMin <= box.yMax) {
            if (page.leaf) {
                ids.push_back(child.id);
            } else {
                collect(child, w, ids);
            }
        }
    }
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
};

TEST(R2Tree, FindsInTheOrderOfASlowTwin) {
    const Crowd rows[] = {
        {"zones apart", 1'000'000'000, 9'000'000, 1, 50, 25, 3000},
        {"zones that overlap", 1'000'000, 300'000, 1, 50, 25, 2000},
        {"a grid, with many ties", 3000, 300, 100, 50, 25, 2000},
        {"points", 40, 1, 1, 50, 25, 1500},
        {"one place", 1, 1, 1, 50, 25, 300},
        {"narrow nodes", 1'000'000, 200'000, 1, 4, 2, 800},
        {"nodes of one", 1'000'000, 200'000, 1, 1, 1, 12},
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
        Page twin;
        for (int id = 0; id < row.items; ++id) {
            const Rectangle r = rectangle();
            tree.Insert(r.xMin, r.yMax, r.xMax, r.yMin, id);
            const Pages halves = insertInto(twin, Page{r, id}, row.most, row.fewest);
            twin = halves.empty() ? twin : Page{cover(halves), 0, false, halves};
        }
        ASSERT_EQ(tree.EntriesCount(), row.items);
        EXPECT_EQ(checkedHeight(tree.root()), tree.Height());
        std::size_t found = 0;
        for (int i = 0; i < 300; ++i) {
            Rectangle w = rectangle();
            w = i % 2 == 0 ? Rectangle{w.xMin, w.xMin, w.yMin, w.yMin} : w;
            Ids expected;
            collect(twin, w, expected);
            ASSERT_EQ(idsAt(tree, w, R2Tree::kOverlapping), expected) << i;
            found += expected.size();
        }
        EXPECT_GT(found, 0U);
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
