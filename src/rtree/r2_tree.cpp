// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#include "rtree/r2_tree.h"

#include <algorithm>
#include <cmath>
#include <utility>

namespace campora {

namespace {

struct Seeds {
    std::size_t first = 0;
    std::size_t second = 1;
};

/// The pair that wastes most area together; the first two when no pair wastes any.
Seeds pickSeeds(const std::vector<R2TreeEntry>& entries) {
    std::vector<double> areas;
    areas.reserve(entries.size());
    for (const R2TreeEntry& entry : entries) {
        areas.push_back(entry.Area());
    }
    Seeds seeds;
    double most = 0;
    for (std::size_t i = 0; i + 1 < entries.size(); ++i) {
        const Rectangle rectangle = entries[i].rectangle();
        for (std::size_t j = i + 1; j < entries.size(); ++j) {
            const Rectangle both = covering(rectangle, entries[j].rectangle());
            const double dead = rectangleArea(both) - areas[i] - areas[j];
            if (dead > most) {
                most = dead;
                seeds = {i, j};
            }
        }
    }
    return seeds;
}

/// The entry that prefers one of the two nodes most; the last of equal ones.
std::size_t pickNext(const std::vector<R2TreeEntry>& entries, const R2TreeNode& a,
                     const R2TreeNode& b) {
    const Rectangle inA = a.rectangle();
    const Rectangle inB = b.rectangle();
    std::size_t next = 0;
    double most = 0;
    for (std::size_t i = 0; i < entries.size(); ++i) {
        const Rectangle rectangle = entries[i].rectangle();
        const double preference =
            std::abs(enlargement(inA, rectangle) - enlargement(inB, rectangle));
        if (preference >= most) {
            most = preference;
            next = i;
        }
    }
    return next;
}

R2TreeNode& preferredNode(const Rectangle& rectangle, R2TreeNode& a, R2TreeNode& b) {
    const double growthA = enlargement(a.rectangle(), rectangle);
    const double growthB = enlargement(b.rectangle(), rectangle);
    if (growthA != growthB) {
        return growthA < growthB ? a : b;
    }
    if (a.Area() != b.Area()) {
        return a.Area() < b.Area() ? a : b;
    }
    return a.Entries.size() < b.Entries.size() ? a : b;
}

R2TreeEntry taken(std::vector<R2TreeEntry>& entries, std::size_t index) {
    const auto at = entries.begin() + static_cast<std::ptrdiff_t>(index);
    R2TreeEntry entry = std::move(*at);
    entries.erase(at);
    return entry;
}

void giveAll(std::vector<R2TreeEntry>& entries, R2TreeNode& node) {
    for (R2TreeEntry& entry : entries) {
        node.AddEntry(std::move(entry));
    }
}

void distribute(std::vector<R2TreeEntry>& entries, R2TreeNode& a, R2TreeNode& b) {
    const std::size_t fewest = a.IsLeaf() ? a.Tree->MinLeafEntries : a.Tree->MinNodeEntries;
    while (!entries.empty()) {
        if (a.Entries.size() + entries.size() == fewest) {
            giveAll(entries, a);
            return;
        }
        if (b.Entries.size() + entries.size() == fewest) {
            giveAll(entries, b);
            return;
        }
        R2TreeEntry next = taken(entries, pickNext(entries, a, b));
        R2TreeNode& node = preferredNode(next.rectangle(), a, b);
        node.AddEntry(std::move(next));
    }
}

R2TreeEntry entryOf(std::unique_ptr<R2TreeNode> node) {
    R2TreeEntry entry;
    entry.setRectangle(node->rectangle());
    entry.ChildNode = std::move(node);
    return entry;
}

struct Totals {
    std::int64_t nodes = 0;
    std::int64_t entries = 0;  // inner ones included
    std::int64_t items = 0;
    std::int64_t room = 0;
};

// NOLINTNEXTLINE(misc-no-recursion): as deep as the tree is high, a handful of levels
void count(const R2TreeNode& node, Totals& totals) {
    const auto entries = static_cast<std::int64_t>(node.Entries.size());
    ++totals.nodes;
    totals.entries += entries;
    if (node.IsLeaf()) {
        totals.items += entries;
        totals.room += node.Tree->MaxLeafEntries;
        return;
    }
    totals.room += node.Tree->MaxNodeEntries;
    for (const R2TreeEntry& entry : node.Entries) {
        count(*entry.ChildNode, totals);
    }
}

}  // namespace

void R2TreeEntry::setRectangle(const Rectangle& rectangle) {
    ChildXMin = rectangle.xMin;
    ChildXMax = rectangle.xMax;
    ChildYMin = rectangle.yMin;
    ChildYMax = rectangle.yMax;
}

R2TreeEntry* R2TreeNode::ParentEntry() const {
    return ParentNode == nullptr ? nullptr : &ParentNode->Entries[parentSlot_];
}

void R2TreeNode::setRectangle(const Rectangle& rectangle) {
    MinX = rectangle.xMin;
    MaxX = rectangle.xMax;
    MinY = rectangle.yMin;
    MaxY = rectangle.yMax;
}

void R2TreeNode::AddEntry(R2TreeEntry entry) {
    if (Entries.size() > (IsLeaf() ? Tree->MaxLeafEntries : Tree->MaxNodeEntries)) {
        throw R2TreeError(R2TreeError::kNodeFull);
    }
    if (entry.ChildNode) {
        entry.ChildNode->ParentNode = this;
        entry.ChildNode->parentSlot_ = Entries.size();
    }
    const Rectangle added = entry.rectangle();
    setRectangle(Entries.empty() ? added : covering(rectangle(), added));
    Entries.push_back(std::move(entry));
}

int R2TreeNode::Level() const {
    int level = 0;
    for (const R2TreeNode* node = ParentNode; node != nullptr; node = node->ParentNode) {
        ++level;
    }
    return level;
}

R2Tree::R2Tree() : root_(std::make_unique<R2TreeNode>(*this)) {}

R2Tree::~R2Tree() = default;

void R2Tree::Insert(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                    std::int32_t id) {
    if (MaxNodeEntries == 0 || MaxLeafEntries == 0) {
        throw std::invalid_argument("a node must have room");
    }
    const Rectangle rectangle{std::min(x1, x2), std::max(x1, x2), std::min(y1, y2),
                              std::max(y1, y2)};
    accesses_ = 0;
    R2TreeNode& leaf = chooseLeaf(rectangle);
    R2TreeEntry entry;
    entry.setRectangle(rectangle);
    entry.ChildID = id;
    entry.AscendingDiagonal = (rectangle.xMin == x1 && rectangle.yMin == y1) ||
                              (rectangle.xMin == x2 && rectangle.yMin == y2);
    std::unique_ptr<R2TreeNode> sibling;
    if (leaf.Entries.size() < MaxLeafEntries) {
        leaf.AddEntry(std::move(entry));
    } else {
        sibling = splitNode(leaf, std::move(entry));
    }
    sibling = adjustTree(leaf, std::move(sibling));
    if (sibling) {
        growRoot(std::move(sibling));
    }
}

R2TreeNode& R2Tree::chooseLeaf(const Rectangle& rectangle) {
    R2TreeNode* node = root_.get();
    while (!node->IsLeaf()) {
        const R2TreeEntry* best = &node->Entries.front();
        double bestGrowth = enlargement(best->rectangle(), rectangle);
        double bestArea = best->Area();
        for (const R2TreeEntry& entry : node->Entries) {
            const double growth = enlargement(entry.rectangle(), rectangle);
            const double area = entry.Area();
            if (growth < bestGrowth || (growth == bestGrowth && area <= bestArea)) {
                best = &entry;
                bestGrowth = growth;
                bestArea = area;
            }
        }
        node = best->ChildNode.get();
        ++accesses_;
    }
    return *node;
}

std::unique_ptr<R2TreeNode> R2Tree::splitNode(R2TreeNode& node, R2TreeEntry extra) {
    std::vector<R2TreeEntry> entries = std::exchange(node.Entries, {});
    entries.push_back(std::move(extra));
    const Seeds seeds = pickSeeds(entries);
    // The node takes the place of the first of the two new ones: its parent need not know.
    auto sibling = std::make_unique<R2TreeNode>(*this);
    accesses_ += 2;
    R2TreeEntry second = taken(entries, seeds.second);
    node.AddEntry(taken(entries, seeds.first));
    sibling->AddEntry(std::move(second));
    distribute(entries, node, *sibling);
    return sibling;
}

std::unique_ptr<R2TreeNode> R2Tree::adjustTree(R2TreeNode& start,
                                               std::unique_ptr<R2TreeNode> sibling) {
    R2TreeNode* node = &start;
    while (!node->IsRoot()) {
        R2TreeNode& parent = *node->ParentNode;
        node->ParentEntry()->setRectangle(node->rectangle());
        parent.setRectangle(covering(parent.rectangle(), node->rectangle()));
        if (sibling) {
            R2TreeEntry entry = entryOf(std::exchange(sibling, nullptr));
            if (parent.Entries.size() < MaxNodeEntries) {
                parent.AddEntry(std::move(entry));
            } else {
                sibling = splitNode(parent, std::move(entry));
            }
        }
        node = &parent;
    }
    return sibling;
}

void R2Tree::growRoot(std::unique_ptr<R2TreeNode> sibling) {
    auto root = std::make_unique<R2TreeNode>(*this);
    root->AddEntry(entryOf(std::move(root_)));
    root->AddEntry(entryOf(std::move(sibling)));
    root_ = std::move(root);
    accesses_ += 2;
}

std::optional<R2TreeFound> R2Tree::Find(std::int32_t x1, std::int32_t x2, std::int32_t y1,
                                        std::int32_t y2, int mode) const {
    const Rectangle window{std::min(x1, x2), std::max(x1, x2), std::min(y1, y2), std::max(y1, y2)};
    accesses_ = 0;
    R2TreeFound found;
    std::vector<const R2TreeNode*> leaves;
    collectLeaves(*root_, window, leaves);
    if (mode == kLeaves) {
        found.leaves = std::move(leaves);
        return found;
    }
    const bool inside = mode == 0 || mode == kInside;
    const bool overlapping = mode == kOverlapping;
    for (const R2TreeNode* leaf : leaves) {
        for (const R2TreeEntry& entry : leaf->Entries) {
            const Rectangle rectangle = entry.rectangle();
            if (inside ? rectangleInside(window, rectangle)
                       : overlapping && rectangleOverlap(window, rectangle)) {
                found.entries.push_back(&entry);
            } else if (!inside && !overlapping && rectangle == window) {
                found.leaves.push_back(leaf);
                return found;
            }
        }
    }
    if (inside || overlapping) {
        return found;
    }
    return std::nullopt;
}

// NOLINTNEXTLINE(misc-no-recursion): as deep as the tree is high, a handful of levels
void R2Tree::collectLeaves(const R2TreeNode& node, const Rectangle& window,
                           std::vector<const R2TreeNode*>& leaves) const {
    ++accesses_;
    if (node.IsLeaf()) {
        leaves.push_back(&node);
        return;
    }
    for (const R2TreeEntry& entry : node.Entries) {
        if (rectangleOverlap(window, entry.rectangle())) {
            collectLeaves(*entry.ChildNode, window, leaves);
        }
    }
}

std::int32_t R2Tree::Height() const {
    std::int32_t levels = 0;
    for (const R2TreeNode* node = root_.get(); !node->IsLeaf();
         node = node->Entries.front().ChildNode.get()) {
        ++levels;
    }
    return levels;
}

double R2Tree::SpaceUtilization() const {
    Totals totals;
    count(*root_, totals);
    return static_cast<double>(totals.entries) / static_cast<double>(totals.room);
}

std::int32_t R2Tree::NodesCount() const {
    Totals totals;
    count(*root_, totals);
    return static_cast<std::int32_t>(totals.nodes);
}

std::int32_t R2Tree::EntriesCount() const {
    Totals totals;
    count(*root_, totals);
    return static_cast<std::int32_t>(totals.items);
}

}  // namespace campora
