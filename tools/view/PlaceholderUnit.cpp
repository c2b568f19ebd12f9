// The placeholder's window: what it answers as a unit, and when it paints.
#include "PlaceholderUnit.h"

#include "definition/UnitInfo.h"
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
    m_pPainter->Paint(*pDC, rcClient, Texts(), m_colors);
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
    if (IsWidthFixed())
        texts.strPlace += L", fixed width";
    if (IsHeightFixed())
        texts.strPlace += L", fixed height";
    if (m_pBaseUnitInfo && m_pBaseUnitInfo->m_bGlobal)
        texts.strPlace += L", global";
    return texts;
}
