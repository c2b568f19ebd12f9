// Nothing of its own yet beside its class: the base does what child frames need.
#include "platform/docking/BCGPMDIChildWnd.h"

IMPLEMENT_DYNCREATE(CBCGPMDIChildWnd, CMDIChildWnd)

BEGIN_MESSAGE_MAP(CBCGPMDIChildWnd, CMDIChildWnd)
END_MESSAGE_MAP()

CBCGPMDIChildWnd::CBCGPMDIChildWnd() = default;

CBCGPMDIChildWnd::~CBCGPMDIChildWnd()
{
    EndFromDestructor();
}
