// Setting extension modules up and taking them down.
#include "platform/base/Module.h"

#include "platform/base/ClassList.h"

#include <dlfcn.h>
#include <utility>

using namespace splitframe;

IMPLEMENT_DYNAMIC(CDynLinkLibrary, CObject)

// Where the library that holds an address is mapped: the same for all addresses of one library.
static void* LibraryOf(const void* pAddress)
{
    Dl_info info{};
    return dladdr(pAddress, &info) != 0 ? info.dli_fbase : nullptr;
}

BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& module, HINSTANCE hModule)
{
    ClassLists& lists = GetClassLists();
    const std::lock_guard guard(lists.lock);
    if (module.bInitialized)
        return FALSE;
    module = {TRUE, LibraryOf(hModule), nullptr, nullptr, lists.pModules};
    lists.pModules = &module;
    for (CRuntimeClass* pClass = lists.pCommon; pClass;) {
        CRuntimeClass* pNext = pClass->m_pNextClass;
        if (LibraryOf(pClass) == module.hModule) {
            Unlink(lists.pCommon, pClass);
            pClass->m_pNextClass = module.pFirstClass;
            module.pFirstClass = pClass;
        }
        pClass = pNext;
    }
    return TRUE;
}

void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module)
{
    if (!module.bInitialized)
        return;
    while (CDynLinkLibrary* pLibrary = module.pLibraries)
        delete pLibrary; // takes itself out of the list. NOLINT(clang-analyzer-cplusplus.NewDelete)
    ClassLists& lists = GetClassLists();
    const std::lock_guard guard(lists.lock);
    for (AFX_EXTENSION_MODULE** ppLink = &lists.pModules; *ppLink; ppLink = &(*ppLink)->pNextModule) {
        if (*ppLink == &module) {
            *ppLink = module.pNextModule;
            break;
        }
    }
    while (module.pFirstClass)
        module.pFirstClass = std::exchange(module.pFirstClass->m_pNextClass, nullptr);
    module = {};
}

CDynLinkLibrary::CDynLinkLibrary(AFX_EXTENSION_MODULE& module) : m_module(module)
{
    const std::lock_guard guard(GetClassLists().lock);
    m_pNext = module.pLibraries;
    module.pLibraries = this;
}

CDynLinkLibrary::~CDynLinkLibrary()
{
    const std::lock_guard guard(GetClassLists().lock);
    for (CDynLinkLibrary** ppLink = &m_module.pLibraries; *ppLink; ppLink = &(*ppLink)->m_pNext) {
        if (*ppLink == this) {
            *ppLink = m_pNext;
            return;
        }
    }
}
