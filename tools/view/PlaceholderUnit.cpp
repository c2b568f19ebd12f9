// The placeholder's window: what it answers as a unit, and when it paints.
#include "PlaceholderUnit.h"

#include "ViewerWindow.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "platform/docview/WinApp.h"
#include "platform/window/PaintDC.h"

namespace {

// Fonts are costly: all units share one painter, and none is left when the library is unloaded.
std::shared_ptr<viewer::PanePainter> SharedPainter()
{
    static std::weak_ptr<viewer::PanePainter> pShared;
    std::shared_ptr<viewer::PanePainter> pPainter = pShared.lock();
    if (!pPainter) {
        pPainter = std::make_shared<viewer::PanePainter>();
        pShared = pPainter;
    }
    return pPainter;
}

} // namespace

IMPLEMENT_DYNCREATE(CPlaceholderUnit, CBaseUnitWnd)

BEGIN_MESSAGE_MAP(CPlaceholderUnit, CBaseUnitWnd)
ON_WM_PAINT()
ON_WM_SIZE()
ON_WM_MOVE()
ON_WM_SETFOCUS()
ON_WM_KILLFOCUS()
ON_WM_LBUTTONDOWN()
END_MESSAGE_MAP()

CPlaceholderUnit::CPlaceholderUnit() : m_pPainter(SharedPainter()), m_colors(viewer::ColorsOf(CString())) {}

CPlaceholderUnit::~CPlaceholderUnit() = default;

GUID CPlaceholderUnit::GetGUID()
{
    return m_pBaseUnitInfo ? m_pBaseUnitInfo->m_guid : CBaseUnitWnd::GetGUID();
}

BOOL CPlaceholderUnit::Create(CWnd* pParent, CBaseUnitInfo* pInfo)
{
    const BOOL bCreated = CBaseUnitWnd::Create(pParent, pInfo);
    m_colors = viewer::ColorsOf(m_strName);
    m_penBorder.DeleteObject();
    m_penBorder.CreatePen(PS_SOLID, 1, m_colors.border);
    return bCreated;
}

BOOL CPlaceholderUnit::Init(const wchar_t* pszParam)
{
    m_strShownParam = pszParam;
    Invalidate();
    return CBaseUnitWnd::Init(pszParam);
}

void CPlaceholderUnit::CustomDraw(CPaintDC* pDC)
{
    CRect rcClient;
    GetClientRect(rcClient);
    m_pPainter->Paint(*pDC, rcClient, Texts(), ShowsFocus() ? viewer::Stronger(m_colors) : m_colors);
}

// A frame tells only its own units that it was activated. A global unit is to be seen all the same.
void CPlaceholderUnit::OnPaint()
{
    m_bCustomDraw = true;
    CBaseUnitWnd::OnPaint();
}

// Size and place are part of the picture.
void CPlaceholderUnit::OnSize(UINT nType, int cx, int cy)
{
    CBaseUnitWnd::OnSize(nType, cx, cy);
    Invalidate();
}

void CPlaceholderUnit::OnMove(int x, int y)
{
    CBaseUnitWnd::OnMove(x, y);
    Invalidate();
}

void CPlaceholderUnit::OnSetFocus(CWnd* pOldWnd)
{
    CBaseUnitWnd::OnSetFocus(pOldWnd);
    Invalidate();
}

void CPlaceholderUnit::OnKillFocus(CWnd* pNewWnd)
{
    CBaseUnitWnd::OnKillFocus(pNewWnd);
    Invalidate();
}

// The pane becomes the current one, from which Tab goes on.
void CPlaceholderUnit::OnLButtonDown(UINT nFlags, CPoint pt)
{
    CBaseUnitWnd::OnLButtonDown(nFlags, pt);
    const auto* pView = DYNAMIC_DOWNCAST(CBaseFrameView, GetParent());
    CBaseFrameDoc* pDocument = pView ? pView->GetFrameDoc() : nullptr;
    for (int nUnit = 0; pDocument && nUnit < pDocument->GetBaseUnitWndCount(); ++nUnit)
        if (pDocument->GetBaseUnitWnd(nUnit) == this)
            return pDocument->SetCurrentBaseUnitWnd(nUnit);
    SetFocus(); // a global unit is in no frame's list
}

// A picture shows the layout and not where somebody works in it.
bool CPlaceholderUnit::ShowsFocus() const
{
    return GetFocus() == this && DYNAMIC_DOWNCAST(CViewerWindow, ::AfxGetMainWnd());
}

bool CPlaceholderUnit::ToggleSide(DIRECT_VALUE d)
{
    if (!GetSplitLine(d))
        return false;
    GetHideShowState(d); // others may have hidden it since this pane did
    HideShow(d);
    return true;
}

viewer::PaneTexts CPlaceholderUnit::Texts() const
{
    CRect rc;
    GetWindowRect(rc);
    if (const CWnd* pParent = GetParent())
        pParent->ScreenToClient(rc);
    viewer::PaneTexts texts;
    texts.strName = m_strName;
    texts.strParam = m_strShownParam;
    texts.strSize.Format(L"%d × %d", rc.Width(), rc.Height());
    texts.strPlace.Format(L"at %d, %d", rc.left, rc.top);
    const auto note = [&texts](bool bHolds, const wchar_t* pszWhat) {
        if (bHolds)
            texts.strNotes += (texts.strNotes.IsEmpty() ? L"" : L", ") + CString(pszWhat);
    };
    note(IsWidthFixed() && IsHeightFixed(), L"fixed size");
    note(IsWidthFixed() && !IsHeightFixed(), L"fixed width");
    note(!IsWidthFixed() && IsHeightFixed(), L"fixed height");
    note(m_pBaseUnitInfo && m_pBaseUnitInfo->m_bGlobal, L"global");
    return texts;
}
