#include "document/UnitID.h"

#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "platform/base/Number.h"

namespace splitframe {

int UnitIDOf(const CString& strParam)
{
    const int nAt = strParam.Find(L"ID");
    return nAt < 0 ? NO_UNIT_ID : TextToInt(strParam.Mid(nAt + 3));
}

bool EntryGivesID(const CBaseFrameStyle& style, int nEntry, const GUID& guid, const CString& strName,
                  int& nID)
{
    const CBaseUnitInfo* pInfo = style.m_arrBaseUnitInfo.GetAt(nEntry);
    const CString& strParam = style.m_arrParam.GetAt(nEntry);
    if (!(pInfo->m_guid == guid) || !(pInfo->m_strName == strName) || strParam.Find(L"ID") < 0)
        return false;
    nID = UnitIDOf(strParam);
    return true;
}

int UnitIDInStyle(const CBaseFrameStyle& style, const std::vector<int>& arrEntry, const GUID& guid,
                  const CString& strName)
{
    int nID = NO_UNIT_ID;
    for (const int nEntry : arrEntry) {
        if (EntryGivesID(style, nEntry, guid, strName, nID))
            break;
    }
    return nID;
}

} // namespace splitframe
