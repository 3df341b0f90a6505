// The sequence tree: rows in order, found by position and cut and spliced in runs. The visible rows
// of an outline are one such tree, the children of each closed parent another.
//
// A tree is known by its root, null when it is empty. Nodes belong to the caller: nothing here
// allocates or frees, a node stays at its address for life, and only its links change. Every change
// and every look-up by position touches a number of nodes that grows with the logarithm of the
// tree's size.
#pragma once

#include <cstdint>

namespace vorn::hierlist {

struct OlbItem;

// A link without a child is a thread: it leads to the neighbour in order, or is null at the end.
struct OlbSeqNode {
    std::uint8_t hasLeft;  // 1: left is a child, 0: the predecessor
    std::uint8_t hasRight; // 1: right is a child, 0: the successor
    std::uint8_t height;   // nodes on the longest way down from here, itself included
    OlbSeqNode* left;
    OlbSeqNode* right;
    std::uint32_t leftCount; // nodes in the left subtree
    OlbItem* item;
};
static_assert(sizeof(void*) != 4 || sizeof(OlbSeqNode) == 20);

// Before the first node, as a position to insert or splice after.
constexpr std::uint32_t kSeqFront = 0xFFFFFFFF;

// The nodes on the longest way down a tree are at most this many: with 32-bit addresses because
// memory ends, otherwise because counts do.
constexpr int kSeqMaxDepth = sizeof(void*) == 4 ? 39 : 45;

inline OlbSeqNode* LeftChild(const OlbSeqNode* node) {
    return node->hasLeft != 0 ? node->left : nullptr;
}

inline OlbSeqNode* RightChild(const OlbSeqNode* node) {
    return node->hasRight != 0 ? node->right : nullptr;
}

// The number of nodes.
std::uint32_t SeqCount(const OlbSeqNode* root);

// The node at a 0-based position, null past the end and for -1.
OlbSeqNode* SeqAt(OlbSeqNode* root, std::uint32_t position);

// The ends of a tree, null when it is empty.
OlbSeqNode* SeqFirst(OlbSeqNode* root);
OlbSeqNode* SeqLast(OlbSeqNode* root);

// The neighbours in order, null at the ends.
OlbSeqNode* SeqNext(OlbSeqNode* node);
OlbSeqNode* SeqPrevious(OlbSeqNode* node);

// The position of a node in the tree that it is in, and that tree's root. Neither asks which tree
// that should be. Without links to parents each step up goes over the foot of a subtree, so that
// the cost is bounded by half the square of the height, not by the height.
std::uint32_t SeqPosition(const OlbSeqNode* node);
OlbSeqNode* SeqRoot(OlbSeqNode* node);

// The position of the first node that is behind something, the number of nodes when none is.
// `isBehind(node, position)` must answer false up to some node and true from there on. It is asked
// once for each node on one way down, from the root on.
template <class Question>
std::uint32_t SeqFirstBehind(OlbSeqNode* root, Question isBehind) {
    std::uint32_t first = 0;
    for (OlbSeqNode* node = root; node != nullptr;) {
        const std::uint32_t position = first + node->leftCount;
        if (isBehind(node, position)) {
            node = LeftChild(node);
        } else {
            first = position + 1;
            node = RightChild(node);
        }
    }
    return first;
}

// Puts a node that is in no tree behind the one at `after`: in front of all with kSeqFront, at the
// end when `after` is past it. Of the node only `item` counts.
void SeqInsert(OlbSeqNode*& root, std::uint32_t after, OlbSeqNode* node);

// Takes the nodes at [first, last] out and returns the root of the tree that they now are. A range
// past the end is cut to it; an empty one takes nothing and returns null.
OlbSeqNode* SeqCut(OlbSeqNode*& root, std::uint32_t first, std::uint32_t last);

// Puts all of another tree behind the node at `after`, which reads as for SeqInsert. The nodes of
// `run` then belong to `root`.
void SeqSplice(OlbSeqNode*& root, std::uint32_t after, OlbSeqNode* run);

} // namespace vorn::hierlist
