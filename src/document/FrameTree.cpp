// Building the split tree of a style. Names are resolved first, then the tree is planned by numbers, then the
// nodes are linked: no host code runs between the first link and the last.
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "document/NameIndex.h"
#include "document/SplitFaults.h"
#include "document/SplitPlan.h"
#include "layout/SplitLine.h"
#include "unit/BaseUnitWnd.h"

#include <functional>
#include <unordered_map>
#include <unordered_set>
#include <utility>

using splitframe::LineNames;
using splitframe::SplitPlan;
using splitframe::SplitSide;
using splitframe::SplitSides;

namespace splitframe {

// Numbers what the lines' sides were resolved to.
class SideNumbers
{
public:
    explicit SideNumbers(const CArray<CSplitLine*, CSplitLine*>& arrNode)
    {
        for (int i = 0; i < arrNode.GetSize(); ++i)
            m_mapLine.emplace(arrNode[i], i);
    }

    SplitSide Of(CSplitLine* pNode)
    {
        if (!pNode)
            return {};
        if (const auto it = m_mapLine.find(pNode); it != m_mapLine.end())
            return {SplitSide::Kind::Line, it->second};
        const auto [it, bNew] = m_mapLeaf.try_emplace(pNode, static_cast<int>(m_arrLeaf.size()));
        if (bNew)
            m_arrLeaf.emplace_back(pNode);
        return {SplitSide::Kind::Leaf, it->second};
    }

    int GetLeafCount() const { return static_cast<int>(m_arrLeaf.size()); }
    CSplitLine* GetLeaf(int nLeaf) const { return m_arrLeaf[static_cast<std::size_t>(nLeaf)]; }

private:
    std::unordered_map<const CSplitLine*, int> m_mapLine;
    std::unordered_map<const CSplitLine*, int> m_mapLeaf;
    std::vector<CSplitLineLink> m_arrLeaf; // null: deleted since
};

} // namespace splitframe

using splitframe::SideNumbers;

namespace {

using Nodes = CArray<CSplitLine*, CSplitLine*>;

// Frees the nodes that no tree has taken over, whatever ends the building.
class LooseNodes
{
public:
    LooseNodes() = default;
    LooseNodes(const LooseNodes&) = delete;
    LooseNodes& operator=(const LooseNodes&) = delete;
    ~LooseNodes()
    {
        for (CSplitLine* pNode : m_arrNode)
            delete pNode;
    }

    Nodes m_arrNode; // a node that was taken over is null
};

CSplitLine* NewNode(const _SPLIT_INFO& info, CWnd* pHostWnd)
{
    const bool bHorizontal = CString(info.szType) == L"H_LINE";
    auto* pNode =
        new CSplitLine(bHorizontal ? CSplitLine::NT_HLINE : CSplitLine::NT_VLINE, info.bMobile, pHostWnd);
    pNode->m_strName = info.szName;
    pNode->m_dLRate = info.dLRate;
    return pNode;
}

CSplitLine* NodeOf(const SplitSide& side, const Nodes& arrNode, const SideNumbers& numbers)
{
    switch (side.kind) {
    case SplitSide::Kind::Line:
        return arrNode[side.nIndex];
    case SplitSide::Kind::Leaf:
        return numbers.GetLeaf(side.nIndex);
    default:
        return nullptr;
    }
}

// A side that a unit was found for.
struct Pane
{
    CSplitLine* pLeaf;
    CSplitLine* pLine;
    bool bFirst;
};

// Links what the plan says; the nodes of its tree belong to the root from then on. A leaf that stands in
// another frame meanwhile is not linked: its side stays empty.
// @return all panes of the tree
std::vector<Pane> LinkPlan(const SplitPlan& plan, Nodes& arrNode, const SideNumbers& numbers,
                           const std::function<bool(const CSplitLine*)>& isAway)
{
    std::vector<Pane> arrPane;
    for (int i = 0; i < arrNode.GetSize(); ++i) {
        if (!plan.Hangs(i))
            continue;
        CSplitLine& line = *arrNode[i];
        const SplitSides& sides = plan.arrLine[static_cast<std::size_t>(i)];
        for (const SplitSide* pSide : {&sides.first, &sides.second}) {
            CSplitLine* pChild = NodeOf(*pSide, arrNode, numbers);
            const bool bFirst = pSide == &sides.first;
            if (pChild && pSide->kind == SplitSide::Kind::Leaf)
                arrPane.push_back({pChild, &line, bFirst});
            if (!pChild || (pSide->kind == SplitSide::Kind::Leaf && isAway(pChild)))
                continue;
            (bFirst ? line.m_pFirst : line.m_pSecond) = pChild;
            pChild->m_pParent = &line;
        }
    }
    for (int i = 0; i < arrNode.GetSize(); ++i) {
        if (plan.Hangs(i))
            arrNode[i] = nullptr;
    }
    return arrPane;
}

// Look-ups by unit name go through an index while this lives.
class UseUnitNames
{
public:
    UseUnitNames(const splitframe::UnitNames*& pUsed, const splitframe::UnitNames& names) : m_pUsed(pUsed)
    {
        m_pUsed = &names;
    }
    UseUnitNames(const UseUnitNames&) = delete;
    UseUnitNames& operator=(const UseUnitNames&) = delete;
    ~UseUnitNames() { m_pUsed = nullptr; }

private:
    const splitframe::UnitNames*& m_pUsed;
};

} // namespace

void CBaseFrameDoc::DeleteTree()
{
    m_arrGlobalPane.clear();
    delete std::exchange(m_pRoot, nullptr);
}

CSplitLine* CBaseFrameDoc::GetObjFromName(CArray<CSplitLine*, CSplitLine*>& arrNode, CBaseFrameStyle* pStyle,
                                          const wchar_t* pszName)
{
    return ResolveSide(LineNames(*pStyle), arrNode, pszName);
}

CSplitLine* CBaseFrameDoc::ResolveSide(const LineNames& names, CArray<CSplitLine*, CSplitLine*>& arrNode,
                                       const wchar_t* pszName)
{
    if (const int nLine = names.Find(pszName); nLine >= 0)
        return arrNode.GetAt(nLine);
    CBaseUnitWnd* pUnit = GetBaseUnitWnd(pszName);
    if (!pUnit)
        pUnit = AdoptGlobalUnit(pszName, false);
    return pUnit ? pUnit : FindCarried(pszName);
}

std::vector<SplitSides> CBaseFrameDoc::ResolveSides(const std::vector<_SPLIT_INFO>& arrInfo,
                                                    const LineNames& names,
                                                    CArray<CSplitLine*, CSplitLine*>& arrNode,
                                                    splitframe::SideNumbers& numbers)
{
    const splitframe::UnitNames units(m_arrBaseUnitWnd);
    const UseUnitNames use(m_pUnitNames, units);
    std::vector<SplitSides> arrWanted;
    for (const _SPLIT_INFO& info : arrInfo) {
        SplitSides wanted;
        wanted.first = numbers.Of(ResolveSide(names, arrNode, info.szLeft));
        wanted.second = numbers.Of(ResolveSide(names, arrNode, info.szRight));
        arrWanted.push_back(wanted);
    }
    return arrWanted;
}

void CBaseFrameDoc::BuildTree(CBaseFrameStyle& style)
{
    DeleteTree();
    if (style.m_arrSplitInfo.IsEmpty())
        return;
    // Adopting a global unit runs host code, which may clear the styles: names are resolved from copies.
    std::vector<_SPLIT_INFO> arrInfo;
    LooseNodes nodes;
    for (const _SPLIT_INFO* pInfo : style.m_arrSplitInfo) {
        arrInfo.push_back(*pInfo);
        nodes.m_arrNode.Add(NewNode(*pInfo, m_pView));
    }
    const LineNames names(style);
    splitframe::SideNumbers numbers(nodes.m_arrNode);
    const std::vector<SplitSides> arrWanted = ResolveSides(arrInfo, names, nodes.m_arrNode, numbers);
    if (IsViewGone())
        return; // its leaves belong to others now
    const SplitPlan plan = splitframe::PlanSplitTree(arrWanted, numbers.GetLeafCount());

    DeleteTree(); // a hook may have built one
    m_pRoot = nodes.m_arrNode[0];
    CSplitLine::m_pRoot = m_pRoot;
    const std::unordered_set<const CSplitLine*> setOwn(m_arrBaseUnitWnd.begin(), m_arrBaseUnitWnd.end());
    const auto isAway = [&](const CSplitLine* pLeaf) {
        return !setOwn.contains(pLeaf) && IsLentElsewhere(pLeaf);
    };
    for (const Pane& pane : LinkPlan(plan, nodes.m_arrNode, numbers, isAway)) {
        if (!setOwn.contains(pane.pLeaf))
            m_arrGlobalPane.push_back({pane.pLeaf->m_strName, pane.pLine, pane.bFirst});
    }
    if (!m_bFaultsTold && FindCurrentStyle() == &style) {
        splitframe::FindSplitFaults(
            style, arrWanted, plan,
            [this](int, const wchar_t* pszMessage, const CString& strName) { Report(pszMessage, strName); });
    }
}
