// The application object and its loop. The object of the user-interface thread is process-wide state: all the
// windowing belongs to one thread, and windows have no other way to find the application they belong to.
#include "platform/docview/WinApp.h"

#include "platform/docview/DocTemplate.h"
#include "platform/window/CallScope.h"
#include "platform/window/MessageLoop.h"
#include "platform/window/Wnd.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CWinThread, CCmdTarget)
IMPLEMENT_DYNAMIC(CWinApp, CWinThread)

namespace {

CWinThread* g_pThread = nullptr; // not owned; the object takes itself out

BOOL AskThread(MSG* pMsg)
{
    return g_pThread && g_pThread->PreTranslateMessage(pMsg);
}

} // namespace

CWinThread::CWinThread()
{
    if (g_pThread)
        return;
    g_pThread = this;
    splitframe::SetPreTranslateFilter(&AskThread);
}

CWinThread::~CWinThread()
{
    if (g_pThread != this)
        return;
    g_pThread = nullptr;
    splitframe::SetPreTranslateFilter(nullptr);
}

CWnd* CWinThread::GetMainWnd()
{
    return m_pMainWnd;
}

BOOL CWinThread::InitInstance()
{
    return TRUE;
}

int CWinThread::ExitInstance()
{
    return m_nExitCode;
}

int CWinThread::Run()
{
    m_nExitCode = 0;
    m_bRunning = m_pMainWnd != nullptr;
    LONG nIdle = 0;
    while (m_bRunning) {
        MSG msg{};
        while (!::PeekMessage(&msg, PM_NOREMOVE) && OnIdle(nIdle))
            ++nIdle;
        nIdle = 0;
        m_bRunning = PumpMessage() && m_bRunning;
    }
    return ExitInstance();
}

BOOL CWinThread::PumpMessage()
{
    MSG msg{};
    if (!::GetMessage(&msg)) {
        if (msg.message == WM_QUIT)
            m_nExitCode = static_cast<int>(msg.wParam);
        return FALSE;
    }
    splitframe::HandleMessage(&msg);
    return TRUE;
}

BOOL CWinThread::PreTranslateMessage(MSG* pMsg)
{
    CWnd* const pMainWnd = GetMainWnd();
    const HWND hMainWnd = pMainWnd ? pMainWnd->GetSafeHwnd() : nullptr;
    if (CWnd::WalkPreTranslateTree(hMainWnd, pMsg))
        return TRUE;
    // Keys of other top-level windows work the main window's accelerators, too.
    const bool bWalked = !hMainWnd || pMsg->hwnd == hMainWnd || ::IsChild(hMainWnd, pMsg->hwnd);
    return !bWalked && ::IsWindow(hMainWnd) && pMainWnd->PreTranslateMessage(pMsg);
}

BOOL CWinThread::OnIdle(LONG /*lCount*/)
{
    return FALSE;
}

void CWinThread::ForgetMainWnd(const CWnd* pWnd)
{
    if (!pWnd || m_pMainWnd != pWnd)
        return;
    m_pMainWnd = nullptr;
    if (m_bRunning)
        ::PostQuitMessage(0);
}

CWinApp::CWinApp(const wchar_t* pszAppName) : m_strAppName(pszAppName) {}

CWinApp::~CWinApp()
{
    for (CDocTemplate* pTemplate : m_arrTemplate)
        delete pTemplate;
}

void CWinApp::AddDocTemplate(CDocTemplate* pTemplate)
{
    if (pTemplate && std::ranges::find(m_arrTemplate, pTemplate) == m_arrTemplate.end())
        m_arrTemplate.Add(pTemplate);
}

CDocTemplate* CWinApp::GetDocTemplate() const
{
    return m_arrTemplate.IsEmpty() ? nullptr : m_arrTemplate[0];
}

CWinThread* AfxGetThread()
{
    return g_pThread;
}

CWinApp* AfxGetApp()
{
    return DYNAMIC_DOWNCAST(CWinApp, g_pThread);
}

CWnd* AfxGetMainWnd()
{
    return g_pThread ? g_pThread->GetMainWnd() : nullptr;
}
