// A small extension module as a host would write it: two classes and the module's record, which the test sets
// up.
#include "platform/base/Module.h"

class CPluginBase : public CObject
{
    DECLARE_DYNAMIC(CPluginBase)
};

class CPluginThing : public CPluginBase
{
    DECLARE_DYNCREATE(CPluginThing)
};

IMPLEMENT_DYNAMIC(CPluginBase, CObject)
IMPLEMENT_DYNCREATE(CPluginThing, CPluginBase)

static AFX_EXTENSION_MODULE g_module;

extern "C" __attribute__((visibility("default"))) void* GetPluginModule()
{
    return &g_module;
}
