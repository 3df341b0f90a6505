// How a sequence tree keeps its shape: the heights of two siblings differ by 1 at most.
#pragma once

#include "hierlist/seqtree.h"

namespace vorn::hierlist {

inline int SeqHeight(const OlbSeqNode* root) {
    return root == nullptr ? 0 : root->height;
}

inline void SetLeftChild(OlbSeqNode* node, OlbSeqNode* child) {
    node->left = child;
    node->hasLeft = 1;
}

inline void SetRightChild(OlbSeqNode* node, OlbSeqNode* child) {
    node->right = child;
    node->hasRight = 1;
}

inline void SetLeftThread(OlbSeqNode* node, OlbSeqNode* predecessor) {
    node->left = predecessor;
    node->hasLeft = 0;
}

inline void SetRightThread(OlbSeqNode* node, OlbSeqNode* successor) {
    node->right = successor;
    node->hasRight = 0;
}

// Derives a node's height from its children's.
void UpdateHeight(OlbSeqNode* node);

// The way down from a root, each node a child of the one before.
struct SeqPath {
    OlbSeqNode* nodes[kSeqMaxDepth];
    int depth = 0;

    void Push(OlbSeqNode* node) { nodes[depth++] = node; }
    OlbSeqNode* Bottom() const { return nodes[depth - 1]; }
};

// Restores the balance along a path, not empty, below whose bottom a subtree has grown by one
// level at most. Returns the root.
OlbSeqNode* RebalancePath(const SeqPath& path);

} // namespace vorn::hierlist
