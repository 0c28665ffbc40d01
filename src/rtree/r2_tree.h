// Copyright (c) 2026 The Campora developers
// SPDX-License-Identifier: MIT

#pragma once

#include <cstddef>
#include <cstdint>
#include <memory>
#include <optional>
#include <stdexcept>
#include <vector>

#include "rtree/r_tree_functions.h"

namespace campora {

class R2Tree;
class R2TreeNode;

/// What a node refuses with; `code` is -1111 for an entry too many.
class R2TreeError : public std::length_error {
public:
    static constexpr int kNodeFull = -1111;

    explicit R2TreeError(int reason) : std::length_error("no room in the node"), code(reason) {}

    int code;
};

/// One slot of a node: a rectangle, closed on all sides, with a child node or a data item.
struct R2TreeEntry {
    std::int32_t ChildXMin = 0;
    std::int32_t ChildXMax = 0;
    std::int32_t ChildYMin = 0;
    std::int32_t ChildYMax = 0;
    /// None in a leaf.
    std::unique_ptr<R2TreeNode> ChildNode;
    /// The identifier given to `Insert`, in a leaf.
    std::int32_t ChildID = 0;
    /// In a leaf: whether one of the corners given to `Insert` had the least x and the least y.
    bool AscendingDiagonal = false;

    [[nodiscard]] Rectangle rectangle() const {
        return {ChildXMin, ChildXMax, ChildYMin, ChildYMax};
    }
    void setRectangle(const Rectangle& rectangle);
    [[nodiscard]] double Area() const { return rectangleArea(rectangle()); }
};

/// A page of the tree. Its rectangle covers its entries and means nothing while it has none.
class R2TreeNode {
public:
    explicit R2TreeNode(const R2Tree& tree) : Tree(&tree) {}

    /// Not owned; read for the capacities.
    const R2Tree* Tree;
    /// In the order in which they were added.
    std::vector<R2TreeEntry> Entries;
    std::int32_t MinX = 0;
    std::int32_t MaxX = 0;
    std::int32_t MinY = 0;
    std::int32_t MaxY = 0;
    /// None for the root; not owned.
    R2TreeNode* ParentNode = nullptr;

    /// The parent's entry for this node; none for the root. Holds until the parent next changes.
    [[nodiscard]] R2TreeEntry* ParentEntry() const;
    /// Appends the entry and widens the rectangle. A node may hold one entry over its maximum; for
    /// one more it throws `R2TreeError` and stays as it was.
    void AddEntry(R2TreeEntry entry);
    /// Whether the first entry has no child; an empty node is a leaf.
    [[nodiscard]] bool IsLeaf() const { return Entries.empty() || !Entries.front().ChildNode; }
    [[nodiscard]] bool IsRoot() const { return ParentNode == nullptr; }
    /// Steps up to the root.
    [[nodiscard]] int Level() const;
    [[nodiscard]] double Area() const { return rectangleArea(rectangle()); }
    [[nodiscard]] Rectangle rectangle() const { return {MinX, MaxX, MinY, MaxY}; }
    void setRectangle(const Rectangle& rectangle);

private:
    std::size_t parentSlot_ = 0;
};

/// What `Find` answers: entries in modes 1 and 2, leaves in the others. Neither is owned; both hold
/// until the tree next changes.
struct R2TreeFound {
    std::vector<const R2TreeEntry*> entries;
    std::vector<const R2TreeNode*> leaves;
};

/// Rectangles of whole numbers with a 32-bit identifier each, found by window (Guttman, "R-trees: a
/// dynamic index structure for spatial searching", 1984, with the quadratic split). The same
/// insertions always give the same tree and the same order of results. Nothing is ever removed.
class R2Tree {
public:
    /// How an entry must lie to the window, and what is answered.
    enum FindMode {
        kInside = 1,  ///< entries inside the window; 0 means the same
        kOverlapping = 2,
        kEqual = 3,  ///< the leaf of the first entry with the window's very rectangle
        kLeaves = 4  ///< the leaves that the search reaches
    };

    R2Tree();
    R2Tree(const R2Tree&) = delete;
    R2Tree& operator=(const R2Tree&) = delete;
    ~R2Tree();

    /// Most entries of a node, and the fewest after a split. They may be changed before the first
    /// insertion.
    std::uint8_t MaxNodeEntries = 50;
    std::uint8_t MinNodeEntries = 25;
    std::uint8_t MaxLeafEntries = 50;
    std::uint8_t MinLeafEntries = 25;

    /// The rectangle between two opposite corners, in any order.
    /// Throws `std::invalid_argument` when a capacity is 0.
    void Insert(std::int32_t x1, std::int32_t y1, std::int32_t x2, std::int32_t y2,
                std::int32_t id);

    /// What lies in the window between two opposite corners, in the order of the tree. Mind the
    /// order of the arguments: both x come first. None only when mode `kEqual` finds nothing.
    [[nodiscard]] std::optional<R2TreeFound> Find(std::int32_t x1, std::int32_t x2, std::int32_t y1,
                                                  std::int32_t y2, int mode) const;

    /// Levels below the root.
    [[nodiscard]] std::int32_t Height() const;
    /// Entries in all nodes divided by the room in all nodes.
    [[nodiscard]] double SpaceUtilization() const;
    [[nodiscard]] std::int32_t NodesCount() const;
    /// Items inserted.
    [[nodiscard]] std::int32_t EntriesCount() const;
    /// The rectangle of the whole; zeros while the tree is empty.
    [[nodiscard]] std::int32_t MinX() const { return root_->MinX; }
    [[nodiscard]] std::int32_t MaxX() const { return root_->MaxX; }
    [[nodiscard]] std::int32_t MinY() const { return root_->MinY; }
    [[nodiscard]] std::int32_t MaxY() const { return root_->MaxY; }
    /// Nodes touched by the last `Insert` or `Find`.
    [[nodiscard]] std::int32_t Accesses() const { return accesses_; }
    [[nodiscard]] const R2TreeNode& root() const { return *root_; }

private:
    [[nodiscard]] R2TreeNode& chooseLeaf(const Rectangle& rectangle);
    /// Splits what `node` holds and `extra` between `node` and a new node, which it hands back.
    [[nodiscard]] std::unique_ptr<R2TreeNode> splitNode(R2TreeNode& node, R2TreeEntry extra);
    /// From `node` up to the root; hands back the root's new sibling when the root was split.
    [[nodiscard]] std::unique_ptr<R2TreeNode> adjustTree(R2TreeNode& start,
                                                         std::unique_ptr<R2TreeNode> sibling);
    void growRoot(std::unique_ptr<R2TreeNode> sibling);
    void collectLeaves(const R2TreeNode& node, const Rectangle& window,
                       std::vector<const R2TreeNode*>& leaves) const;

    std::unique_ptr<R2TreeNode> root_;
    mutable std::int32_t accesses_ = 0;
};

}  // namespace campora
