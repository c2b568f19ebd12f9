// Answers "does this node stand above that one?" in a forest whose links change, in logarithmic time on
// average, however deep the trees are. Knows nothing but numbers. Each path from a root is kept as a balanced
// binary tree (a link-cut tree without re-rooting).
#pragma once

#include <vector>

namespace splitframe {

class AncestorForest
{
public:
    /// nCount nodes from 0, each a tree of its own.
    explicit AncestorForest(int nCount);

    /// Hangs a root below a node of another tree.
    void Link(int nRoot, int nParent);

    /// Makes a node the root of its own tree, with all below it.
    void Cut(int nNode);

    /// Whether nUpper is nNode or stands above it.
    bool IsAbove(int nUpper, int nNode);

private:
    struct Node
    {
        int arrChild[2] = {-1, -1}; // upper and lower part of the same path
        int nUp = -1;               // parent in the binary tree, or, for its top, the node its path hangs on
    };

    Node& At(int nNode) { return m_arrNode[static_cast<std::size_t>(nNode)]; }
    bool IsTop(int nNode);
    int SideOf(int nNode);
    void Attach(int nNode, int nSide, int nChild);
    void Rotate(int nNode);
    void Splay(int nNode);
    void Expose(int nNode);

    std::vector<Node> m_arrNode;
};

} // namespace splitframe
