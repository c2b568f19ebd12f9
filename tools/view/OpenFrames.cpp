// Frames are found again by their names; of several with one name the first.
#include "OpenFrames.h"

#include "PaneLines.h"
#include "ViewerFrame.h"
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "frame/BaseFrameChildWnd.h"
#include "unit/BaseUnitWnd.h"

namespace viewer {
namespace {

int FindFrame(const CViewerFrame& main, const CString& strName)
{
    const auto& definitions = main.GetBaseFrameDocs();
    for (int nFrame = 0; nFrame < definitions.GetSize(); ++nFrame)
        if (definitions[nFrame]->m_strName == strName && !definitions[nFrame]->m_arrStyle.IsEmpty())
            return nFrame;
    return -1;
}

int FindStyle(const CBaseFrameDoc& definition, const CString& strName)
{
    for (int nStyle = 0; nStyle < definition.m_arrStyle.GetSize(); ++nStyle)
        if (definition.m_arrStyle[nStyle]->m_strName == strName)
            return nStyle;
    return 0;
}

int FirstUsableFrame(const CViewerFrame& main)
{
    const auto& definitions = main.GetBaseFrameDocs();
    for (int nFrame = 0; nFrame < definitions.GetSize(); ++nFrame)
        if (!definitions[nFrame]->m_arrStyle.IsEmpty())
            return nFrame;
    return -1;
}

CString PaneInUse(CBaseFrameDoc& document)
{
    const int nCurrent = document.GetCurrentBaseUnitWnd();
    return nCurrent >= 0 && nCurrent < document.GetBaseUnitWndCount()
               ? document.GetBaseUnitWnd(nCurrent)->CSplitLine::m_strName
               : CString();
}

void UsePane(CBaseFrameDoc& document, const CString& strName)
{
    for (int nUnit = 0; nUnit < document.GetBaseUnitWndCount(); ++nUnit)
        if (document.GetBaseUnitWnd(nUnit)->CSplitLine::m_strName == strName)
            return document.SetCurrentBaseUnitWnd(nUnit);
}

void OpenAgain(CViewerFrame& main, const OpenFrame& frame, int nFrame)
{
    main.ShowStyle(nFrame, FindStyle(*main.GetBaseFrameDocs()[nFrame], frame.strStyle));
    CBaseFrameDoc* pOpened = main.FrontDocument();
    if (pOpened && frame.strStyle == pOpened->GetCurrentStyleName() && HideParts(*pOpened, frame.hidden))
        main.MDIGetActive()->RecalcLayout();
}

} // namespace

std::vector<OpenFrame> ListOpenFrames(const CViewerFrame& main)
{
    std::vector<OpenFrame> frames;
    for (CMDIChildWnd* pChild : main.GetChildFrames()) {
        auto* pFrame = DYNAMIC_DOWNCAST(CBaseFrameChildWnd, pChild);
        CBaseFrameDoc* pDocument = pFrame ? pFrame->GetFrameDoc() : nullptr;
        if (pDocument)
            frames.push_back({pDocument->m_strName, CString(pDocument->GetCurrentStyleName()),
                              pChild == main.MDIGetActive(), PaneInUse(*pDocument), HiddenParts(*pDocument)});
    }
    return frames;
}

void Reopen(CViewerFrame& main, const std::vector<OpenFrame>& frames)
{
    int nFront = -1;
    CString strPane;
    for (const OpenFrame& frame : frames) {
        const int nFrame = FindFrame(main, frame.strFrame);
        if (nFrame < 0)
            continue;
        OpenAgain(main, frame, nFrame);
        if (frame.bFront || nFront < 0) {
            nFront = nFrame;
            strPane = frame.strPane;
        }
    }
    if (nFront >= 0) {
        main.ShowStyle(nFront, main.GetBaseFrameDocs()[nFront]->m_nCurStyle);
        if (CBaseFrameDoc* pFront = main.FrontDocument())
            UsePane(*pFront, strPane);
    } else if (const int nFirst = FirstUsableFrame(main); nFirst >= 0)
        main.ShowStyle(nFirst, 0);
}

} // namespace viewer
