// Painting of the status line.
#include "StatusLine.h"

#include "platform/graphics/SystemColors.h"
#include "platform/window/PaintDC.h"

namespace {

constexpr int kMargin = 8;
constexpr COLORREF kErrorFace = RGB(176, 32, 32);
constexpr COLORREF kErrorText = RGB(255, 255, 255);

} // namespace

IMPLEMENT_DYNAMIC(CStatusLine, CWnd)

BEGIN_MESSAGE_MAP(CStatusLine, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

CStatusLine::CStatusLine()
{
    m_font.CreateFont(12, nullptr);
}

CStatusLine::~CStatusLine() = default;

BOOL CStatusLine::CreateLine(CWnd* pMainFrame)
{
    const LPCWSTR pszClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    return Create(pszClass, nullptr, WS_CHILD | WS_CLIPSIBLINGS, CRect(0, 0, 0, 0), pMainFrame, 0);
}

void CStatusLine::ShowText(const CString& strText, bool bError)
{
    if (strText == m_strText && bError == m_bError)
        return;
    m_strText = strText;
    m_bError = bError;
    Invalidate();
}

BOOL CStatusLine::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE; // OnPaint covers all of it
}

void CStatusLine::OnPaint()
{
    CPaintDC dc(this);
    CRect rc;
    GetClientRect(&rc);
    dc.FillSolidRect(&rc, m_bError ? kErrorFace : ::GetSysColor(COLOR_3DFACE));
    dc.SelectObject(&m_font);
    dc.SetBkMode(TRANSPARENT);
    dc.SetTextColor(m_bError ? kErrorText : ::GetSysColor(COLOR_BTNTEXT));
    rc.DeflateRect(kMargin, 0);
    dc.DrawText(m_strText, &rc, DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}
