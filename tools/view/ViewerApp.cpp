// The order of the work: the file first, so that a bad one needs no display; then the window; then list and
// pictures.
#include "ViewerApp.h"

#include "Listing.h"
#include "Pictures.h"
#include "Selection.h"
#include "ViewerFrame.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "platform/display/Headless.h"
#include "platform/docview/DocTemplate.h"
#include "platform/window/MessageLoop.h"

#include <cstdio>
#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CViewerApp, CWinApp)

namespace {

// Templates and main windows are told apart by numbers in larger programs.
constexpr UINT IDR_VIEWER = 1;

} // namespace

CViewerApp::CViewerApp(viewer::Options options, viewer::Messages& messages)
    : CWinApp(L"splitframe-view"), m_options(std::move(options)), m_messages(messages)
{
}

CViewerApp::~CViewerApp()
{
    CloseMainFrame();
    m_messages.SetText(m_layout.GetText(), {}); // faults are no longer looked for in the layout
}

BOOL CViewerApp::InitInstance()
{
    m_bFailed = !DoWork();
    return FALSE;
}

int CViewerApp::ExitInstance()
{
    CloseMainFrame();
    return m_bFailed ? 1 : 0;
}

// A main window that is destroyed otherwise takes itself out of m_pMainWnd.
void CViewerApp::CloseMainFrame()
{
    if (m_pMainWnd)
        m_pMainWnd->DestroyWindow();
    m_pFrame = nullptr;
}

bool CViewerApp::DoWork()
{
    if (!m_layout.Read(m_options.strFile, m_messages) || !CreateMainFrame())
        return false;
    const std::vector<int> frames = viewer::ChooseFrames(*m_pFrame, m_options, m_messages);
    if (frames.empty() && m_options.strFrame)
        return false;
    if (m_options.bList && !PrintList(frames))
        return false;
    return (m_options.bList && !m_options.strPng) || WritePictures(frames);
}

bool CViewerApp::CreateMainFrame()
{
    const CString strReason = splitframe::OpenDisplay();
    if (!strReason.IsEmpty()) {
        m_messages.Failure(strReason.ToUtf8());
        return false;
    }
    auto* pTemplate = new CMultiDocTemplate(IDR_VIEWER, RUNTIME_CLASS(CBaseFrameDoc),
                                            RUNTIME_CLASS(CBaseFrameChildWnd), RUNTIME_CLASS(CBaseFrameView));
    AddDocTemplate(pTemplate);
    auto* pFrame = new CViewerFrame;
    if (!pFrame->LoadFrame(IDR_VIEWER)) {
        m_messages.Failure("the main window can't be created");
        return false;
    }
    m_pFrame = pFrame;
    m_pMainWnd = pFrame;
    m_pFrame->LoadLayout(pTemplate, m_layout.GetText(), m_layout.GetClasses());
    m_pFrame->ShowWindow(SW_SHOW);
    m_pFrame->SetActiveWindow();
    splitframe::DrainMessages();
    return true;
}

// Records change when a frame is laid out, so each frame's own table comes before its styles are opened.
bool CViewerApp::PrintList(const std::vector<int>& frames)
{
    const std::vector<viewer::StyleChoice> choices =
        viewer::ChooseStyles(*m_pFrame, frames, m_options, m_messages);
    if (choices.empty() && m_options.strStyle)
        return false;
    std::fputs(viewer::ListGlobals(*m_pFrame).c_str(), stdout);
    auto itChoice = choices.begin();
    for (const int nFrame : frames) {
        const CBaseFrameDoc& definition = *m_pFrame->GetBaseFrameDocs()[nFrame];
        std::fputs(viewer::ListFrame(definition).c_str(), stdout);
        for (; itChoice != choices.end() && itChoice->nFrame == nFrame; ++itChoice) {
            std::fputs(viewer::ListStyle(*definition.m_arrStyle[itChoice->nStyle]).c_str(), stdout);
            const CBaseFrameDoc* pOpened = m_pFrame->OpenStyle(nFrame, itChoice->nStyle);
            if (!pOpened || !pOpened->m_pView || !m_pFrame->FitView(*pOpened->m_pView, m_options.size)) {
                m_messages.Failure("the frame can't be opened");
                return false;
            }
            std::fputs(viewer::ListTree(*pOpened).c_str(), stdout);
        }
    }
    return true;
}

bool CViewerApp::WritePictures(const std::vector<int>& frames)
{
    std::vector<viewer::StyleChoice> choices = viewer::ChooseStyles(*m_pFrame, frames, m_options, m_messages);
    if (choices.empty()) {
        if (!m_options.strStyle)
            m_messages.Error("there is no frame to show");
        return false;
    }
    if (!m_options.bAll)
        choices.erase(choices.begin() + 1, choices.end());
    const auto place = viewer::PreparePlace(m_options, m_messages);
    return place && viewer::Pictures(*m_pFrame, m_messages, *place, m_options.size).Write(choices);
}
