// Writes a split tree as indented text.
#include "layout/TreeDump.h"

#include "definition/UnitInfo.h"
#include "layout/internal/NodeTable.h"
#include "platform/base/Number.h"
#include "platform/window/WindowManager.h"
#include "unit/BaseUnitWnd.h"

namespace splitframe {

namespace {

// Limits that are not the usual "any size".
std::string LimitsText(const char* pszAxis, int nMin, int nMax)
{
    const CBaseUnitInfo usual;
    if (nMin == nMax)
        return std::string(" ") + pszAxis + "=" + std::to_string(nMin);
    if (nMin == usual.m_nMinWidth && nMax == usual.m_nMaxWidth)
        return {};
    return std::string(" ") + pszAxis + "=" + std::to_string(nMin) + ".." + std::to_string(nMax);
}

std::string UnitText(const CBaseUnitWnd* pUnit)
{
    if (!pUnit)
        return " gone";
    std::string strText;
    if (const CBaseUnitInfo* pInfo = pUnit->m_pBaseUnitInfo) {
        strText += LimitsText("width", pInfo->m_nMinWidth, pInfo->m_nMaxWidth);
        strText += LimitsText("height", pInfo->m_nMinHeight, pInfo->m_nMaxHeight);
    }
    if (!::IsWindow(pUnit->m_hWnd))
        strText += " no-window";
    else if (!::IsWindowVisible(pUnit->m_hWnd))
        strText += " hidden";
    return strText;
}

std::string NodeText(const CSplitLine& node, const CRect& rc, const std::string& strRemark)
{
    static const char* const KINDS[] = {"HLINE ", "VLINE ", "UNIT "};
    const bool bUnit = node.m_nType == CSplitLine::NT_UNIT;
    std::string strText = KINDS[bUnit ? 2 : node.m_nType == CSplitLine::NT_HLINE ? 0 : 1];
    strText += node.m_strName.IsEmpty() ? "(unnamed)" : node.m_strName.ToUtf8();
    strText += bUnit ? UnitText(node.GetUnitWnd()) : " rate=" + RealToText(node.m_dLRate).ToUtf8();
    if (node.m_bMobile)
        strText += " movable";
    if (!node.m_bShow)
        strText += " collapsed";
    if (!strRemark.empty())
        strText += " " + strRemark;
    return strText + "  " + std::to_string(rc.left) + "," + std::to_string(rc.top) + " " +
           std::to_string(rc.Width()) + "x" + std::to_string(rc.Height());
}

void AddLine(std::string& strDump, int nDepth, const std::string& strText)
{
    // A very deep tree is dumped in linear space: beyond this depth the number stands for the blanks.
    constexpr int MAX_INDENT = 64;
    strDump.append(2 * static_cast<std::size_t>(std::min(nDepth, MAX_INDENT)), ' ');
    if (nDepth > MAX_INDENT)
        strDump += "[" + std::to_string(nDepth) + "] ";
    strDump += strText + "\n";
}

} // namespace

std::string DumpTree(const CSplitLine& node, const std::function<std::string(const CSplitLine&)>& remark)
{
    CNodeTable table;
    table.Build(const_cast<CSplitLine&>(node)); // a question: nothing is changed through it
    std::vector<CRect> arrRect;
    FoldViewRects(table, arrRect);
    std::vector<int> arrDepth(static_cast<std::size_t>(table.GetCount()), 0);
    std::string strDump;
    for (int i = 0; i < table.GetCount(); ++i) {
        const auto nIndex = static_cast<std::size_t>(i);
        const CSplitLine& each = *table[i].pNode;
        AddLine(strDump, arrDepth[nIndex],
                NodeText(each, arrRect[nIndex], remark ? remark(each) : std::string()));
        for (const int nSide : {table.FirstOf(i), table[i].nSecond}) {
            if (nSide >= 0)
                arrDepth[static_cast<std::size_t>(nSide)] = arrDepth[nIndex] + 1;
        }
    }
    return strDump;
}

} // namespace splitframe
