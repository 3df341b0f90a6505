// A sequence tree beside the plainest thing that does the same, and what must hold of a tree.
#pragma once

#include "hierlist/seqtree.h"

#include <algorithm>
#include <cstddef>
#include <cstdint>
#include <string>
#include <vector>

namespace vorn::hierlist::test {

using Order = std::vector<OlbSeqNode*>;

// What a node stands for; never looked into.
inline OlbItem* ItemOf(OlbSeqNode* node) {
    return reinterpret_cast<OlbItem*>(node);
}

// Walks a tree by its child links alone and notes the first thing that is wrong with it.
class Walker {
public:
    std::string fault;
    Order inOrder;

    struct Extent {
        std::uint32_t count;
        int height;
    };

    Extent Walk(OlbSeqNode* node, int depth) {
        if (depth > kSeqMaxDepth) {
            Note("too deep", inOrder.size());
            return {0, 0};
        }
        Extent left{0, 0};
        Extent right{0, 0};
        if (node->hasLeft != 0) {
            left = Walk(node->left, depth + 1);
        }
        const std::size_t position = inOrder.size();
        inOrder.push_back(node);
        if (node->hasRight != 0) {
            right = Walk(node->right, depth + 1);
        }
        const int height = 1 + std::max(left.height, right.height);
        if (node->hasLeft > 1 || node->hasRight > 1) {
            Note("flag", position);
        }
        if (node->leftCount != left.count) {
            Note("left count", position);
        }
        if (node->height != height) {
            Note("height", position);
        }
        if (left.height - right.height > 1 || right.height - left.height > 1) {
            Note("balance", position);
        }
        if (node->item != ItemOf(node)) {
            Note("item", position);
        }
        return {left.count + 1 + right.count, height};
    }

    void Note(const char* what, std::size_t position) {
        if (fault.empty()) {
            fault = std::string(what) + " of the node at " + std::to_string(position);
        }
    }
};

// The first fault of the tree that should hold these nodes in this order, empty when it is whole:
// shape, counts, heights, threads, and both ways between position and node.
inline std::string FaultOf(OlbSeqNode* root, const Order& order) {
    const auto count = static_cast<std::uint32_t>(order.size());
    if ((root == nullptr) != order.empty() || SeqCount(root) != count) {
        return "number of nodes";
    }
    if (SeqAt(root, count) != nullptr || SeqAt(root, 0xFFFFFFFF) != nullptr) {
        return "a node past the end";
    }
    if (root == nullptr) {
        return SeqFirst(root) != nullptr || SeqLast(root) != nullptr ? "ends of nothing" : "";
    }
    Walker walker;
    walker.Walk(root, 1);
    if (!walker.fault.empty()) {
        return walker.fault;
    }
    if (walker.inOrder != order) {
        return "order";
    }
    if (SeqFirst(root) != order.front() || SeqLast(root) != order.back()) {
        return "ends";
    }
    for (std::uint32_t i = 0; i < count; ++i) {
        OlbSeqNode* node = order[i];
        OlbSeqNode* previous = i == 0 ? nullptr : order[i - 1];
        OlbSeqNode* next = i + 1 == count ? nullptr : order[i + 1];
        if (node->hasLeft == 0 && node->left != previous) {
            walker.Note("left thread", i);
        }
        if (node->hasRight == 0 && node->right != next) {
            walker.Note("right thread", i);
        }
        if (SeqPrevious(node) != previous || SeqNext(node) != next) {
            walker.Note("neighbours", i);
        }
        if (SeqPosition(node) != i || SeqAt(root, i) != node) {
            walker.Note("position", i);
        }
        if (SeqRoot(node) != root) {
            walker.Note("root", i);
        }
    }
    return walker.fault;
}

// A tree and the order that it should have. `after` is a position or kSeqFront, `first` and `last`
// are any numbers, as in the functions themselves.
struct Pair {
    OlbSeqNode* root = nullptr;
    Order order;

    void Insert(std::uint32_t after, OlbSeqNode* node) {
        node->item = ItemOf(node);
        SeqInsert(root, after, node);
        order.insert(order.begin() + Behind(after), node);
    }

    Pair Cut(std::uint32_t first, std::uint32_t last) {
        Pair run;
        run.root = SeqCut(root, first, last);
        if (first <= last && first < order.size()) {
            const auto end = std::min<std::size_t>(last, order.size() - 1) + 1;
            const auto from = order.begin() + first;
            const auto to = order.begin() + static_cast<std::ptrdiff_t>(end);
            run.order.assign(from, to);
            order.erase(from, to);
        }
        return run;
    }

    void Splice(std::uint32_t after, Pair& run) {
        SeqSplice(root, after, run.root);
        order.insert(order.begin() + Behind(after), run.order.begin(), run.order.end());
        run = {};
    }

    std::string Fault() const { return FaultOf(root, order); }

private:
    std::ptrdiff_t Behind(std::uint32_t after) const {
        if (after == kSeqFront) {
            return 0;
        }
        return static_cast<std::ptrdiff_t>(std::min<std::size_t>(after + 1, order.size()));
    }
};

} // namespace vorn::hierlist::test
