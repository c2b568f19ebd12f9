// The registry of the host's classes: static tables of CBaseFrameDoc. A GUID's position in its array is the
// key of its class in the map beside it. The tables own nothing and are never emptied: runtime-class records
// live as long as the modules that hold them.
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "unit/BaseUnitWnd.h"

CArray<GUID, const GUID&> CBaseFrameDoc::m_arrGuid;
CMap<int, int, CRuntimeClass*, CRuntimeClass*> CBaseFrameDoc::m_mapGuidIndex2RCBaseUnit;
CArray<GUID, const GUID&> CBaseFrameDoc::m_arrGuidHelper;
CMap<int, int, CRuntimeClass*, CRuntimeClass*> CBaseFrameDoc::m_mapGuidIndex2RCHelper;

namespace {

using Guids = CArray<GUID, const GUID&>;
using Classes = CMap<int, int, CRuntimeClass*, CRuntimeClass*>;

void Register(Guids& arrGuid, Classes& mapClass, const GUID& guid, CRuntimeClass* pClass)
{
    mapClass.SetAt(arrGuid.Add(guid), pClass);
}

void RegisterAll(Guids& arrGuid, Classes& mapClass, const GUID* pGuid, CRuntimeClass* const* ppClass,
                 int nCount)
{
    if (!pGuid || !ppClass)
        return;
    for (int i = 0; i < nCount; ++i)
        Register(arrGuid, mapClass, pGuid[i], ppClass[i]);
}

CRuntimeClass* Find(const Guids& arrGuid, const Classes& mapClass, const GUID& guid)
{
    const GUID* pFound = std::find(arrGuid.begin(), arrGuid.end(), guid);
    CRuntimeClass* pClass = nullptr;
    if (pFound != arrGuid.end())
        mapClass.Lookup(static_cast<int>(pFound - arrGuid.begin()), pClass);
    return pClass;
}

} // namespace

int CBaseFrameDoc::Initialize(const GUID* pGuid, CRuntimeClass* const* ppClass, int nCount,
                              const GUID* pGuidHelper, CRuntimeClass* const* ppClassHelper, int nCountHelper)
{
    RegisterAll(m_arrGuid, m_mapGuidIndex2RCBaseUnit, pGuid, ppClass, nCount);
    RegisterAll(m_arrGuidHelper, m_mapGuidIndex2RCHelper, pGuidHelper, ppClassHelper, nCountHelper);
    return 1;
}

CBaseUnitWnd* CBaseFrameDoc::RegisterBaseWnd(CBaseUnitWnd* pUnit)
{
    if (pUnit) {
        const GUID guid = pUnit->GetGUID();
        Register(m_arrGuid, m_mapGuidIndex2RCBaseUnit, guid, pUnit->GetRuntimeClass());
    }
    return pUnit;
}

CBaseFrameHelper* CBaseFrameDoc::RegisterBaseHelper(CBaseFrameHelper* pHelper)
{
    if (pHelper) {
        const GUID guid = pHelper->GetGUID();
        Register(m_arrGuidHelper, m_mapGuidIndex2RCHelper, guid, pHelper->GetRuntimeClass());
    }
    return pHelper;
}

CRuntimeClass* CBaseFrameDoc::GetRCBaseUnit(GUID guid)
{
    return Find(m_arrGuid, m_mapGuidIndex2RCBaseUnit, guid);
}

CRuntimeClass* CBaseFrameDoc::GetRCHelper(GUID guid)
{
    return Find(m_arrGuidHelper, m_mapGuidIndex2RCHelper, guid);
}

GUID CBaseFrameDoc::GetGuid(int nPos)
{
    return m_arrGuid.GetAt(nPos);
}
