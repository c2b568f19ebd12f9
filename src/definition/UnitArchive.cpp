// The archive form of a unit record: name, class, rectangle, edge rates, border. Limits and weights are not
// in it; a record that is read keeps its own.
#include "definition/UnitInfo.h"
#include "platform/file/Archive.h"

namespace {

void Write(CArchive& ar, const GUID& guid)
{
    ar << guid.Data1 << guid.Data2 << guid.Data3;
    ar.Write(guid.Data4, sizeof(guid.Data4));
}

void Read(CArchive& ar, GUID& guid)
{
    ar >> guid.Data1 >> guid.Data2 >> guid.Data3;
    for (BYTE& byte : guid.Data4)
        ar >> byte;
}

} // namespace

void CBaseUnitInfo::Serialize(CArchive& ar)
{
    if (ar.IsStoring()) {
        ar << m_strName;
        Write(ar, m_guid);
        ar << m_cx << m_cy << m_x << m_y;
        ar << m_dLeftRate << m_dTopRate << m_dRightRate << m_dBottomRate << m_nBorderStyle;
    } else {
        ar >> m_strName;
        Read(ar, m_guid);
        ar >> m_cx >> m_cy >> m_x >> m_y;
        ar >> m_dLeftRate >> m_dTopRate >> m_dRightRate >> m_dBottomRate >> m_nBorderStyle;
    }
}
