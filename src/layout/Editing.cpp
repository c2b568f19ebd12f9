// Editing the tree: finding the unit that stands somewhere in it, and putting another one in its place.
// Showing, hiding and telling units runs host code, which may edit or delete the tree and the units
// themselves: everything is held by links and looked at again afterwards. No unit ever stands in two places.
#include "layout/SplitLine.h"
#include "layout/internal/NodeTable.h"
#include "platform/window/WindowManager.h"
#include "unit/BaseUnitWnd.h"

#include <optional>
#include <utility>

using splitframe::CNodeTable;
using splitframe::CSplitLineLink;

namespace {

// A unit that may be deleted meanwhile.
class UnitLink
{
public:
    explicit UnitLink(CBaseUnitWnd* pUnit) : m_leaf(pUnit) {}
    CBaseUnitWnd* Get() const { return m_leaf ? m_leaf->GetUnitWnd() : nullptr; }

private:
    CSplitLineLink m_leaf;
};

// One side of a line, where a unit stands. Nothing stands there, and nothing can be put there, when the line
// has died.
struct Pane
{
    CSplitLineLink line;
    bool bFirst;

    CSplitLine* Side() const
    {
        return !line ? nullptr : bFirst ? line->m_pFirst.Get() : line->m_pSecond.Get();
    }
    CBaseUnitWnd* Unit() const { return Side() ? Side()->GetUnitWnd() : nullptr; }
    void Set(CSplitLine* pSide) const
    {
        if (line)
            (bFirst ? line->m_pFirst : line->m_pSecond) = pSide;
    }
    void Put(CBaseUnitWnd& unit) const
    {
        Set(&unit);
        unit.m_pParent = line;
    }
};

CBaseUnitWnd* UnitAt(const CNodeTable& table, int nIndex)
{
    const CSplitLine* pNode = nIndex < 0 ? nullptr : table[nIndex].pNode;
    return pNode && pNode->m_nType == CSplitLine::NT_UNIT ? pNode->GetUnitWnd() : nullptr;
}

// The first pane in pre-order whose unit bears a name. A line of that name is passed by.
std::optional<Pane> FindPane(CSplitLine& start, const CString& strUnit)
{
    CNodeTable table;
    table.Build(start);
    for (int i = 0; i < table.GetCount(); ++i) {
        for (const bool bFirst : {true, false}) {
            const CBaseUnitWnd* pUnit = UnitAt(table, bFirst ? table.FirstOf(i) : table[i].nSecond);
            if (pUnit && pUnit->m_strName == strUnit)
                return Pane{table[i].pNode, bFirst};
        }
    }
    return std::nullopt;
}

// The first pane in pre-order on that side of a line of that name. A line whose side is no unit is passed by.
std::optional<Pane> FindPane(CSplitLine& start, const CString& strLine, bool bFirst)
{
    CNodeTable table;
    table.Build(start);
    for (int i = 0; i < table.GetCount(); ++i) {
        if (table[i].pNode->m_strName == strLine &&
            UnitAt(table, bFirst ? table.FirstOf(i) : table[i].nSecond))
            return Pane{table[i].pNode, bFirst};
    }
    return std::nullopt;
}

// Where a unit stands; nothing when it only remembers where it stood.
std::optional<Pane> PaneOf(const CBaseUnitWnd& unit)
{
    CSplitLine* pLine = unit.m_pParent;
    if (!pLine || !pLine->Holds(&unit))
        return std::nullopt;
    return Pane{pLine, pLine->m_pFirst == &unit};
}

// The slow follower meets the walker when parent links run in a circle.
const CSplitLine* TopOf(const CSplitLine& node)
{
    const CSplitLine* pTop = &node;
    const CSplitLine* pSlow = &node;
    for (bool bFollow = false; pTop->m_pParent && pTop->m_pParent->Holds(pTop); bFollow = !bFollow) {
        pTop = pTop->m_pParent;
        if (bFollow)
            pSlow = pSlow->m_pParent;
        if (pTop == pSlow)
            return nullptr;
    }
    return pTop;
}

// A unit of another window would be moved by coordinates that mean nothing there.
bool ShareParent(const CBaseUnitWnd& a, const CBaseUnitWnd& b)
{
    return !a.GetSafeHwnd() || !b.GetSafeHwnd() ||
           ::GetParent(a.GetSafeHwnd()) == ::GetParent(b.GetSafeHwnd());
}

CRect RectInHost(const CBaseUnitWnd& unit)
{
    CRect rc;
    unit.GetWindowRect(&rc);
    if (unit.m_pHostWnd)
        unit.m_pHostWnd->ScreenToClient(&rc);
    return rc;
}

void MoveTo(const UnitLink& link, const CRect& rc)
{
    CBaseUnitWnd* pUnit = link.Get();
    if (pUnit && pUnit->GetSafeHwnd())
        pUnit->MoveWindow(rc);
}

// Two units of one tree change places. Both stay in use, so no hook of theirs is called.
void Exchange(const Pane& pane, CBaseUnitWnd& oldUnit, const Pane& paneNew, CBaseUnitWnd& newUnit)
{
    const UnitLink linkOld(&oldUnit), linkNew(&newUnit);
    const CRect rcOld = RectInHost(oldUnit);
    const CRect rcNew = RectInHost(newUnit);
    pane.Put(newUnit);
    paneNew.Put(oldUnit);
    std::swap(oldUnit.m_bShow, newUnit.m_bShow);
    MoveTo(linkNew, rcOld);
    MoveTo(linkOld, rcNew);
}

void TellInUse(const UnitLink& link, bool bInUse)
{
    if (link.Get() && link.Get()->GetSafeHwnd())
        link.Get()->ShowWindow(bInUse ? SW_SHOW : SW_HIDE);
    if (link.Get())
        link.Get()->ProcessActivate(bInUse);
    if (link.Get())
        link.Get()->ProcessActivate2(bInUse);
}

// @return false when a hook has given the pane to somebody else
bool PutInto(const Pane& pane, const UnitLink& linkOld, const UnitLink& linkNew, bool bShow)
{
    CBaseUnitWnd* pNew = linkNew.Get();
    if (!pane.line || !pNew || (pane.Side() && pane.Side() != linkOld.Get()))
        return false;
    if (const std::optional<Pane> paneBefore = PaneOf(*pNew))
        paneBefore->Set(nullptr);
    pNew->m_bShow = bShow;
    pane.Put(*pNew);
    return true;
}

enum class Order
{
    NewFirst,
    OldFirst
};

bool ReplaceIn(const std::optional<Pane>& pane, CBaseUnitWnd* pNew, Order order)
{
    CBaseUnitWnd* pOld = pane ? pane->Unit() : nullptr;
    if (pOld == pNew)
        return true;
    if (!pOld || !ShareParent(*pOld, *pNew))
        return false;
    const CCallScope scope;
    const std::optional<Pane> paneNew = PaneOf(*pNew);
    if (paneNew && TopOf(*pNew) == TopOf(*pOld)) {
        Exchange(*pane, *pOld, *paneNew, *pNew);
        return true;
    }
    const UnitLink linkOld(pOld), linkNew(pNew);
    const CRect rc = RectInHost(*pOld);
    const bool bShow = pOld->m_bShow;
    if (order == Order::OldFirst)
        TellInUse(linkOld, false);
    if (!PutInto(*pane, linkOld, linkNew, bShow))
        return false;
    TellInUse(linkNew, true);
    MoveTo(linkNew, rc);
    if (order == Order::NewFirst)
        TellInUse(linkOld, false);
    return true;
}

} // namespace

bool CSplitLine::Replace(CString strName, CBaseUnitWnd* pNew)
{
    return pNew && ReplaceIn(FindPane(*this, strName), pNew, Order::NewFirst);
}

bool CSplitLine::Replace(CBaseUnitWnd* pOld, CBaseUnitWnd* pNew)
{
    return pOld && pNew && ReplaceIn(FindPane(*this, pOld->m_strName), pNew, Order::OldFirst);
}

bool CSplitLine::Replace(CString strSplitName, bool bFirst, CBaseUnitWnd* pNew)
{
    return pNew && ReplaceIn(FindPane(*this, strSplitName, bFirst), pNew, Order::NewFirst);
}

CBaseUnitWnd* CSplitLine::FindBaseUnitWnd(CString strSplitName, bool bFirst)
{
    const std::optional<Pane> pane = FindPane(*this, strSplitName, bFirst);
    return pane ? pane->Unit() : nullptr;
}
