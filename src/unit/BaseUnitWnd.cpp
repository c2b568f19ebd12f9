// The unit window: its making and end, its hooks' base behaviour, and the calls into it.
// Whoever calls a hook here takes into account that the unit may be gone afterwards: a link to its own leaf
// tells.
#include "unit/BaseUnitWnd.h"

#include "definition/UnitInfo.h"
#include "platform/base/Number.h"
#include "platform/graphics/Brush.h"
#include "platform/window/PaintDC.h"
#include "unit/UnitObserver.h"

using splitframe::CSplitLineLink;

IMPLEMENT_DYNCREATE(CBaseUnitWnd, CWnd)

BEGIN_MESSAGE_MAP(CBaseUnitWnd, CWnd)
ON_WM_PAINT()
ON_WM_KEYDOWN()
ON_WM_CLOSE()
ON_WM_DESTROY()
ON_WM_LBUTTONDOWN()
ON_WM_LBUTTONUP()
ON_WM_MOUSEMOVE()
ON_MESSAGE(UNIT_MSG_ENGINE_DATA, &CBaseUnitWnd::OnEngineData)
ON_MESSAGE(UNIT_MSG_UPDATE_MENU, &CBaseUnitWnd::OnUpdateMenuUI)
END_MESSAGE_MAP()

CBaseUnitWnd::CBaseUnitWnd()
    : CSplitLine(NT_UNIT, false, nullptr), m_bActivated(false), m_pBaseUnitInfo(nullptr), m_bBorder(false),
      m_bCustomDraw(false), m_bShowSide{true, true, true, true}, m_pfnNotify(nullptr)
{
    m_pUnit = this;
}

CBaseUnitWnd::~CBaseUnitWnd()
{
    // From here on nobody finds the unit through its leaf; the leaf itself leaves its tree when it goes.
    m_pUnit = nullptr;
    splitframe::CUnitObserver::UnitDeleted(this);
}

namespace {

// The last eight bytes of a class as one number, so that all of the class shows in the text.
int FoldTail(const GUID& guid)
{
    DWORD nFolded = 0;
    for (int i = 0; i < 4; ++i)
        nFolded = (nFolded << 8) | static_cast<DWORD>(guid.Data4[i] ^ guid.Data4[i + 4]);
    return static_cast<int>(nFolded);
}

CString TextOfClass(const GUID& guid)
{
    CString strText;
    strText.Format(L"BaseUnit-%d-%d-%d-%d", static_cast<int>(guid.Data1), static_cast<int>(guid.Data2),
                   static_cast<int>(guid.Data3), FoldTail(guid));
    return strText;
}

CRect RectOfRecord(const CBaseUnitInfo& info)
{
    return {info.m_x, info.m_y, splitframe::AddClamped(info.m_x, info.m_cx),
            splitframe::AddClamped(info.m_y, info.m_cy)};
}

} // namespace

BOOL CBaseUnitWnd::Create(CWnd* pParent, CBaseUnitInfo* pInfo)
{
    m_bActivated = false;
    m_pBaseUnitInfo = pInfo;
    m_strName = pInfo ? pInfo->m_strName : CString();
    m_bBorder = !pInfo || pInfo->m_nBorderStyle != 0;
    m_penBorder.DeleteObject();
    m_penBorder.Attach(::CreatePen(PS_SOLID, 1, RGB(132, 0, 0)));
    const CRect rc = pInfo ? RectOfRecord(*pInfo) : CRect(0, 0, 100, 100);
    const CString strText = pInfo ? pInfo->m_strName : TextOfClass(GetGUID());
    const LPCWSTR pszClass = AfxRegisterWndClass(CS_VREDRAW | CS_HREDRAW | CS_DBLCLKS | CS_OWNDC,
                                                 ::LoadCursor(nullptr, IDC_ARROW));
    m_pHostWnd = pParent;
    return CWnd::Create(pszClass, strText, WS_CHILD | WS_CLIPSIBLINGS, rc, pParent, 0, nullptr);
}

BOOL CBaseUnitWnd::Init(const wchar_t* pszParam)
{
    m_strParam = pszParam;
    m_strParam.MakeUpper();
    return TRUE;
}

// Hooks.

void CBaseUnitWnd::HandleStyle(CString) {}

void CBaseUnitWnd::ProcessActivate2(bool) {}

void CBaseUnitWnd::ProcessActivate(bool bActivate)
{
    m_bActivated = bActivate;
}

LRESULT CBaseUnitWnd::ProcessCommand(UINT, LPARAM)
{
    return 0;
}

void CBaseUnitWnd::OnStyleChange(bool) {}

void CBaseUnitWnd::OnMDIActivate(BOOL, CWnd*, CWnd*) {}

bool CBaseUnitWnd::IsKeyFilted(UINT nChar)
{
    const auto isOneOf = [nChar](UINT nFirst, UINT nLast) { return nChar >= nFirst && nChar <= nLast; };
    return !(isOneOf('0', '9') || isOneOf('A', 'Z') || isOneOf(VK_NUMPAD0, VK_NUMPAD9) ||
             isOneOf(VK_F1, VK_F6) || nChar == VK_F10 || nChar == VK_TAB || nChar == VK_ESCAPE);
}

GUID CBaseUnitWnd::GetGUID()
{
    return {0x6863074A, 0xE996, 0x4D17, {0xA3, 0xAF, 0x7F, 0xA2, 0xD0, 0x93, 0x54, 0x1B}};
}

BOOL CBaseUnitWnd::ProcessMouseWheel(short, CPoint)
{
    return 0;
}

BOOL CBaseUnitWnd::ShowWindowEx(int nCmdShow)
{
    return CWnd::ShowWindow(nCmdShow);
}

CPen* CBaseUnitWnd::GetBorderPen()
{
    return &m_penBorder;
}

void CBaseUnitWnd::Notify(UINT nCode, LPARAM lParam)
{
    if (m_pfnNotify)
        m_pfnNotify(CWnd::FromHandle(::GetParent(m_hWnd)), nCode, lParam);
}

void CBaseUnitWnd::CustomDraw(CPaintDC* pDC)
{
    CRect rc;
    GetClientRect(rc);
    pDC->FillRect(rc, static_cast<HBRUSH>(::GetStockObject(DKGRAY_BRUSH)));
}

LRESULT CBaseUnitWnd::UpdateMenu(CMenu*, CString)
{
    return 0;
}

LRESULT CBaseUnitWnd::OnEngineData(WPARAM, LPARAM)
{
    return 0;
}

// Calls into the unit.

LRESULT CBaseUnitWnd::OnProcessCommand(UINT nCmd, LPARAM lParam)
{
    const CSplitLineLink self(this);
    switch (nCmd) {
    case splitframe::UNIT_CMD_APP_ACTIVATE:
        if (lParam == 1 && ::IsWindowVisible(m_hWnd))
            SetFocus();
        break;
    case splitframe::UNIT_CMD_SET_FOCUS:
        if (m_hWnd)
            SetFocus();
        break;
    case splitframe::UNIT_CMD_REACTIVATE:
        if (!m_bActivated)
            break;
        ProcessActivate2(false);
        if (self)
            ProcessActivate2(true);
        break;
    default:
        break;
    }
    return self ? ProcessCommand(nCmd, lParam) : 0;
}

void CBaseUnitWnd::StyleChange(bool b)
{
    m_bCustomDraw = b;
    OnStyleChange(b);
}

void CBaseUnitWnd::MDIActivate(BOOL bActivate, CWnd* pActivate, CWnd* pDeactivate)
{
    m_bCustomDraw = bActivate != 0;
    OnMDIActivate(bActivate, pActivate, pDeactivate);
}

void CBaseUnitWnd::SetNotifyFunc(void (*pfn)(void*, UINT, LPARAM))
{
    m_pfnNotify = pfn;
}

void CBaseUnitWnd::SetWidthFixed(bool bFixed)
{
    if (m_pBaseUnitInfo)
        m_pBaseUnitInfo->m_nMinWidth = bFixed ? m_pBaseUnitInfo->m_nMaxWidth : 0;
}

void CBaseUnitWnd::SetHeightFixed(bool bFixed)
{
    if (m_pBaseUnitInfo)
        m_pBaseUnitInfo->m_nMinHeight = bFixed ? m_pBaseUnitInfo->m_nMaxHeight : 0;
}

LRESULT CBaseUnitWnd::OnUpdateMenuUI(WPARAM wParam, LPARAM lParam)
{
    return UpdateMenu(reinterpret_cast<CMenu*>(wParam), CString(reinterpret_cast<const wchar_t*>(lParam)));
}

void CBaseUnitWnd::OnClose()
{
    Default();
}

void CBaseUnitWnd::OnDestroy()
{
    CWnd::OnDestroy();
}
