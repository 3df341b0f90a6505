#include "hierlist/seqtree.h"

#include "hierlist/seqtree_balance.h"

namespace vorn::hierlist {

std::uint32_t SeqCount(const OlbSeqNode* root) {
    std::uint32_t count = 0;
    for (const OlbSeqNode* node = root; node != nullptr; node = RightChild(node)) {
        count += node->leftCount + 1;
    }
    return count;
}

OlbSeqNode* SeqAt(OlbSeqNode* root, std::uint32_t position) {
    OlbSeqNode* node = root;
    while (node != nullptr && position != node->leftCount) {
        if (position < node->leftCount) {
            node = LeftChild(node);
        } else {
            position -= node->leftCount + 1;
            node = RightChild(node);
        }
    }
    return node;
}

OlbSeqNode* SeqFirst(OlbSeqNode* root) {
    OlbSeqNode* node = root;
    while (node != nullptr && node->hasLeft != 0) {
        node = node->left;
    }
    return node;
}

OlbSeqNode* SeqLast(OlbSeqNode* root) {
    OlbSeqNode* node = root;
    while (node != nullptr && node->hasRight != 0) {
        node = node->right;
    }
    return node;
}

OlbSeqNode* SeqNext(OlbSeqNode* node) {
    return node->hasRight != 0 ? SeqFirst(node->right) : node->right;
}

OlbSeqNode* SeqPrevious(OlbSeqNode* node) {
    return node->hasLeft != 0 ? SeqLast(node->left) : node->left;
}

// The thread at the left end of a subtree leads to the nearest ancestor that has the subtree on its
// right, over all those that have it on their left and so do not count.
std::uint32_t SeqPosition(const OlbSeqNode* node) {
    std::uint32_t position = node->leftCount;
    for (;;) {
        while (node->hasLeft != 0) {
            node = node->left;
        }
        node = node->left;
        if (node == nullptr) {
            return position;
        }
        position += node->leftCount + 1;
    }
}

OlbSeqNode* SeqRoot(OlbSeqNode* node) {
    OlbSeqNode* root = node;
    while (OlbSeqNode* ancestor = SeqFirst(root)->left) {
        root = ancestor;
    }
    // From here only left links lead up, one at a time.
    while (OlbSeqNode* ancestor = SeqLast(root)->right) {
        root = ancestor;
    }
    return root;
}

void SeqInsert(OlbSeqNode*& root, std::uint32_t after, OlbSeqNode* node) {
    std::uint32_t before = after + 1; // nodes that stay in front, none for kSeqFront
    bool toLeft = false;
    SeqPath path;
    for (OlbSeqNode* at = root; at != nullptr;) {
        path.Push(at);
        toLeft = before <= at->leftCount;
        if (toLeft) {
            ++at->leftCount;
            at = LeftChild(at);
        } else {
            before -= at->leftCount + 1;
            at = RightChild(at);
        }
    }

    node->height = 1;
    node->leftCount = 0;
    SetLeftThread(node, nullptr);
    SetRightThread(node, nullptr);
    if (path.depth == 0) {
        root = node;
        return;
    }
    OlbSeqNode* parent = path.Bottom();
    if (toLeft) {
        SetLeftThread(node, parent->left);
        SetRightThread(node, parent);
        SetLeftChild(parent, node);
    } else {
        SetLeftThread(node, parent);
        SetRightThread(node, parent->right);
        SetRightChild(parent, node);
    }
    root = RebalancePath(path);
}

} // namespace vorn::hierlist
