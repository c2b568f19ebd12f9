#include "document/AncestorForest.h"

#include <cstddef>

namespace splitframe {

AncestorForest::AncestorForest(int nCount) : m_arrNode(static_cast<std::size_t>(nCount)) {}

void AncestorForest::Link(int nRoot, int nParent)
{
    Expose(nRoot);
    At(nRoot).nUp = nParent;
}

void AncestorForest::Cut(int nNode)
{
    Expose(nNode);
    const int nAbove = At(nNode).arrChild[0];
    if (nAbove >= 0) {
        At(nAbove).nUp = -1;
        At(nNode).arrChild[0] = -1;
    }
}

bool AncestorForest::IsAbove(int nUpper, int nNode)
{
    if (nUpper == nNode)
        return true;
    // nNode is the top of the path from its root now; it stops being that exactly when nUpper is on the path.
    Expose(nNode);
    Splay(nUpper);
    return !IsTop(nNode);
}

bool AncestorForest::IsTop(int nNode)
{
    const int nUp = At(nNode).nUp;
    return nUp < 0 || (At(nUp).arrChild[0] != nNode && At(nUp).arrChild[1] != nNode);
}

int AncestorForest::SideOf(int nNode)
{
    return At(At(nNode).nUp).arrChild[1] == nNode ? 1 : 0;
}

void AncestorForest::Attach(int nNode, int nSide, int nChild)
{
    At(nNode).arrChild[nSide] = nChild;
    if (nChild >= 0)
        At(nChild).nUp = nNode;
}

void AncestorForest::Rotate(int nNode)
{
    const int nParent = At(nNode).nUp;
    const int nGrand = At(nParent).nUp;
    const int nSide = SideOf(nNode);
    const bool bParentTop = IsTop(nParent);
    const int nParentSide = bParentTop ? 0 : SideOf(nParent);

    Attach(nParent, nSide, At(nNode).arrChild[1 - nSide]);
    Attach(nNode, 1 - nSide, nParent);
    At(nNode).nUp = nGrand;
    if (!bParentTop)
        At(nGrand).arrChild[nParentSide] = nNode;
}

void AncestorForest::Splay(int nNode)
{
    while (!IsTop(nNode)) {
        const int nParent = At(nNode).nUp;
        if (!IsTop(nParent))
            Rotate(SideOf(nNode) == SideOf(nParent) ? nParent : nNode);
        Rotate(nNode);
    }
}

void AncestorForest::Expose(int nNode)
{
    int nBelow = -1;
    for (int nPath = nNode; nPath >= 0; nPath = At(nPath).nUp) {
        Splay(nPath);
        At(nPath).arrChild[1] = nBelow;
        nBelow = nPath;
    }
    Splay(nNode);
}

} // namespace splitframe
