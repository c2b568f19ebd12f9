// The order of the work: the file first, so that a bad one needs no display; then the window; then list and
// pictures.
#include "ViewerApp.h"

#include "LayoutSaving.h"
#include "Listing.h"
#include "Pictures.h"
#include "ViewerFrame.h"
#include "ViewerView.h"
#include "ViewerWindow.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "platform/display/Headless.h"
#include "platform/docview/DocTemplate.h"
#include "platform/window/MessageLoop.h"

#include <algorithm>
#include <cstdio>
#include <cstdlib>
#include <memory>
#include <utility>

IMPLEMENT_DYNAMIC(CViewerApp, CWinApp)

namespace {

// Templates and main windows are told apart by numbers in larger programs.
constexpr UINT IDR_VIEWER = 1;

} // namespace

CViewerApp::CViewerApp(viewer::Options options, viewer::Messages& messages)
    : CWinApp(L"splitframe-view"), m_options(std::move(options)), m_messages(messages),
      m_layout(m_options.strFile, messages)
{
}

CViewerApp::~CViewerApp()
{
    CloseMainFrame();
}

BOOL CViewerApp::InitInstance()
{
    m_bFailed = !ReadLayout() || !OpenDisplay();
    if (m_bFailed)
        return FALSE;
    const bool bWindow = !m_options.bList && !m_options.strPng && !splitframe::CurrentHeadless();
    m_bFailed = bWindow ? !OpenWindow() : !PrintAndDraw();
    return bWindow && !m_bFailed;
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
}

// Lists and pictures need no screen.
bool CViewerApp::OpenDisplay()
{
    if (m_options.bList || m_options.strPng) {
        splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(
            splitframe::HeadlessDisplay::DEFAULT_WIDTH, splitframe::HeadlessDisplay::DEFAULT_HEIGHT,
            m_options.scale.value_or(1.0)));
        return true;
    }
    if (m_options.scale)
        ::setenv("SPLITFRAME_SCALE", std::to_string(*m_options.scale).c_str(),
                 1); // where displays look for it
    const CString strReason = splitframe::OpenDisplay();
    if (!strReason.IsEmpty())
        m_messages.Failure(strReason.ToUtf8());
    return strReason.IsEmpty();
}

bool CViewerApp::OpenWindow()
{
    auto* pWindow = new CViewerWindow(m_layout, m_options.strSaveAs.value_or(m_options.strFile), m_messages);
    if (!CreateMainFrame(pWindow))
        return false;
    pWindow->Start(MakeTemplate(RUNTIME_CLASS(CViewerView)));
    const std::vector<int> frames = ChooseFrames();
    std::vector<viewer::StyleChoice> choices = ChooseShown(frames);
    if (choices.empty())
        return false;
    // A frame is open once, in one style.
    const auto isSameFrame = [](const auto& a, const auto& b) { return a.nFrame == b.nFrame; };
    choices.erase(std::unique(choices.begin(), choices.end(), isSameFrame), choices.end());
    pWindow->Open(choices);
    if (m_options.size)
        pWindow->FitFront(*m_options.size);
    return true;
}

bool CViewerApp::PrintAndDraw()
{
    auto* pFrame = new CViewerFrame;
    if (!CreateMainFrame(pFrame))
        return false;
    pFrame->LoadLayout(MakeTemplate(RUNTIME_CLASS(CBaseFrameView)), m_layout.Get().GetText(),
                       m_layout.Get().GetClasses());
    const std::vector<int> frames = ChooseFrames();
    if (frames.empty() && m_options.strFrame)
        return false;
    if (m_options.bList && !PrintList(frames))
        return false;
    const bool bPictures = m_options.strPng || !(m_options.bList || m_options.strSaveAs);
    return (!bPictures || WritePictures(frames)) && (!m_options.strSaveAs || SaveCopy());
}

// Nobody can have dragged anything.
bool CViewerApp::SaveCopy()
{
    return viewer::SaveLayout(m_layout.Get(), {}, *m_options.strSaveAs, m_messages);
}

bool CViewerApp::CreateMainFrame(CViewerFrame* pFrame)
{
    if (!pFrame->LoadFrame(IDR_VIEWER)) {
        m_messages.Failure("the main window can't be created");
        return false;
    }
    m_pFrame = pFrame;
    m_pMainWnd = pFrame;
    m_pFrame->ShowWindow(SW_SHOW);
    m_pFrame->SetActiveWindow();
    splitframe::DrainMessages();
    return true;
}

CMultiDocTemplate* CViewerApp::MakeTemplate(CRuntimeClass* pViewClass)
{
    auto* pTemplate = new CMultiDocTemplate(IDR_VIEWER, RUNTIME_CLASS(CBaseFrameDoc),
                                            RUNTIME_CLASS(CBaseFrameChildWnd), pViewClass);
    AddDocTemplate(pTemplate);
    return pTemplate;
}

std::vector<int> CViewerApp::ChooseFrames()
{
    return viewer::ChooseFrames(*m_pFrame, m_options, m_messages);
}

// What is shown when not everything is listed. None: something is wrong, which was told.
std::vector<viewer::StyleChoice> CViewerApp::ChooseShown(const std::vector<int>& frames)
{
    std::vector<viewer::StyleChoice> choices = viewer::ChooseStyles(*m_pFrame, frames, m_options, m_messages);
    if (choices.empty() && !m_options.strStyle && !m_options.strFrame)
        m_messages.Error("there is no frame to show");
    if (!choices.empty() && !m_options.bAll)
        choices.erase(choices.begin() + 1, choices.end());
    return choices;
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
            if (!pOpened || !pOpened->m_pView ||
                !m_pFrame->FitView(*pOpened->m_pView, m_options.size.value_or(viewer::kPictureSize))) {
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
    const std::vector<viewer::StyleChoice> choices = ChooseShown(frames);
    if (choices.empty())
        return false;
    const auto place = viewer::PreparePlace(m_options, m_messages);
    return place &&
           viewer::Pictures(*m_pFrame, m_messages, *place, m_options.size.value_or(viewer::kPictureSize))
               .Write(choices);
}
