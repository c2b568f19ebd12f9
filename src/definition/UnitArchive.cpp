// The archive form of a unit record: name, class, rectangle, edge rates, border. Limits and weights are not
// in it; a record that is read keeps its own.
#include "definition/UnitInfo.h"
#include "platform/file/Archive.h"

namespace {

// The last eight bytes of a GUID stand in their order, as those of a little-endian number do.
void Write(CArchive& ar, const GUID& guid)
{
    ar << guid.Data1 << guid.Data2 << guid.Data3 << splitframe::GetLittleEndian<std::uint64_t>(guid.Data4);
}

void Read(CArchive& ar, GUID& guid)
{
    std::uint64_t nLast = 0;
    ar >> guid.Data1 >> guid.Data2 >> guid.Data3 >> nLast;
    splitframe::PutLittleEndian(guid.Data4, nLast);
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
