// Dragging of split lines: finds the line at a point, follows the mouse with the indicator, and on release
// lays the line's two sides out.
// Knows the tree and the host window's client coordinates; knows no view. While a drag lasts no pane moves:
// the indicator is the only thing on the screen that changes.
#include "layout/SplitLine.h"
#include "layout/internal/NodeTable.h"
#include "platform/window/Wnd.h"

using splitframe::AddClamped;
using splitframe::CNodeTable;
using splitframe::CSplitLineLink;
using splitframe::SubtractClamped;

namespace {

// The drag indicator's position while it is nowhere.
constexpr CPoint NOWHERE(-1, -1);

// A line is hit this wide; parts that stand closer are widened to it. The two kinds differ in how close that
// is.
constexpr int BAND_WIDTH = 5;
constexpr int CLOSE_BESIDE = 5;
constexpr int CLOSE_STACKED = 3;

// Where the two sides of a line stand now.
struct Sides
{
    CRect rcFirst;
    CRect rcSecond;
};

// A line along the axis that it divides: whose edges count, and where a point is.
struct Span
{
    int nFrom; // of the first side
    int nTo;   // of the second side
    int nAt;   // of the point
};

bool IsStacked(const CSplitLine& line)
{
    return line.m_nType == CSplitLine::NT_HLINE;
}

Span SpanOf(const CSplitLine& line, const Sides& sides, const CPoint& pt)
{
    if (IsStacked(line))
        return {sides.rcFirst.top, sides.rcSecond.bottom, pt.y};
    return {sides.rcFirst.left, sides.rcSecond.right, pt.x};
}

// How far a band reaches beyond a gap on both sides.
int Reach(int nFrom, int nTo, int nClose)
{
    const std::int64_t nGap = std::int64_t{nTo} - nFrom;
    return nGap < nClose ? splitframe::ClampToInt((BAND_WIDTH - nGap) / 2) : 0;
}

CRect BandOf(const CSplitLine& line, const Sides& sides)
{
    const CRect& a = sides.rcFirst;
    const CRect& b = sides.rcSecond;
    CRect rcBand;
    if (IsStacked(line)) {
        rcBand = {a.left, a.bottom, b.right, b.top};
        rcBand.InflateRect(0, Reach(a.bottom, b.top, CLOSE_STACKED));
    } else {
        rcBand = {a.right, a.top, b.left, b.bottom};
        rcBand.InflateRect(Reach(a.right, b.left, CLOSE_BESIDE), 0);
    }
    return rcBand;
}

// The sides of a line in a table; false when one is missing: such a line divides nothing.
bool FindSides(const CNodeTable& table, int nIndex, const std::vector<CRect>& arrRect, Sides& sides)
{
    const int nFirst = table.FirstOf(nIndex);
    const int nSecond = table[nIndex].nSecond;
    if (table[nIndex].pNode->m_nType == CSplitLine::NT_UNIT || nFirst < 0 || nSecond < 0)
        return false;
    sides = {arrRect[static_cast<std::size_t>(nFirst)], arrRect[static_cast<std::size_t>(nSecond)]};
    return true;
}

bool FindSides(const CSplitLine& line, Sides& sides)
{
    CNodeTable table;
    table.Build(const_cast<CSplitLine&>(line)); // a question: nothing is changed through it
    std::vector<CRect> arrRect;
    FoldViewRects(table, arrRect);
    return FindSides(table, 0, arrRect, sides);
}

// The indicator of a line across its second side, at its edge or at a position of a drag.
void EndPoints(const CSplitLine& line, const CRect& rcSecond, int nAt, CPoint& ptFrom, CPoint& ptTo)
{
    const bool bStacked = IsStacked(line);
    ptFrom = bStacked ? CPoint(rcSecond.left, nAt) : CPoint(nAt, rcSecond.top);
    ptTo = bStacked ? CPoint(rcSecond.right, nAt) : CPoint(nAt, rcSecond.bottom);
}

// The position where a drag ends. When the sides want more than there is, the second one gets its least size.
int ClampDrag(const Span& span, int nMinFirst, int nMinSecond)
{
    int nAt = span.nAt;
    if (std::int64_t{nAt} - span.nFrom < nMinFirst)
        nAt = AddClamped(span.nFrom, nMinFirst);
    if (std::int64_t{span.nTo} - nAt < nMinSecond)
        nAt = SubtractClamped(span.nTo, nMinSecond);
    return nAt;
}

} // namespace

CSplitLine* CSplitLine::HitTest(CPoint pt) const
{
    CNodeTable table;
    table.Build(const_cast<CSplitLine&>(*this)); // a question: nothing is changed through it
    std::vector<CRect> arrRect;
    FoldViewRects(table, arrRect);
    for (int i = 0; i < table.GetCount(); ++i) {
        Sides sides;
        if (table[i].pNode->m_bMobile && FindSides(table, i, arrRect, sides) &&
            BandOf(*table[i].pNode, sides).PtInRect(pt))
            return table[i].pNode;
    }
    return nullptr;
}

bool CSplitLine::GetSplitLineRect(CRect& rc) const
{
    Sides sides;
    if (!FindSides(*this, sides))
        return false;
    rc = BandOf(*this, sides);
    return true;
}

bool CSplitLine::GetSplitLinePos(CPoint& ptFrom, CPoint& ptTo) const
{
    Sides sides;
    if (!FindSides(*this, sides))
        return false;
    EndPoints(*this, sides.rcSecond, IsStacked(*this) ? sides.rcSecond.top : sides.rcSecond.left, ptFrom,
              ptTo);
    return true;
}

void CSplitLine::DrawIndicator(CPoint ptFrom, CPoint ptTo)
{
    if (!m_pHostWnd || !m_pHostWnd->GetSafeHwnd())
        return m_indicator.Hide();
    m_pHostWnd->ClientToScreen(&ptFrom);
    m_pHostWnd->ClientToScreen(&ptTo);
    m_indicator.Show(ptFrom, ptTo);
}

void CSplitLine::DrawSplitLineByPos(CPoint pt)
{
    if (pt == NOWHERE) {
        m_indicator.Hide();
        m_ptIndicator = pt;
        return;
    }
    Sides sides;
    if (!FindSides(*this, sides))
        return;
    const Span span = SpanOf(*this, sides, pt);
    const auto leastOf = [this](const CSplitLine& side) {
        return IsStacked(*this) ? side.GetMinHeight(m_nType) : side.GetMinWidth(m_nType);
    };
    if (std::int64_t{span.nAt} - span.nFrom < leastOf(*m_pFirst) ||
        std::int64_t{span.nTo} - span.nAt < leastOf(*m_pSecond))
        return;
    m_ptIndicator = pt;
    CPoint ptFrom, ptTo;
    EndPoints(*this, sides.rcSecond, span.nAt, ptFrom, ptTo);
    DrawIndicator(ptFrom, ptTo);
}

void CSplitLine::ModifyWindow(CPoint pt)
{
    DrawSplitLineByPos(NOWHERE);
    Sides sides;
    if (!FindSides(*this, sides))
        return;
    const bool bStacked = IsStacked(*this);
    const auto leastOf = [&](const CSplitLine& side) {
        return bStacked ? side.GetMinHeight() : side.GetMinWidth();
    };
    const int nAt = ClampDrag(SpanOf(*this, sides, pt), leastOf(*m_pFirst), leastOf(*m_pSecond));
    CRect rcFirst = GetViewRect();
    CRect rcSecond = rcFirst;
    (bStacked ? rcFirst.bottom : rcFirst.right) = nAt;
    (bStacked ? rcSecond.top : rcSecond.left) = nAt;

    // Laying out the one side runs host code, which may take the other side, or this line, away.
    const CSplitLineLink self(this);
    for (const bool bFirst : {true, false}) {
        CSplitLine* pSide = self ? CNodeTable::SideOf(*this, bFirst, *this) : nullptr;
        if (pSide)
            pSide->ModifyWindow2(bFirst ? rcFirst : rcSecond, m_nType);
    }
}

bool CSplitLine::EnableMove(CString strName, bool bEnable)
{
    CNodeTable table;
    table.Build(*this);
    for (int i = 0; i < table.GetCount(); ++i) {
        for (const int nSide : {table.FirstOf(i), table[i].nSecond}) {
            if (nSide >= 0 && table[nSide].pNode->m_strName == strName) {
                table[i].pNode->m_bMobile = bEnable;
                return true;
            }
        }
    }
    return false;
}

bool CSplitLine::EnableMove(CString strName, bool bFirst, bool bEnable)
{
    CNodeTable table;
    table.Build(*this);
    for (int i = 0; i < table.GetCount(); ++i) {
        if (table[i].pNode->m_strName == strName && (bFirst ? table.FirstOf(i) : table[i].nSecond) >= 0) {
            table[i].pNode->m_bMobile = bEnable;
            return true;
        }
    }
    return false;
}
