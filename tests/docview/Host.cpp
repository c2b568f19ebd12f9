// See Host.h. The recorder is process-wide for the time of one test: the classes under test make their
// objects themselves.
#include "docview/Host.h"

#include "platform/base/Diagnostics.h"
#include "platform/window/CallScope.h"
#include "platform/window/WindowManager.h"

#include <utility>

namespace host {

namespace {
Recorder* g_pRecorder = nullptr;
}

Recorder& Rec()
{
    static Recorder idle; // for what runs outside of a test
    return g_pRecorder ? *g_pRecorder : idle;
}

void Recorder::Note(const std::string& strLabel, const std::string& strWhat)
{
    if (!mutedEvents.contains(strWhat.substr(0, strWhat.find(' '))))
        arrEvent.push_back(strLabel + "." + strWhat);
    const auto hook = hooks.find(strLabel + "." + strWhat);
    if (hook == hooks.end())
        return;
    const auto run = std::move(hook->second);
    hooks.erase(hook);
    run();
}

std::string Recorder::Take()
{
    std::string strAll;
    for (const std::string& strEvent : std::exchange(arrEvent, {}))
        strAll += (strAll.empty() ? "" : "; ") + strEvent;
    return strAll;
}

// --- document

IMPLEMENT_DYNCREATE(Document, CDocument)

Document::Document() : m_strLabel(Rec().strNextLabel)
{
    ++Rec().nDocuments;
}

Document::~Document()
{
    --Rec().nDocuments;
}

BOOL Document::CanCloseFrame(CFrameWnd* pFrame)
{
    Rec().Note(m_strLabel, "CanCloseFrame");
    return CDocument::CanCloseFrame(pFrame);
}

BOOL Document::SaveModified()
{
    return m_bMayClose;
}

void Document::OnCloseDocument()
{
    Rec().Note(m_strLabel, "CloseDocument");
    CDocument::OnCloseDocument();
}

void Document::PreCloseFrame(CFrameWnd* pFrame)
{
    Rec().Note(m_strLabel, "PreCloseFrame");
    CDocument::PreCloseFrame(pFrame);
}

BOOL Document::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    Rec().Note(m_strLabel, "DocCommand");
    return CDocument::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// --- view

IMPLEMENT_DYNCREATE(View, CView)

BEGIN_MESSAGE_MAP(View, CView)
ON_WM_SETFOCUS()
ON_WM_KEYDOWN()
ON_WM_DESTROY()
END_MESSAGE_MAP()

View::View() : m_strLabel(Rec().strNextLabel)
{
    ++Rec().nViews;
}

View::~View()
{
    --Rec().nViews;
    Rec().Note(m_strLabel, GetDocument() ? "ViewDeleted" : "ViewDeleted without document");
}

void View::OnInitialUpdate()
{
    CView::OnInitialUpdate();
    Rec().Note(m_strLabel, "InitialUpdate");
}

void View::OnDraw(CDC* /*pDC*/)
{
    ++Rec().paintCounts[m_strLabel];
}

void View::CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType)
{
    CView::CalcWindowRect(lpClientRect, nAdjustType);
    m_rcRoom = CRect(*lpClientRect);
    lpClientRect->right -= m_nInset;
    lpClientRect->bottom -= m_nInset;
    Rec().Note(m_strLabel, "CalcWindowRect");
}

void View::OnActivateView(BOOL bActivate, CView* /*pActivateView*/, CView* /*pDeactiveView*/)
{
    Rec().Note(m_strLabel, bActivate ? "ActivateView 1" : "ActivateView 0");
}

BOOL View::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    Rec().Note(m_strLabel, "ViewCommand");
    return CView::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

void View::OnSetFocus(CWnd* /*pOldWnd*/)
{
    Rec().Note(m_strLabel, "ViewFocus");
}

void View::OnKeyDown(UINT nChar, UINT /*nRepCnt*/, UINT /*nFlags*/)
{
    Rec().Note(m_strLabel, "Key " + std::to_string(nChar));
}

void View::OnDestroy()
{
    CView::OnDestroy();
    Rec().Note(m_strLabel, "ViewDestroy");
}

// --- child frame

IMPLEMENT_DYNCREATE(Child, CBCGPMDIChildWnd)

BEGIN_MESSAGE_MAP(Child, CBCGPMDIChildWnd)
ON_WM_CREATE()
ON_WM_MDIACTIVATE()
ON_WM_SETFOCUS()
ON_WM_CLOSE()
ON_WM_DESTROY()
END_MESSAGE_MAP()

Child::Child() : m_strLabel(Rec().strNextLabel)
{
    ++Rec().nFrames;
}

Child::~Child()
{
    --Rec().nFrames;
}

BOOL Child::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    Rec().Note(m_strLabel, "FrameCommand");
    return CBCGPMDIChildWnd::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

int Child::OnCreate(LPCREATESTRUCT lpCreateStruct)
{
    const int nResult = CBCGPMDIChildWnd::OnCreate(lpCreateStruct);
    Rec().Note(m_strLabel, "Create");
    return nResult;
}

// Notes what must be true at this moment: shown, at full size, document and view there.
void Child::OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd)
{
    CBCGPMDIChildWnd::OnMDIActivate(bActivate, pActivateWnd, pDeactivateWnd);
    CRect rcClient;
    CRect rcRoom;
    GetClientRect(&rcClient);
    GetParent()->GetClientRect(&rcRoom);
    std::string strWhat = bActivate ? "MDIActivate 1" : "MDIActivate 0";
    if (!(GetStyle() & WS_VISIBLE) || rcClient != rcRoom || !GetActiveDocument() || !GetActiveView())
        strWhat += " unfinished";
    Rec().Note(m_strLabel, strWhat);
}

void Child::OnSetFocus(CWnd* pOldWnd)
{
    Rec().Note(m_strLabel, "FrameFocus");
    CBCGPMDIChildWnd::OnSetFocus(pOldWnd);
}

void Child::OnClose()
{
    Rec().Note(m_strLabel, "Close");
    CBCGPMDIChildWnd::OnClose();
}

void Child::OnDestroy()
{
    Rec().Note(m_strLabel, GetActiveDocument() && GetActiveView() ? "Destroy" : "Destroy without document");
    if (m_bCallBaseOnDestroy)
        CBCGPMDIChildWnd::OnDestroy();
}

BOOL App::OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo)
{
    Rec().Note("app", "Command");
    return CWinApp::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
}

// --- session

template <class MainFrame> Session<MainFrame>::Session()
{
    g_pRecorder = &m_recorder;
    m_recorder.mutedEvents = {"CalcWindowRect", "ActivateView", "ViewDeleted",   "Activate",
                              "Create",         "Close",        "CanCloseFrame", "CloseDocument",
                              "PreCloseFrame",  "ViewDestroy",  "Destroy"};
    SetDiagnosticsHook([this](const Diagnostic& diagnostic) {
        m_recorder.arrDiagnostic.push_back(diagnostic.strMessage.ToUtf8());
    });
    splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(800, 600));
    m_pTemplate =
        new CMultiDocTemplate(1, RUNTIME_CLASS(Document), RUNTIME_CLASS(Child), RUNTIME_CLASS(View));
    m_app.AddDocTemplate(m_pTemplate);
    m_pMain = new MainFrame;
    m_app.m_pMainWnd = m_pMain;
    EXPECT_TRUE(m_pMain->LoadFrame(1));
    m_pMain->ActivateFrame(SW_SHOW);
    splitframe::DrainMessages();
}

template <class MainFrame> Session<MainFrame>::~Session()
{
    m_recorder.hooks.clear();
    if (m_app.m_pMainWnd)
        m_pMain->DestroyWindow();
    splitframe::DrainMessages();
    EXPECT_EQ(m_recorder.nMains, 0);
    EXPECT_EQ(m_recorder.nFrames, 0);
    EXPECT_EQ(m_recorder.nViews, 0);
    EXPECT_EQ(m_recorder.nDocuments, 0);
    EXPECT_EQ(m_recorder.arrDiagnostic, std::vector<std::string>());
    SetDiagnosticsHook({});
    splitframe::SetDisplay(nullptr);
    g_pRecorder = nullptr;
}

template <class MainFrame> Child* Session<MainFrame>::Make(const std::string& strLabel)
{
    m_recorder.strNextLabel = strLabel;
    CDocument* pDocument = m_pTemplate->CreateNewDocument();
    pDocument->SetTitle(CString::FromUtf8(strLabel));
    return static_cast<Child*>(m_pTemplate->CreateNewFrame(pDocument, nullptr));
}

template <class MainFrame> Child* Session<MainFrame>::Open(const std::string& strLabel)
{
    Child* pFrame = Make(strLabel);
    m_pTemplate->InitialUpdateFrame(pFrame, pFrame->GetActiveDocument(), TRUE);
    return pFrame;
}

// The walk that hosts do: from the active frame to those that follow it in the window order.
template <class MainFrame> std::string Session<MainFrame>::Stack() const
{
    std::string strAll;
    for (CWnd* pWnd = m_pMain->GetActiveFrame(); pWnd; pWnd = pWnd->GetWindow(GW_HWNDNEXT))
        strAll += pWnd == m_pMain ? "main" : static_cast<Child*>(pWnd)->m_strLabel;
    return strAll;
}

template <class MainFrame> void Session<MainFrame>::CloseMain()
{
    m_pMain->SendMessage(WM_CLOSE);
}

template class Session<MdiMain>;
template class Session<DockMain>;

} // namespace host
