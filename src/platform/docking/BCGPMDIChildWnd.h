// The docking toolkit's MDI child frame.
#pragma once

#include "platform/docview/MDIChildWnd.h"

class SPLITFRAME_PLATFORM_API CBCGPMDIChildWnd : public CMDIChildWnd
{
    DECLARE_DYNCREATE(CBCGPMDIChildWnd)

public:
    CBCGPMDIChildWnd();
    ~CBCGPMDIChildWnd() override;

protected:
    DECLARE_MESSAGE_MAP()
};
