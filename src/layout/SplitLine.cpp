// Nodes of a split tree: making, copying and deleting them, and their neighbours.
// A line owns the lines on its sides and no unit. Deleting works through a list of links, so that a tree of
// any depth goes without recursion, and a node that is named twice, or goes away meanwhile, is deleted once.
#include "layout/SplitLine.h"

#include "layout/internal/LayoutPass.h"
#include "layout/internal/NodeTable.h"
#include "layout/internal/TreeEpoch.h"

using splitframe::CLayoutPass;
using splitframe::CNodeTable;
using splitframe::CSplitLineLink;

CSplitLine* CSplitLine::m_pRoot = nullptr;

CSplitLine::CSplitLine(NodeType nType, bool bMobile, CWnd* pHostWnd)
    : m_nType(nType), m_ptIndicator(-1, -1), m_dLRate(0.5), m_bShow(true), m_bMobile(bMobile),
      m_pHostWnd(pHostWnd)
{
}

CSplitLine::CSplitLine(const CSplitLine& other)
    : m_nType(other.m_nType), m_ptIndicator(other.m_ptIndicator), m_pFirst(other.m_pFirst),
      m_pSecond(other.m_pSecond), m_pParent(other.m_pParent), m_dLRate(other.m_dLRate),
      m_bShow(other.m_bShow), m_bMobile(other.m_bMobile), m_pHostWnd(other.m_pHostWnd),
      m_strName(other.m_strName), m_bOwnsSides(false)
{
}

CSplitLine& CSplitLine::operator=(const CSplitLine& other)
{
    if (this == &other)
        return *this;
    const CSplitLine source(other); // `other` may be a line below this one, and is deleted then
    if (m_bOwnsSides)
        DeleteLines();
    m_bOwnsSides = false;
    m_nType = source.m_nType;
    m_ptIndicator = source.m_ptIndicator;
    m_pFirst = source.m_pFirst;
    m_pSecond = source.m_pSecond;
    m_pParent = source.m_pParent;
    m_dLRate = source.m_dLRate;
    m_bShow = source.m_bShow;
    m_bMobile = source.m_bMobile;
    m_pHostWnd = source.m_pHostWnd;
    m_strName = source.m_strName;
    return *this;
}

CSplitLine::~CSplitLine()
{
    if (m_pRoot == this)
        m_pRoot = nullptr;
    if (m_bOwnsSides)
        DeleteLines();
    CLayoutPass::Forget(this);
    DropLinks();
}

void CSplitLine::DropLinks()
{
    ++splitframe::g_nTreeEpoch;
    while (m_pLinks)
        m_pLinks->Detach();
}

// A line that another line holds, and will delete, is only named here, not owned.
bool CSplitLine::MayDelete(const CSplitLine* pSide) const
{
    if (!pSide || pSide == this || pSide->m_nType == NT_UNIT || pSide->m_pUnit)
        return false;
    const CSplitLine* pOwner = pSide->m_pParent;
    return !pOwner || pOwner == this || !pOwner->m_bOwnsSides || !pOwner->Holds(pSide);
}

void CSplitLine::TakeLines(std::vector<CSplitLineLink>& arrTaken)
{
    for (CSplitLineLink* pSide : {&m_pFirst, &m_pSecond}) {
        if (MayDelete(*pSide))
            arrTaken.push_back(*pSide);
        *pSide = nullptr;
    }
}

void CSplitLine::DeleteLines()
{
    std::vector<CSplitLineLink> arrDoomed;
    TakeLines(arrDoomed);
    while (!arrDoomed.empty()) {
        CSplitLine* pLine = arrDoomed.back();
        arrDoomed.pop_back();
        if (!pLine || pLine == this)
            continue;
        if (pLine->m_bOwnsSides)
            pLine->TakeLines(arrDoomed);
        delete pLine;
    }
}

void CSplitLine::ReleaseWnd()
{
    CNodeTable table;
    table.Build(*this);
    for (int i = 0; i < table.GetCount(); ++i) {
        for (CSplitLineLink* pSide : {&table[i].pNode->m_pFirst, &table[i].pNode->m_pSecond}) {
            if (*pSide && (*pSide)->m_nType == NT_UNIT)
                *pSide = nullptr;
        }
    }
}

bool CSplitLine::Holds(const CSplitLine* pSide) const
{
    return pSide && pSide->m_pParent == this && (m_pFirst == pSide || m_pSecond == pSide);
}

namespace {

// Which of a line's sides lies in a direction, seen from the other: the first one up and left, the second one
// down and right.
bool Separates(CSplitLine::NodeType nType, CSplitLine::DIRECT_VALUE d)
{
    const bool bVertical = d == CSplitLine::DV_TOP || d == CSplitLine::DV_BOTTOM;
    return nType == (bVertical ? CSplitLine::NT_HLINE : CSplitLine::NT_VLINE);
}
bool LeadsToFirst(CSplitLine::DIRECT_VALUE d)
{
    return d == CSplitLine::DV_LEFT || d == CSplitLine::DV_TOP;
}
bool IsDirection(CSplitLine::DIRECT_VALUE d)
{
    return d >= CSplitLine::DV_RIGHT && d <= CSplitLine::DV_BOTTOM;
}

} // namespace

// The nearest line above that has this node on its one side, and something in the direction on its other. The
// slow follower meets the walker when parent links run in a circle.
CSplitLine* CSplitLine::FindDivider(DIRECT_VALUE d) const
{
    if (!IsDirection(d))
        return nullptr;
    const CSplitLine* pNode = this;
    const CSplitLine* pSlow = this;
    for (bool bFollow = false;; bFollow = !bFollow) {
        CSplitLine* pLine = pNode->m_pParent;
        if (!pLine || pLine->m_nType == NT_UNIT || !pLine->Holds(pNode))
            return nullptr;
        const CSplitLineLink& from = LeadsToFirst(d) ? pLine->m_pSecond : pLine->m_pFirst;
        if (Separates(pLine->m_nType, d) && from == pNode)
            return pLine;
        pNode = pLine;
        if (bFollow)
            pSlow = pSlow->m_pParent;
        if (pNode == pSlow)
            return nullptr;
    }
}

CSplitLine* CSplitLine::GetSplitLine(DIRECT_VALUE d) const
{
    const CSplitLine* pLine = FindDivider(d);
    if (!pLine)
        return nullptr;
    return LeadsToFirst(d) ? pLine->m_pFirst : pLine->m_pSecond;
}

CString CSplitLine::GetSplitName(DIRECT_VALUE d) const
{
    const CSplitLine* pLine = FindDivider(d);
    return pLine ? pLine->m_strName : CString();
}
