// The process's runtime classes: one common list, and one list for each extension module that is set up. Only
// for Object.cpp and Module.cpp. Guarded by one lock, because libraries are loaded and unloaded on any
// thread. All of it is plain data that needs no construction: classes arrive while the libraries are still
// being initialised.
#pragma once

#include "platform/base/Module.h"
#include "platform/base/Object.h"

#include <mutex>

namespace splitframe {

struct ClassLists
{
    std::mutex lock;
    CRuntimeClass* pCommon = nullptr;
    AFX_EXTENSION_MODULE* pModules = nullptr;
};

ClassLists& GetClassLists();

/// Takes a class out of a list. @return whether it was there
bool Unlink(CRuntimeClass*& pFirst, CRuntimeClass* pClass);

} // namespace splitframe
