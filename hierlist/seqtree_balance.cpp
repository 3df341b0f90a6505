#include "hierlist/seqtree_balance.h"

#include <algorithm>

namespace vorn::hierlist {
namespace {

// The fewest nodes that a tree of this height has: a root, one subtree of the height below and one
// lower still.
constexpr std::uint64_t FewestNodes(int height) {
    std::uint64_t lower = 0;
    std::uint64_t fewest = height == 0 ? 0 : 1;
    for (int level = 2; level <= height; ++level) {
        const std::uint64_t next = fewest + lower + 1;
        lower = fewest;
        fewest = next;
    }
    return fewest;
}

// A tree that were deeper would not fit into 32 bits: of memory, or of count.
constexpr std::uint64_t kLeastRoom = sizeof(void*) == 4 ? sizeof(OlbSeqNode) : 1;
static_assert(FewestNodes(kSeqMaxDepth + 1) * kLeastRoom > std::uint64_t{1} << 32);

OlbSeqNode* RotatedLeft(OlbSeqNode* node) {
    OlbSeqNode* top = node->right;
    if (top->hasLeft != 0) {
        node->right = top->left;
    } else {
        SetRightThread(node, top);
    }
    SetLeftChild(top, node);
    top->leftCount += node->leftCount + 1;
    UpdateHeight(node);
    UpdateHeight(top);
    return top;
}

OlbSeqNode* RotatedRight(OlbSeqNode* node) {
    OlbSeqNode* top = node->left;
    if (top->hasRight != 0) {
        node->left = top->right;
    } else {
        SetLeftThread(node, top);
    }
    SetRightChild(top, node);
    node->leftCount -= top->leftCount + 1;
    UpdateHeight(node);
    UpdateHeight(top);
    return top;
}

// Balances a node whose subtrees are balanced and differ in height by 2 at most. Returns the node
// that now stands in its place.
OlbSeqNode* Balanced(OlbSeqNode* node) {
    OlbSeqNode* left = LeftChild(node);
    OlbSeqNode* right = RightChild(node);
    const int lean = SeqHeight(right) - SeqHeight(left);
    if (lean > 1) {
        if (SeqHeight(LeftChild(right)) > SeqHeight(RightChild(right))) {
            node->right = RotatedRight(right);
        }
        return RotatedLeft(node);
    }
    if (lean < -1) {
        if (SeqHeight(RightChild(left)) > SeqHeight(LeftChild(left))) {
            node->left = RotatedLeft(left);
        }
        return RotatedRight(node);
    }
    UpdateHeight(node);
    return node;
}

void ReplaceChild(OlbSeqNode* parent, const OlbSeqNode* child, OlbSeqNode* by) {
    if (LeftChild(parent) == child) {
        parent->left = by;
    } else {
        parent->right = by;
    }
}

} // namespace

void UpdateHeight(OlbSeqNode* node) {
    const int below = std::max(SeqHeight(LeftChild(node)), SeqHeight(RightChild(node)));
    node->height = static_cast<std::uint8_t>(below + 1);
}

OlbSeqNode* RebalancePath(const SeqPath& path) {
    for (int at = path.depth - 1;; --at) {
        OlbSeqNode* node = path.nodes[at];
        const int height = node->height;
        OlbSeqNode* top = Balanced(node);
        if (at == 0) {
            return top;
        }
        if (top != node) {
            ReplaceChild(path.nodes[at - 1], node, top);
        }
        if (top->height == height) {
            return path.nodes[0]; // what is above sees no difference
        }
    }
}

} // namespace vorn::hierlist
