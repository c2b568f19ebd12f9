#include "definition/StyleReader.h"

#include "definition/FrameStyle.h"
#include "definition/LayoutValues.h"
#include "definition/UnitInfo.h"
#include "definition/UnitReader.h"
#include "document/NameIndex.h"
#include "document/SplitFaults.h"
#include "document/SplitPlan.h"

#include <algorithm>

namespace splitframe {
namespace {

constexpr double RATE_OF_A_LINE = 0.5; // when the text gives one that is too large

// Copies a text into a record's field. @return false when it does not fit; then nothing is copied
template <std::size_t SIZE> bool CopyText(wchar_t (&szField)[SIZE], const CString& strText)
{
    if (strText.GetLength() >= static_cast<int>(SIZE))
        return false;
    std::copy_n(strText.GetString(), strText.GetLength() + 1, szField);
    return true;
}

// What a side names as the frame will resolve it: lines of the style, then its own units, then any global
// unit.
class SideNames
{
public:
    SideNames(const CBaseFrameStyle& style, const UnitRecords& global) : m_lines(style), m_global(global)
    {
        for (const CBaseUnitInfo* pInfo : style.m_arrBaseUnitInfo) {
            if (!pInfo->m_bGlobal)
                m_mapOwn.try_emplace(pInfo->m_strName, pInfo);
        }
    }

    SplitSide Resolve(const CString& strName)
    {
        if (const int nLine = m_lines.Find(strName); nLine >= 0)
            return {SplitSide::Kind::Line, nLine};
        const auto it = m_mapOwn.find(strName);
        const CBaseUnitInfo* pInfo = it != m_mapOwn.end() ? it->second : m_global.Find(strName);
        if (!pInfo)
            return {};
        return {SplitSide::Kind::Leaf,
                m_mapLeaf.try_emplace(pInfo, static_cast<int>(m_mapLeaf.size())).first->second};
    }

    int GetLeafCount() const { return static_cast<int>(m_mapLeaf.size()); }

private:
    LineNames m_lines;
    const UnitRecords& m_global;
    std::unordered_map<CString, const CBaseUnitInfo*> m_mapOwn;
    std::unordered_map<const CBaseUnitInfo*, int> m_mapLeaf;
};

} // namespace

void UnitRecords::Add(CBaseUnitInfo* pInfo)
{
    m_mapInfo.try_emplace(pInfo->m_strName, pInfo);
}

CBaseUnitInfo* UnitRecords::Find(const CString& strName) const
{
    const auto it = m_mapInfo.find(strName);
    return it == m_mapInfo.end() ? nullptr : it->second;
}

std::vector<std::unique_ptr<CBaseFrameStyle>> StyleReader::ReadAll(LayoutText::Element& frame)
{
    std::vector<std::unique_ptr<CBaseFrameStyle>> arrStyle;
    UniqueNames names;
    while (frame.Find(L"STYLE")) {
        arrStyle.push_back(Read(frame.Child()));
        const CString& strName = arrStyle.back()->m_strName;
        if (!names.Add(strName))
            m_faults.Report(L"an earlier style of this frame has the same name", strName,
                            frame.ChildPosition());
    }
    return arrStyle;
}

std::unique_ptr<CBaseFrameStyle> StyleReader::Read(LayoutText::Element style)
{
    auto pStyle = std::make_unique<CBaseFrameStyle>();
    FindRequired(style, L"NAME", L"", m_faults);
    pStyle->m_strName = style.Data();
    m_faults.strStyle = pStyle->m_strName;
    while (style.Find(L"BaseUnit"))
        ReadReference(style, *pStyle);
    std::vector<int> arrPosition;
    while (style.Find(L"SPLIT")) {
        if (ReadLine(style, *pStyle))
            arrPosition.push_back(style.ChildPosition());
    }
    CheckLines(*pStyle, arrPosition);
    m_faults.strStyle.Empty();
    return pStyle;
}

void StyleReader::ReadReference(const LayoutText::Element& style, CBaseFrameStyle& read)
{
    const CString strName = style.Attrib(L"NAME");
    CBaseUnitInfo* pInfo = m_own.Find(strName);
    if (!pInfo) {
        pInfo = m_global.Find(strName);
        if (!pInfo) {
            m_faults.Report(L"no unit has this name; the reference is dropped", strName,
                            style.ChildPosition());
            return;
        }
        pInfo->m_bGlobal = true;
    }
    read.m_arrBaseUnitInfo.Add(pInfo);
    read.m_arrParam.Add(style.Attrib(L"PARAM"));
}

bool StyleReader::ReadLine(const LayoutText::Element& style, CBaseFrameStyle& read)
{
    auto pLine = std::make_unique<_SPLIT_INFO>();
    const CString strName = style.Attrib(L"NAME");
    const bool bFits = CopyText(pLine->szName, strName) && CopyText(pLine->szType, style.Attrib(L"TYPE")) &&
                       CopyText(pLine->szLeft, style.Attrib(L"LEFT")) &&
                       CopyText(pLine->szRight, style.Attrib(L"RIGHT"));
    if (!bFits) {
        m_faults.Report(L"a text of this split line is longer than 19 characters; the line is not loaded",
                        strName, style.ChildPosition());
        return false;
    }
    pLine->bMobile = !(style.Attrib(L"MOBILE") == L"0");
    pLine->dLRate = TextToRate(style.Attrib(L"LRATE"), RATE_OF_A_LINE);
    read.m_arrSplitInfo.Add(pLine.get());
    static_cast<void>(pLine.release());
    return true;
}

void StyleReader::CheckLines(const CBaseFrameStyle& read, const std::vector<int>& arrPosition)
{
    SideNames names(read, m_global);
    std::vector<SplitSides> arrWanted;
    for (const _SPLIT_INFO* pLine : read.m_arrSplitInfo) {
        const SplitSide first = names.Resolve(pLine->szLeft);
        arrWanted.push_back({first, names.Resolve(pLine->szRight)});
    }
    FindSplitFaults(read, arrWanted, PlanSplitTree(arrWanted, names.GetLeafCount()),
                    [&](int nLine, const wchar_t* pszMessage, const CString& strName) {
                        m_faults.Report(pszMessage, strName, arrPosition[static_cast<std::size_t>(nLine)]);
                    });
}

} // namespace splitframe
