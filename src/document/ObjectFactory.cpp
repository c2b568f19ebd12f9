#include "document/ObjectFactory.h"

#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "unit/BaseUnitWnd.h"

namespace splitframe {
namespace {

template <class TYPE> bool Makes(const CRuntimeClass* pClass)
{
    return pClass && pClass->m_pfnCreateObject && pClass->IsDerivedFrom(TYPE::GetThisClass());
}

template <class TYPE> std::unique_ptr<TYPE> Make(const CRuntimeClass* pClass)
{
    if (!Makes<TYPE>(pClass))
        return nullptr;
    // The record names the class, the object is what the host's function made: trust neither without the
    // other.
    std::unique_ptr<CObject> pObject(pClass->CreateObject());
    TYPE* pMade = DynamicDownCast<TYPE>(pObject.get());
    if (pMade)
        static_cast<void>(pObject.release());
    return std::unique_ptr<TYPE>(pMade);
}

} // namespace

bool IsUnitClass(const GUID& guid)
{
    return Makes<CBaseUnitWnd>(CBaseFrameDoc::GetRCBaseUnit(guid));
}

bool IsHelperClass(const GUID& guid)
{
    return Makes<CBaseFrameHelper>(CBaseFrameDoc::GetRCHelper(guid));
}

std::unique_ptr<CBaseUnitWnd> MakeUnit(const GUID& guid)
{
    return Make<CBaseUnitWnd>(CBaseFrameDoc::GetRCBaseUnit(guid));
}

std::unique_ptr<CBaseFrameHelper> MakeHelper(const GUID& guid)
{
    return Make<CBaseFrameHelper>(CBaseFrameDoc::GetRCHelper(guid));
}

std::unique_ptr<CBaseFrameHelper> MakeHelperLike(const CBaseFrameHelper& helper)
{
    return Make<CBaseFrameHelper>(helper.GetRuntimeClass());
}

} // namespace splitframe
