#include "definition/UnitReader.h"

#include "definition/LayoutValues.h"
#include "definition/UnitInfo.h"
#include "document/ObjectFactory.h"
#include "platform/base/Number.h"

namespace splitframe {
namespace {

constexpr double RATE_TOO_LARGE = 0.0;

void ReadClass(LayoutText::Element& unit, CBaseUnitInfo& read, const LayoutFaults& faults)
{
    FindRequired(unit, L"GUID", read.m_strName, faults);
    if (!TextToGuid(unit.Data(), read.m_guid))
        faults.Report(L"the GUID of this unit can not be read", read.m_strName, unit.ChildPosition());
    else if (!IsUnitClass(read.m_guid))
        faults.Report(L"no usable unit class has this GUID; the unit is skipped", read.m_strName,
                      unit.ChildPosition());
}

void ReadRectangle(LayoutText::Element& unit, CBaseUnitInfo& read, const LayoutFaults& faults)
{
    FindRequired(unit, L"LOCATION", read.m_strName, faults);
    read.m_x = TextToInt(unit.Attrib(L"X"));
    read.m_y = TextToInt(unit.Attrib(L"Y"));
    FindRequired(unit, L"SIZE", read.m_strName, faults);
    read.m_cx = TextToInt(unit.Attrib(L"CX"));
    read.m_cy = TextToInt(unit.Attrib(L"CY"));
}

void ReadBorder(LayoutText::Element& unit, CBaseUnitInfo& read, const LayoutFaults& faults)
{
    FindRequired(unit, L"BORDERSTYLE", read.m_strName, faults);
    read.m_nBorderStyle = TextToInt(unit.Data());
    const struct
    {
        const wchar_t* pszName;
        double& dRate;
    } edges[] = {{L"LEFTRATE", read.m_dLeftRate},
                 {L"TOPRATE", read.m_dTopRate},
                 {L"RIGHTRATE", read.m_dRightRate},
                 {L"BOTTOMRATE", read.m_dBottomRate}};
    for (const auto& edge : edges) {
        FindRequired(unit, edge.pszName, read.m_strName, faults);
        edge.dRate = TextToRate(unit.Data(), RATE_TOO_LARGE);
    }
}

void ReadOptionalRate(const LayoutText::Element& unit, const wchar_t* pszAttrib, double& dRate)
{
    const CString strValue = unit.Attrib(pszAttrib);
    if (!strValue.IsEmpty())
        dRate = TextToRate(strValue, RATE_TOO_LARGE);
}

void ReadOptionalInt(const LayoutText::Element& unit, const wchar_t* pszAttrib, int& nValue)
{
    const CString strValue = unit.Attrib(pszAttrib);
    if (!strValue.IsEmpty())
        nValue = TextToInt(strValue);
}

void ReadOptional(LayoutText::Element& unit, CBaseUnitInfo& read)
{
    if (unit.Find(L"RATE")) {
        ReadOptionalRate(unit, L"WIDTH", read.m_dWidthRate);
        ReadOptionalRate(unit, L"HEIGHT", read.m_dHeightRate);
    }
    if (unit.Find(L"HEIGHT")) {
        ReadOptionalInt(unit, L"MIN", read.m_nMinHeight);
        ReadOptionalInt(unit, L"MAX", read.m_nMaxHeight);
    }
    if (unit.Find(L"WIDTH")) {
        ReadOptionalInt(unit, L"MIN", read.m_nMinWidth);
        ReadOptionalInt(unit, L"MAX", read.m_nMaxWidth);
    }
}

std::unique_ptr<CBaseUnitInfo> ReadUnit(LayoutText::Element unit, const LayoutFaults& faults)
{
    auto pInfo = std::make_unique<CBaseUnitInfo>();
    FindRequired(unit, L"NAME", L"", faults);
    pInfo->m_strName = unit.Data();
    ReadClass(unit, *pInfo, faults);
    ReadRectangle(unit, *pInfo, faults);
    ReadBorder(unit, *pInfo, faults);
    ReadOptional(unit, *pInfo);
    return pInfo;
}

} // namespace

void FindRequired(LayoutText::Element& parent, const wchar_t* pszName, const CString& strOf,
                  const LayoutFaults& faults)
{
    if (parent.Find(pszName))
        return;
    CString strMessage;
    strMessage.Format(L"the required element %s is missing", pszName);
    faults.Report(strMessage, strOf, parent.Position());
}

std::vector<std::unique_ptr<CBaseUnitInfo>> ReadUnits(LayoutText::Element& parent, const LayoutFaults& faults)
{
    std::vector<std::unique_ptr<CBaseUnitInfo>> arrInfo;
    UniqueNames names;
    while (parent.Find(L"BaseUnit")) {
        arrInfo.push_back(ReadUnit(parent.Child(), faults));
        const CString& strName = arrInfo.back()->m_strName;
        if (!names.Add(strName))
            faults.Report(L"an earlier unit has the same name", strName, parent.ChildPosition());
    }
    return arrInfo;
}

} // namespace splitframe
