// What holds between any two operations.
#include "document/BaseFrameHelper.h"
#include "layout/CheckTree.h"
#include "layout/SplitLine.h"
#include "monkey/Monkey.h"
#include "platform/window/WindowManager.h"

#include <algorithm>
#include <set>

namespace monkey {

namespace {

using test::FrameHost;
using Units = CArray<CBaseUnitWnd*, CBaseUnitWnd*>;

bool Lists(const Units& arr, const CBaseUnitWnd* pUnit)
{
    return std::find(arr.begin(), arr.end(), pUnit) != arr.end();
}

bool HasDoubles(const Units& arr)
{
    return std::set<const CBaseUnitWnd*>(arr.begin(), arr.end()).size() !=
           static_cast<std::size_t>(arr.GetSize());
}

struct TreeWalk
{
    std::set<const CSplitLine*> setNode;
    bool bIndicator = false;
    std::string strFault;
};

void Walk(const FrameHost& host, const CBaseFrameDoc& doc, const CSplitLine& node, TreeWalk& walk)
{
    if (!walk.setNode.insert(&node).second)
        walk.strFault = node.m_strName.ToUtf8() + " hangs in the tree twice";
    walk.bIndicator |= node.m_ptIndicator != CPoint(-1, -1);
    if (node.GetNodeType() == CSplitLine::NT_UNIT) {
        const CBaseUnitWnd* pUnit = node.GetUnitWnd();
        const bool bKnown =
            pUnit && (Lists(doc.m_arrBaseUnitWnd, pUnit) || host.m_pMain->ListsGlobalUnit(pUnit));
        if (!bKnown)
            walk.strFault = "the pane " + node.m_strName.ToUtf8() + " is no unit of the frame";
        return;
    }
    for (const CSplitLine* pSide : {node.m_pFirst.Get(), node.m_pSecond.Get()}) {
        if (node.Holds(pSide) && walk.strFault.empty())
            Walk(host, doc, *pSide, walk);
    }
}

std::string CheckDoc(FrameHost& host, CBaseFrameDoc& doc, bool& bIndicator)
{
    if (doc.m_arrBaseUnitWnd.GetSize() != doc.m_arrBaseUnitWndID.GetSize() ||
        doc.m_arrWndCache.GetSize() != doc.m_arrWndCacheID.GetSize())
        return "units and IDs are not of the same number";
    if (HasDoubles(doc.m_arrBaseUnitWnd) || HasDoubles(doc.m_arrWndCache))
        return "a unit is listed twice";
    for (const CBaseUnitWnd* pUnit : doc.m_arrBaseUnitWnd) {
        const std::string strName = pUnit->CSplitLine::m_strName.ToUtf8();
        if (Lists(doc.m_arrWndCache, pUnit))
            return strName + " is in use and cached";
        if (host.m_pMain->ListsGlobalUnit(pUnit))
            return strName + " is the frame's own and global";
        if (pUnit->GetSafeHwnd() && doc.m_pView && pUnit->GetParent() != doc.m_pView)
            return strName + " does not stand in its view";
    }
    for (const CBaseUnitWnd* pUnit : doc.m_arrWndCache) {
        if (pUnit->GetSafeHwnd() && (pUnit->GetStyle() & WS_VISIBLE))
            return pUnit->CSplitLine::m_strName.ToUtf8() + " is cached and visible";
    }
    const int nUnits = doc.GetBaseUnitWndCount();
    if (doc.m_nCurBaseUnitWnd < 0 || (doc.m_nCurBaseUnitWnd > 0 && doc.m_nCurBaseUnitWnd >= nUnits))
        return "the current unit is none of the frame's";
    if (!doc.m_arrStyle.IsEmpty() && !doc.GetCurrentStyleName())
        return "the current style is none of the frame's";
    if (doc.m_pHelper && doc.m_pHelper->m_pDoc != &doc)
        return "the helper serves another document";
    if (!doc.m_pRoot)
        return {};
    TreeWalk walk;
    Walk(host, doc, *doc.m_pRoot, walk);
    bIndicator |= walk.bIndicator;
    return walk.strFault.empty() ? splitframe::CheckTree(*doc.m_pRoot) : walk.strFault;
}

std::string CheckGlobals(FrameHost& host, const std::vector<CBaseFrameDoc*>& arrDoc)
{
    for (const CBaseUnitWnd* pUnit : host.m_pMain->m_arrGlobalBaseUnitWnd) {
        if (!pUnit->GetSafeHwnd())
            continue;
        const CWnd* pParent = pUnit->GetParent();
        const bool bLent = std::any_of(arrDoc.begin(), arrDoc.end(),
                                       [&](const CBaseFrameDoc* pDoc) { return pDoc->m_pView == pParent; });
        const std::string strName = pUnit->CSplitLine::m_strName.ToUtf8();
        if (!bLent && pParent != host.m_pMain)
            return "the global unit " + strName + " stands nowhere";
        if (!bLent && (pUnit->CSplitLine::m_pParent || pUnit->m_pfnNotify || pUnit->IsWindowVisible()))
            return "the global unit " + strName + " is at home, but not at rest: " +
                   std::to_string(pUnit->CSplitLine::m_pParent != nullptr) +
                   std::to_string(pUnit->m_pfnNotify != nullptr) + std::to_string(pUnit->IsWindowVisible());
        if (bLent && pUnit->m_pHostWnd != pParent)
            return "the global unit " + strName + " stands in another view than its host window";
    }
    return {};
}

std::string CheckFocus(const std::vector<CBaseFrameDoc*>& arrDoc, bool bIndicator)
{
    if (::GetFocus() && !::IsWindow(::GetFocus()))
        return "the focus is with a dead window";
    if (::GetCapture() && !::IsWindow(::GetCapture()))
        return "the mouse is with a dead window";
    if (splitframe::IsScreenDrawnOver() && !bIndicator)
        return "a drag indicator is left on the screen";
    const bool bRootKnown = !CSplitLine::m_pRoot || std::any_of(arrDoc.begin(), arrDoc.end(), [](auto* pDoc) {
        return pDoc->m_pRoot == CSplitLine::m_pRoot;
    });
    return bRootKnown ? "" : "the active tree belongs to no open frame";
}

} // namespace

std::string CheckHost(FrameHost& host)
{
    std::vector<CBaseFrameDoc*> arrDoc;
    bool bIndicator = false;
    for (int i = 0; i < host.m_pTemplate->GetDocumentCount(); ++i) {
        arrDoc.push_back(DynamicDownCast<CBaseFrameDoc>(host.m_pTemplate->GetDocument(i)));
        std::string strFault = CheckDoc(host, *arrDoc.back(), bIndicator);
        if (!strFault.empty())
            return "frame " + arrDoc.back()->m_strName.ToUtf8() + ": " + strFault;
    }
    std::string strFault = CheckGlobals(host, arrDoc);
    if (strFault.empty())
        strFault = CheckFocus(arrDoc, bIndicator);
    return strFault.empty() ? splitframe::CheckWindowTree().ToUtf8() : strFault;
}

} // namespace monkey
