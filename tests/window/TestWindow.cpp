// The windows and the fixture that the tests share.
#include "window/TestWindow.h"

#include <utility>

IMPLEMENT_DYNAMIC(CLogWnd, CWnd)

BEGIN_MESSAGE_MAP(CLogWnd, CWnd)
ON_WM_CREATE()
ON_WM_DESTROY()
ON_WM_NCDESTROY()
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_SHOWWINDOW()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_CAPTURECHANGED()
ON_WM_ACTIVATE()
ON_WM_PAINT()
ON_WM_ERASEBKGND()
ON_WM_TIMER()
ON_WM_KEYDOWN()
ON_WM_SYSKEYDOWN()
ON_WM_CHAR()
ON_WM_MOUSEMOVE()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_LBUTTONDBLCLK()
ON_WM_MOUSEWHEEL()
ON_MESSAGE(WM_USER, &CLogWnd::OnUser)
END_MESSAGE_MAP()

std::string Narrow(const CString& str)
{
    std::string strNarrow;
    for (int n = 0; n < str.GetLength(); ++n)
        strNarrow += static_cast<char>(str.GetAt(n));
    return strNarrow;
}

namespace {
std::string Pair(int a, int b)
{
    return std::to_string(a) + "," + std::to_string(b);
}
} // namespace

bool CLogWnd::Open(CWnd* pParent, const RECT& rc, DWORD dwStyle, LPCWSTR pszClass)
{
    return Create(pszClass, CString(m_strName.c_str()), dwStyle | (pParent ? WS_CHILD : 0), rc, pParent, 0) !=
           FALSE;
}

void CLogWnd::Log(const std::string& strWhat)
{
    if (m_pLog)
        m_pLog->push_back(m_strName + ":" + strWhat);
}

// The object may be gone afterwards.
void CLogWnd::Do(UINT nMessage)
{
    const auto it = m_on.find(nMessage);
    if (it == m_on.end())
        return;
    const std::function<void()> action = it->second;
    action();
}

void CLogWnd::OnBeginDestroy()
{
    Log("begin");
    if (m_onBeginDestroy)
        m_onBeginDestroy();
}

void CLogWnd::PostNcDestroy()
{
    Log("post");
}

int CLogWnd::OnCreate(LPCREATESTRUCT)
{
    Log("create");
    const bool bRefuse = m_bRefuse;
    Do(WM_CREATE);
    return bRefuse ? -1 : 0;
}

void CLogWnd::OnDestroy()
{
    Log("destroy");
    Do(WM_DESTROY);
}

void CLogWnd::OnNcDestroy()
{
    Log("ncdestroy");
    Do(WM_NCDESTROY);
}

void CLogWnd::OnSize(UINT, int cx, int cy)
{
    Log("size " + Pair(cx, cy));
    Do(WM_SIZE);
}

void CLogWnd::OnMove(int x, int y)
{
    Log("move " + Pair(x, y));
    Do(WM_MOVE);
}

void CLogWnd::OnShowWindow(BOOL bShow, UINT)
{
    Log(bShow ? "show" : "hide");
    Do(WM_SHOWWINDOW);
}

void CLogWnd::OnSetFocus(CWnd*)
{
    Log("focus");
    Do(WM_SETFOCUS);
}

void CLogWnd::OnKillFocus(CWnd*)
{
    Log("blur");
    Do(WM_KILLFOCUS);
}

void CLogWnd::OnCaptureChanged(CWnd*)
{
    Log("capturelost");
    Do(WM_CAPTURECHANGED);
}

void CLogWnd::OnActivate(UINT nState, CWnd*, BOOL)
{
    Log(nState == WA_INACTIVE ? "inactive" : "active");
    Do(WM_ACTIVATE);
}

void CLogWnd::OnPaint()
{
    CPaintDC dc(this);
    m_rcPainted = dc.m_ps.rcPaint;
    dc.FillSolidRect(&dc.m_ps.rcPaint, m_color);
    ++m_nPaints;
    Log("paint");
    Do(WM_PAINT);
}

BOOL CLogWnd::OnEraseBkgnd(CDC*)
{
    ++m_nErases;
    Do(WM_ERASEBKGND);
    return FALSE;
}

void CLogWnd::OnTimer(UINT_PTR nID)
{
    Log("timer " + std::to_string(nID));
    Do(WM_TIMER);
}

void CLogWnd::OnKeyDown(UINT nChar, UINT, UINT)
{
    Log("key " + std::to_string(nChar));
    Do(WM_KEYDOWN);
}

void CLogWnd::OnSysKeyDown(UINT nChar, UINT, UINT)
{
    Log("syskey " + std::to_string(nChar));
    Do(WM_SYSKEYDOWN);
}

void CLogWnd::OnChar(UINT nChar, UINT, UINT)
{
    Log("char " + std::to_string(nChar));
    Do(WM_CHAR);
}

void CLogWnd::OnMouseMove(UINT, CPoint pt)
{
    Log("mouse " + Pair(pt.x, pt.y));
    Do(WM_MOUSEMOVE);
}

void CLogWnd::OnLButtonDown(UINT, CPoint pt)
{
    Log("down " + Pair(pt.x, pt.y));
    Do(WM_LBUTTONDOWN);
}

void CLogWnd::OnLButtonUp(UINT, CPoint)
{
    Log("up");
    Do(WM_LBUTTONUP);
}

void CLogWnd::OnLButtonDblClk(UINT, CPoint)
{
    Log("double");
    Do(WM_LBUTTONDBLCLK);
}

BOOL CLogWnd::OnMouseWheel(UINT, short zDelta, CPoint)
{
    Log("wheel " + std::to_string(zDelta));
    Do(WM_MOUSEWHEEL);
    return m_bRefuse ? FALSE : TRUE;
}

LRESULT CLogWnd::OnUser(WPARAM wParam, LPARAM)
{
    Log("user " + std::to_string(wParam));
    Do(WM_USER);
    return static_cast<LRESULT>(wParam) + 1;
}

bool CPlainWnd::Open(CWnd* pParent, const RECT& rc, DWORD dwStyle)
{
    return Create(nullptr, L"", dwStyle | (pParent ? WS_CHILD : 0), rc, pParent, 0) != FALSE;
}

WindowTest::WindowTest()
{
    auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(400, 300);
    pDisplay->SetClock(1000);
    m_pDisplayBefore = splitframe::SetDisplay(std::move(pDisplay));
    m_hookBefore = SetDiagnosticsHook(
        [this](const Diagnostic& diagnostic) { m_diagnostics.push_back(Narrow(diagnostic.strMessage)); });
}

WindowTest::~WindowTest()
{
    Drain();
    EXPECT_EQ(Narrow(splitframe::CheckWindowTree()), "");
    EXPECT_TRUE(m_diagnostics.empty()) << m_diagnostics.front();
    SetDiagnosticsHook(std::move(m_hookBefore));
    SetCursor(nullptr);
    splitframe::SetDisplay(std::move(m_pDisplayBefore));
}

std::string WindowTest::Told()
{
    std::string strAll;
    for (const std::string& strEach : m_log)
        strAll += (strAll.empty() ? "" : " | ") + strEach;
    m_log.clear();
    return strAll;
}

std::vector<std::string> WindowTest::TakeDiagnostics()
{
    return std::exchange(m_diagnostics, {});
}
