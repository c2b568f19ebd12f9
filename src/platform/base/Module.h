// Extension modules: shared libraries that bring runtime classes along. A module's record is set up when the
// library is loaded and taken down when it is unloaded; in between a CDynLinkLibrary makes the module's
// classes findable by name.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/Types.h"

class CDynLinkLibrary;

/// The record of one extension module: static in its library, zero before AfxInitExtensionModule.
struct AFX_EXTENSION_MODULE
{
    BOOL bInitialized;
    HINSTANCE hModule;           // where the library is mapped
    CRuntimeClass* pFirstClass;  // the module's runtime classes
    CDynLinkLibrary* pLibraries; // the objects that stand for this module; owned until AfxTermExtensionModule
    AFX_EXTENSION_MODULE* pNextModule; // in the process's list of modules
};

/// Sets up a module's record: the runtime classes of the library that hModule lies in leave the process's
/// common list and belong to the module. Until a CDynLinkLibrary is made for it they are not found by name.
/// @param hModule  any address inside the library
/// @return FALSE when the record is in use already
SPLITFRAME_PLATFORM_API BOOL AfxInitExtensionModule(AFX_EXTENSION_MODULE& module, HINSTANCE hModule);

/// Takes a module down: deletes its CDynLinkLibrary objects; its classes are not found any more. Harmless
/// when the record is not set up.
SPLITFRAME_PLATFORM_API void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module);

/// Makes the classes of an extension module findable. Made with new; the module's record owns it from then
/// on.
class SPLITFRAME_PLATFORM_API CDynLinkLibrary : public CObject
{
    DECLARE_DYNAMIC(CDynLinkLibrary)

public:
    explicit CDynLinkLibrary(AFX_EXTENSION_MODULE& module);
    ~CDynLinkLibrary() override;

private:
    friend void AfxTermExtensionModule(AFX_EXTENSION_MODULE& module);

    AFX_EXTENSION_MODULE& m_module;
    CDynLinkLibrary* m_pNext; // the next one of the same module
};
