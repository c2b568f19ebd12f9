// The shared library's own record in the process: set up when it is loaded, so that the library's runtime
// classes are found by name, and taken down when it is unloaded. Nothing else runs at either moment.
#include "platform/base/Module.h"

namespace {

AFX_EXTENSION_MODULE g_module;

// Last of the library's sources to be linked, so the runtime classes are there when it is constructed. One
// that came later would still be found, through the common list.
const struct ModuleRecord
{
    ModuleRecord()
    {
        if (AfxInitExtensionModule(g_module, &g_module))
            new CDynLinkLibrary(g_module); // g_module owns it
    }
    ~ModuleRecord() { AfxTermExtensionModule(g_module); }
} g_record;

} // namespace
