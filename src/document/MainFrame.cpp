#include "document/MainFrame.h"

#include "frame/BaseFrameWnd.h"
#include "platform/docview/WinApp.h"

namespace splitframe {

CBaseFrameWnd* FindMainFrame()
{
    return DynamicDownCast<CBaseFrameWnd>(AfxGetMainWnd());
}

} // namespace splitframe
