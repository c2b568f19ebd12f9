// Registration of the placeholder, opening afresh, and fitting of the window around the view.
#include "ViewerFrame.h"

#include "PlaceholderUnit.h"
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "platform/display/Display.h"
#include "platform/window/MessageLoop.h"

#include <algorithm>
#include <iterator>
#include <vector>

IMPLEMENT_DYNAMIC(CViewerFrame, CBaseFrameWnd)

CViewerFrame::CViewerFrame() = default;
CViewerFrame::~CViewerFrame() = default;

void CViewerFrame::LoadLayout(CMultiDocTemplate* pTemplate, const CString& strText,
                              std::span<const GUID> classes)
{
    // What an earlier layout registered is registered for good.
    std::vector<GUID> fresh;
    std::ranges::copy_if(classes, std::back_inserter(fresh),
                         [](const GUID& guid) { return !CBaseFrameDoc::GetRCBaseUnit(guid); });
    const std::vector<CRuntimeClass*> units(fresh.size(), RUNTIME_CLASS(CPlaceholderUnit));
    const std::vector<CRuntimeClass*> helpers(fresh.size(), RUNTIME_CLASS(CBaseFrameHelper));
    const int nCount = static_cast<int>(fresh.size());
    InitializeByDoc(pTemplate, strText, fresh.data(), units.data(), nCount, fresh.data(), helpers.data(),
                    nCount);
}

// Asked for directly, a frame opens whatever its command's number: the menu stops at 101 of them.
void CViewerFrame::ShowStyle(int nFrame, int nStyle)
{
    int nCommand = nStyle;
    for (int nBefore = 0; nBefore < nFrame; ++nBefore)
        nCommand += m_arrBaseFrameDoc[nBefore]->m_arrStyle.GetSize();
    OnBaseFrameOpen(ID_FRAME_FIRST + static_cast<UINT>(nCommand));
}

CBaseFrameDoc* CViewerFrame::OpenStyle(int nFrame, int nStyle)
{
    CloseFrames();
    ShowStyle(nFrame, nStyle);
    return FrontDocument();
}

CBaseFrameDoc* CViewerFrame::FrontDocument() const
{
    auto* pFrame = DYNAMIC_DOWNCAST(CBaseFrameChildWnd, MDIGetActive());
    return pFrame ? pFrame->GetFrameDoc() : nullptr;
}

void CViewerFrame::CloseFrames()
{
    for (CMDIChildWnd* pChild : GetChildFrames())
        if (::IsWindow(pChild->m_hWnd))
            pChild->DestroyWindow();
    splitframe::DrainMessages();
}

bool CViewerFrame::FitView(const CBaseFrameView& view, CSize size)
{
    // Bars may need another height in another width, so one step need not be enough.
    constexpr int kSteps = 4;
    for (int nStep = 0; nStep < kSteps; ++nStep) {
        CRect rcView, rcFrame;
        view.GetClientRect(rcView);
        if (rcView.Size() == size)
            return true;
        GetWindowRect(rcFrame);
        const int cx = rcFrame.Width() + size.cx - rcView.Width();
        const int cy = rcFrame.Height() + size.cy - rcView.Height();
        splitframe::CurrentDisplay().Resize(cx, cy);
        splitframe::DrainMessages();
        MoveWindow(0, 0, cx, cy);
        splitframe::DrainMessages();
    }
    return false;
}
