// Cutting and splicing by split and join: a tree is taken apart along one way down and put together
// again from the subtrees beside it. Joining costs the difference of two heights, which add up to
// no more than the tree's own.
#include "hierlist/seqtree.h"
#include "hierlist/seqtree_balance.h"

namespace vorn::hierlist {
namespace {

// A tree, or a subtree that becomes one, with the number of its nodes: to count anew for each join
// would cost a walk.
struct Counted {
    OlbSeqNode* root = nullptr;
    std::uint32_t count = 0;
};

Counted Whole(OlbSeqNode* root) {
    return {root, SeqCount(root)};
}

Counted LeftOf(const OlbSeqNode* node) {
    return {LeftChild(node), node->leftCount};
}

// Makes `left` and `right` the subtrees of `node`. On a side that is empty the node keeps its link
// as its thread.
void Adopt(OlbSeqNode* node, const Counted& left, OlbSeqNode* right) {
    node->hasLeft = left.root != nullptr;
    if (left.root != nullptr) {
        node->left = left.root;
    }
    node->hasRight = right != nullptr;
    if (right != nullptr) {
        node->right = right;
    }
    node->leftCount = left.count;
    UpdateHeight(node);
}

// Joins trees of which the left one is more than one level the higher: `middle` goes down its right
// edge to where a subtree is about as high as the right tree, and takes both for its own.
OlbSeqNode* JoinDownRight(Counted left, OlbSeqNode* middle, OlbSeqNode* right) {
    const int enough = SeqHeight(right) + 1;
    OlbSeqNode* edge = nullptr;
    SeqPath path;
    do {
        edge = left.root;
        path.Push(edge);
        left.count -= edge->leftCount + 1;
        left.root = RightChild(edge);
    } while (SeqHeight(left.root) > enough);
    if (left.root == nullptr) {
        middle->left = edge;
    }
    Adopt(middle, left, right);
    SetRightChild(edge, middle);
    return RebalancePath(path);
}

// The same down the left edge of the right tree.
OlbSeqNode* JoinDownLeft(const Counted& left, OlbSeqNode* middle, OlbSeqNode* right) {
    const int enough = SeqHeight(left.root) + 1;
    OlbSeqNode* edge = nullptr;
    SeqPath path;
    do {
        edge = right;
        path.Push(edge);
        edge->leftCount += left.count + 1;
        right = LeftChild(edge);
    } while (SeqHeight(right) > enough);
    if (right == nullptr) {
        middle->right = edge;
    }
    Adopt(middle, left, right);
    SetLeftChild(edge, middle);
    return RebalancePath(path);
}

// The tree of `left`, then `middle`, then `right`. The threads that end at `middle` from both sides
// are right when they were before; where a side is empty middle's own link is taken for its thread.
Counted Join(const Counted& left, OlbSeqNode* middle, const Counted& right) {
    const std::uint32_t count = left.count + 1 + right.count;
    const int leftHeight = SeqHeight(left.root);
    const int rightHeight = SeqHeight(right.root);
    if (leftHeight > rightHeight + 1) {
        return {JoinDownRight(left, middle, right.root), count};
    }
    if (rightHeight > leftHeight + 1) {
        return {JoinDownLeft(left, middle, right.root), count};
    }
    Adopt(middle, left, right.root);
    return {middle, count};
}

struct Parts {
    Counted left;
    OlbSeqNode* middle;
    Counted right;
};

// Takes a tree apart around the node at a position that it has. All threads go on telling the order
// that was, across the parts.
Parts Split(const Counted& tree, std::uint32_t position) {
    SeqPath path;
    std::uint32_t counts[kSeqMaxDepth]; // of the subtrees along the path
    OlbSeqNode* middle = tree.root;
    std::uint32_t count = tree.count;
    while (position != middle->leftCount) {
        counts[path.depth] = count;
        path.Push(middle);
        if (position < middle->leftCount) {
            count = middle->leftCount;
            middle = middle->left;
        } else {
            position -= middle->leftCount + 1;
            count -= middle->leftCount + 1;
            middle = middle->right;
        }
    }

    Parts parts{LeftOf(middle), middle, {RightChild(middle), count - middle->leftCount - 1}};
    const OlbSeqNode* below = middle;
    while (path.depth > 0) {
        OlbSeqNode* node = path.Bottom();
        --path.depth;
        if (LeftChild(node) == below) {
            if (parts.right.root == nullptr) {
                node->left = middle;
            }
            const std::uint32_t after = counts[path.depth] - node->leftCount - 1;
            parts.right = Join(parts.right, node, {RightChild(node), after});
        } else {
            if (parts.left.root == nullptr) {
                node->right = middle;
            }
            parts.left = Join(LeftOf(node), node, parts.left);
        }
        below = node;
    }
    return parts;
}

// The tree of `left`, then `right`. The caller sews the seam.
Counted Concatenate(const Counted& left, const Counted& right) {
    if (right.root == nullptr) {
        return left;
    }
    if (left.root == nullptr) {
        return right;
    }
    const Parts parts = Split(right, 0);
    return Join(left, parts.middle, parts.right);
}

// Makes two nodes neighbours where they have no child between them; null stands for an end.
void Sew(OlbSeqNode* before, OlbSeqNode* after) {
    if (before != nullptr && before->hasRight == 0) {
        before->right = after;
    }
    if (after != nullptr && after->hasLeft == 0) {
        after->left = before;
    }
}

} // namespace

OlbSeqNode* SeqCut(OlbSeqNode*& root, std::uint32_t first, std::uint32_t last) {
    const Counted tree = Whole(root);
    if (first > last || first >= tree.count) {
        return nullptr;
    }
    if (last >= tree.count) {
        last = tree.count - 1;
    }

    Parts parts = Split(tree, first);
    OlbSeqNode* runFirst = parts.middle;
    OlbSeqNode* runLast = runFirst;
    Counted run;
    if (last == first) {
        run = Join({}, runFirst, {});
    } else {
        const Parts rest = Split(parts.right, last - first - 1);
        runLast = rest.middle;
        if (rest.left.root == nullptr) {
            runFirst->right = runLast;
        }
        run = Join(Join({}, runFirst, rest.left), runLast, {});
        parts.right = rest.right;
    }
    OlbSeqNode* before = SeqLast(parts.left.root);
    OlbSeqNode* after = SeqFirst(parts.right.root);
    root = Concatenate(parts.left, parts.right).root;
    Sew(before, after);
    Sew(nullptr, runFirst);
    Sew(runLast, nullptr);
    return run.root;
}

void SeqSplice(OlbSeqNode*& root, std::uint32_t after, OlbSeqNode* run) {
    if (run == nullptr) {
        return;
    }
    const Counted tree = Whole(root);
    Parts parts{};
    if (after == kSeqFront) {
        parts.right = tree;
    } else if (after >= tree.count) {
        parts.left = tree;
    } else {
        parts = Split(tree, after);
    }

    OlbSeqNode* runFirst = SeqFirst(run);
    OlbSeqNode* runLast = SeqLast(run);
    OlbSeqNode* next = SeqFirst(parts.right.root);
    OlbSeqNode* previous = parts.middle;
    Counted head = Whole(run);
    if (previous != nullptr) {
        head = Join(parts.left, previous, head);
    } else {
        previous = SeqLast(parts.left.root);
        head = Concatenate(parts.left, head);
    }
    root = Concatenate(head, parts.right).root;
    Sew(previous, runFirst);
    Sew(runLast, next);
}

} // namespace vorn::hierlist
