// The tables of --list.
#include "Listing.h"

#include "Printable.h"
#include "TextTable.h"
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "frame/BaseFrameWnd.h"
#include "platform/base/Number.h"

#include <string_view>

namespace viewer {
namespace {

std::string GuidText(const GUID& guid)
{
    CString strText;
    strText.Format(L"%08X-%04X-%04X-%02X%02X-", guid.Data1, guid.Data2, guid.Data3, guid.Data4[0],
                   guid.Data4[1]);
    for (int nByte = 2; nByte < 8; ++nByte)
        strText.AppendFormat(L"%02X", guid.Data4[nByte]);
    return strText.ToUtf8();
}

std::string RealText(double dValue)
{
    return splitframe::RealToText(dValue).ToUtf8();
}

std::string PlaceText(const CBaseUnitInfo& info)
{
    return std::to_string(info.m_x) + "," + std::to_string(info.m_y) + " " + std::to_string(info.m_cx) + "x" +
           std::to_string(info.m_cy);
}

// A size that is free between the limits that every unit has anyway is not worth a word.
std::string LimitText(int nMin, int nMax)
{
    static const CBaseUnitInfo usual;
    if (nMin == nMax)
        return "fixed " + std::to_string(nMin);
    if (nMin == usual.m_nMinWidth && nMax == usual.m_nMaxWidth)
        return "free";
    return std::to_string(nMin) + " to " + std::to_string(nMax);
}

std::string BorderText(const CBaseUnitInfo& info)
{
    return info.m_nBorderStyle == 0 ? "none" : info.m_nBorderStyle == 1 ? "drawn, by rates" : "drawn";
}

std::string RatesText(const CBaseUnitInfo& info)
{
    return RealText(info.m_dLeftRate) + " " + RealText(info.m_dTopRate) + " " + RealText(info.m_dRightRate) +
           " " + RealText(info.m_dBottomRate);
}

std::string UnitTable(const CArray<CBaseUnitInfo*, CBaseUnitInfo*>& arrInfo)
{
    if (arrInfo.IsEmpty())
        return "    none\n";
    TextTable table({"NAME", "CLASS", "PLACE", "EDGE RATES", "BORDER", "WIDTH", "HEIGHT"});
    for (const CBaseUnitInfo* pInfo : arrInfo)
        table.AddRow({Printable(pInfo->m_strName), GuidText(pInfo->m_guid), PlaceText(*pInfo),
                      RatesText(*pInfo), BorderText(*pInfo),
                      LimitText(pInfo->m_nMinWidth, pInfo->m_nMaxWidth),
                      LimitText(pInfo->m_nMinHeight, pInfo->m_nMaxHeight)});
    return table.ToText(4);
}

std::string StyleUnitTable(const CBaseFrameStyle& style)
{
    TextTable table({"UNIT", "KIND", "PARAMETER"});
    for (int nUnit = 0; nUnit < style.m_arrBaseUnitInfo.GetSize(); ++nUnit) {
        const CBaseUnitInfo& info = *style.m_arrBaseUnitInfo[nUnit];
        table.AddRow({Printable(info.m_strName), info.m_bGlobal ? "global" : "own",
                      Printable(style.m_arrParam[nUnit])});
    }
    return table.IsEmpty() ? "      no units\n" : table.ToText(6);
}

std::string SplitTable(const CBaseFrameStyle& style)
{
    TextTable table({"LINE", "TYPE", "FIRST", "SECOND", ">RATE", "MOVABLE"});
    for (const _SPLIT_INFO* pSplit : style.m_arrSplitInfo) {
        const bool bHorizontal = std::wstring_view(pSplit->szType) == L"H_LINE";
        table.AddRow({Printable(pSplit->szName), bHorizontal ? "horizontal" : "vertical",
                      Printable(pSplit->szLeft), Printable(pSplit->szRight), RealText(pSplit->dLRate),
                      pSplit->bMobile ? "yes" : "no"});
    }
    return table.IsEmpty() ? "      no split lines\n" : table.ToText(6);
}

std::string CountText(int nCount, const std::string& strOne)
{
    return std::to_string(nCount) + " " + strOne + (nCount == 1 ? "" : "s");
}

} // namespace

std::string ListGlobals(const CBaseFrameWnd& frame)
{
    const auto& arrGlobal = frame.GetGlobalBaseUnitInfos();
    std::string strText = CountText(frame.GetBaseFrameDocs().GetSize(), "frame") + ", " +
                          CountText(arrGlobal.GetSize(), "global unit") + "\n";
    if (!arrGlobal.IsEmpty())
        strText += "\nGlobal units\n" + UnitTable(arrGlobal);
    return strText;
}

std::string ListFrame(const CBaseFrameDoc& definition)
{
    return "\nFrame " + Printable(definition.m_strName) + "\n  Units\n" +
           UnitTable(definition.m_arrBaseUnitInfo);
}

std::string ListStyle(const CBaseFrameStyle& style)
{
    return "\n  Style " + Printable(style.m_strName) + "\n" + StyleUnitTable(style) + "\n" +
           SplitTable(style);
}

} // namespace viewer
