// Runtime classes: kind queries, look-up by name, making objects.
#include "platform/base/Object.h"

#include "platform/base/ClassList.h"
#include "platform/base/String.h"

#include <string_view>

namespace splitframe {

static constinit ClassLists g_classLists;

ClassLists& GetClassLists()
{
    return g_classLists;
}

bool Unlink(CRuntimeClass*& pFirst, CRuntimeClass* pClass)
{
    for (CRuntimeClass** ppLink = &pFirst; *ppLink; ppLink = &(*ppLink)->m_pNextClass) {
        if (*ppLink == pClass) {
            *ppLink = pClass->m_pNextClass;
            pClass->m_pNextClass = nullptr;
            return true;
        }
    }
    return false;
}

static CRuntimeClass* FindIn(CRuntimeClass* pFirst, std::string_view name)
{
    for (CRuntimeClass* pClass = pFirst; pClass; pClass = pClass->m_pNextClass) {
        if (name == pClass->m_lpszClassName)
            return pClass;
    }
    return nullptr;
}

} // namespace splitframe

using namespace splitframe;

CRuntimeClass CObject::classCObject{"CObject", static_cast<int>(sizeof(CObject)), nullptr, nullptr};
static const AFX_CLASSINIT initCObject(&CObject::classCObject);

CRuntimeClass* CObject::GetThisClass()
{
    return &classCObject;
}

CRuntimeClass* CObject::GetRuntimeClass() const
{
    return &classCObject;
}

void CObject::Serialize(CArchive& /*ar*/) {}

bool CObject::IsKindOf(const CRuntimeClass* pClass) const
{
    return GetRuntimeClass()->IsDerivedFrom(pClass);
}

CObject* CRuntimeClass::CreateObject() const
{
    return m_pfnCreateObject ? m_pfnCreateObject() : nullptr;
}

CObject* CRuntimeClass::CreateObject(const char* pszClassName)
{
    const CRuntimeClass* pClass = FromName(pszClassName);
    return pClass ? pClass->CreateObject() : nullptr;
}

CObject* CRuntimeClass::CreateObject(const wchar_t* pszClassName)
{
    const CRuntimeClass* pClass = FromName(pszClassName);
    return pClass ? pClass->CreateObject() : nullptr;
}

bool CRuntimeClass::IsDerivedFrom(const CRuntimeClass* pBaseClass) const
{
    for (const CRuntimeClass* pClass = this; pClass; pClass = pClass->m_pBaseClass) {
        if (pClass == pBaseClass)
            return true;
    }
    return false;
}

CRuntimeClass* CRuntimeClass::FromName(const char* pszClassName)
{
    if (!pszClassName)
        return nullptr;
    ClassLists& lists = GetClassLists();
    const std::lock_guard guard(lists.lock);
    if (CRuntimeClass* pClass = FindIn(lists.pCommon, pszClassName))
        return pClass;
    for (AFX_EXTENSION_MODULE* pModule = lists.pModules; pModule; pModule = pModule->pNextModule) {
        if (!pModule->pLibraries)
            continue;
        if (CRuntimeClass* pClass = FindIn(pModule->pFirstClass, pszClassName))
            return pClass;
    }
    return nullptr;
}

CRuntimeClass* CRuntimeClass::FromName(const wchar_t* pszClassName)
{
    return pszClassName ? FromName(CString(pszClassName).ToUtf8().c_str()) : nullptr;
}

AFX_CLASSINIT::AFX_CLASSINIT(CRuntimeClass* pNewClass) : m_pClass(pNewClass)
{
    ClassLists& lists = GetClassLists();
    const std::lock_guard guard(lists.lock);
    m_pClass->m_pNextClass = lists.pCommon;
    lists.pCommon = m_pClass;
}

AFX_CLASSINIT::~AFX_CLASSINIT()
{
    ClassLists& lists = GetClassLists();
    const std::lock_guard guard(lists.lock);
    if (Unlink(lists.pCommon, m_pClass))
        return;
    for (AFX_EXTENSION_MODULE* pModule = lists.pModules; pModule; pModule = pModule->pNextModule) {
        if (Unlink(pModule->pFirstClass, m_pClass))
            return;
    }
}
