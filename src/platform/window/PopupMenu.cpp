// Measuring, placing and painting an open menu.
#include "platform/window/PopupMenu.h"

#include "platform/graphics/SystemColors.h"
#include "platform/window/Look.h"
#include "platform/window/MenuText.h"
#include "platform/window/PaintDC.h"
#include "platform/window/WindowRecord.h"

#include <algorithm>

namespace splitframe {

IMPLEMENT_DYNAMIC(CPopupMenu, CWnd)

BEGIN_MESSAGE_MAP(CPopupMenu, CWnd)
ON_WM_PAINT()
ON_WM_ERASEBKGND()
END_MESSAGE_MAP()

namespace {

constexpr int LINE_HEIGHT = 26;
constexpr int SEPARATOR_HEIGHT = 9;
constexpr int BORDER = 1;
constexpr int PADDING = 4;       // between the border and the lines
constexpr int MARK_COLUMN = 30;  // check marks, left of the labels
constexpr int ARROW_COLUMN = 28; // arrows of submenus, right of all
constexpr int SHORTCUT_GAP = 28; // between label and shortcut
constexpr int MIN_WIDTH = 120;
constexpr int SCROLL_ZONE = 18; // height of the marks at both ends of a scrolled menu

// One axis: behind the anchor, else before it, else as far as the room goes.
int PlaceBeside(int nBefore, int nBehind, int nLength, int nFrom, int nTo)
{
    if (nBehind + nLength <= nTo)
        return std::max(nFrom, nBehind);
    return nBefore - nLength >= nFrom ? nBefore - nLength : std::max(nFrom, nTo - nLength);
}

// One axis: in line with nStart, moved back where there is no room.
int PlaceInLine(int nStart, int nLength, int nFrom, int nTo)
{
    return std::max(nFrom, std::min(nStart, nTo - nLength));
}

// A menu that drops from a title leaves the title in sight.
CRect PlacePopup(CSize size, const CRect& rcAnchor, bool bBelow, const CRect& rcRoom)
{
    if (!bBelow) {
        size.cy = std::min(size.cy, rcRoom.Height());
        return {CPoint(PlaceBeside(rcAnchor.left, rcAnchor.right, size.cx, rcRoom.left, rcRoom.right),
                       PlaceInLine(rcAnchor.top - BORDER - PADDING, size.cy, rcRoom.top, rcRoom.bottom)),
                size};
    }
    size.cy = std::min(size.cy, std::max(rcRoom.bottom - rcAnchor.bottom, rcRoom.Height() / 2));
    return {CPoint(PlaceInLine(rcAnchor.left, size.cx, rcRoom.left, rcRoom.right),
                   PlaceBeside(rcAnchor.top, rcAnchor.bottom, size.cy, rcRoom.top, rcRoom.bottom)),
            size};
}

CRect PlaceAtPoint(CSize size, CPoint pt, UINT nAlign, const CRect& rcRoom)
{
    size.cy = std::min(size.cy, rcRoom.Height());
    if ((nAlign & TPM_RIGHTALIGN) != 0)
        pt.x -= size.cx;
    else if ((nAlign & TPM_CENTERALIGN) != 0)
        pt.x -= size.cx / 2;
    if ((nAlign & TPM_BOTTOMALIGN) != 0)
        pt.y -= size.cy;
    else if ((nAlign & TPM_VCENTERALIGN) != 0)
        pt.y -= size.cy / 2;
    // Where it would be cut it opens to the other side of the point, so that the pointer stays outside.
    return {CPoint(PlaceBeside(pt.x, pt.x, size.cx, rcRoom.left, rcRoom.right),
                   PlaceBeside(pt.y, pt.y, size.cy, rcRoom.top, rcRoom.bottom)),
            size};
}

void DrawCheckMark(CDC& dc, CPoint ptCentre, COLORREF color)
{
    CPen pen(PS_SOLID, 2, color);
    CPen* pBefore = dc.SelectObject(&pen);
    const POINT points[] = {
        {ptCentre.x - 5, ptCentre.y}, {ptCentre.x - 1, ptCentre.y + 4}, {ptCentre.x + 6, ptCentre.y - 5}};
    dc.Polyline(points, 3);
    dc.SelectObject(pBefore);
}

} // namespace

CPopupMenu::CPopupMenu() = default;

CPopupMenu::~CPopupMenu() = default;

// --- opening

BOOL CPopupMenu::Open(HWND hOwner, HMENU hShown, const CRect& rcAnchor, PopupSide side, UINT nAlign)
{
    m_hShown = hShown;
    ReadLines();
    if (m_arrLine.empty())
        return FALSE;
    const CRect rcRoom(Desktop().rc);
    const CSize size = WantedSize();
    const CRect rc = side == PopupSide::AtPoint
                         ? PlaceAtPoint(size, rcAnchor.TopLeft(), nAlign, rcRoom)
                         : PlacePopup(size, rcAnchor, side == PopupSide::Below, rcRoom);
    const LPCWSTR pszClass = AfxRegisterWndClass(0, ::LoadCursor(nullptr, IDC_ARROW));
    if (!CreateEx(0, pszClass, nullptr, WS_POPUP, rc.left, rc.top, rc.Width(), rc.Height(), hOwner, nullptr))
        return FALSE;
    ShowWindow(SW_SHOWNOACTIVATE);
    return TRUE;
}

void CPopupMenu::ReadLines()
{
    m_arrLine.clear();
    int nTop = 0;
    for (int n = 0; n < ::GetMenuItemCount(m_hShown); ++n) {
        const UINT nPosition = static_cast<UINT>(n);
        const UINT nFlags = ::GetMenuState(m_hShown, nPosition, MF_BYPOSITION);
        MenuText text = SplitMenuText(::GetMenuString(m_hShown, nPosition, MF_BYPOSITION));
        const bool bSeparator = (nFlags & (MF_SEPARATOR | MF_POPUP)) == MF_SEPARATOR;
        const int nHeight = bSeparator ? SEPARATOR_HEIGHT : LINE_HEIGHT;
        m_arrLine.push_back({std::move(text.strLabel), std::move(text.strShortcut), nFlags,
                             ::GetMenuItemID(m_hShown, n), bSeparator, nTop, nHeight});
        nTop += nHeight;
    }
}

CSize CPopupMenu::WantedSize() const
{
    int nLabel = 0;
    int nShortcut = 0;
    for (const Line& line : m_arrLine) {
        nLabel = std::max(nLabel, MeasureLabel(line.strLabel, 0));
        if (!line.strShortcut.IsEmpty())
            nShortcut = std::max(nShortcut, SHORTCUT_GAP + MeasureLabel(line.strShortcut, DT_NOPREFIX));
    }
    const int nWidth = MARK_COLUMN + nLabel + nShortcut + ARROW_COLUMN;
    return {std::max(nWidth, MIN_WIDTH) + 2 * BORDER, ContentHeight() + 2 * (BORDER + PADDING)};
}

// --- lines

int CPopupMenu::ContentHeight() const
{
    return m_arrLine.empty() ? 0 : m_arrLine.back().nTop + m_arrLine.back().nHeight;
}

bool CPopupMenu::IsScrolled() const
{
    CRect rcClient;
    GetClientRect(&rcClient);
    return ContentHeight() + 2 * (BORDER + PADDING) > rcClient.Height();
}

CRect CPopupMenu::LinesRect() const
{
    CRect rc;
    GetClientRect(&rc);
    rc.DeflateRect(BORDER, BORDER + (IsScrolled() ? SCROLL_ZONE : PADDING));
    rc.bottom = std::max(rc.top, rc.bottom);
    return rc;
}

CRect CPopupMenu::RectOf(const Line& line) const
{
    const CRect rcLines = LinesRect();
    const int nTop = rcLines.top + line.nTop - m_nScroll;
    return {rcLines.left, nTop, rcLines.right, nTop + line.nHeight};
}

CRect CPopupMenu::GetLineRect(int nLine) const
{
    CRect rc;
    if (nLine < 0 || nLine >= GetLineCount() ||
        !rc.IntersectRect(RectOf(m_arrLine[static_cast<std::size_t>(nLine)]), LinesRect()))
        return {};
    ClientToScreen(&rc);
    return rc;
}

int CPopupMenu::LineAt(CPoint ptScreen) const
{
    for (int n = 0; n < GetLineCount(); ++n) {
        if (GetLineRect(n).PtInRect(ptScreen))
            return n;
    }
    return -1;
}

std::vector<CString> CPopupMenu::GetLabels() const
{
    std::vector<CString> arrLabel(m_arrLine.size());
    for (int n = 0; n < GetLineCount(); ++n)
        if (CanChoose(n))
            arrLabel[static_cast<std::size_t>(n)] = m_arrLine[static_cast<std::size_t>(n)].strLabel;
    return arrLabel;
}

UINT CPopupMenu::GetCommand(int nLine) const
{
    return CanChoose(nLine) ? m_arrLine[static_cast<std::size_t>(nLine)].nID : 0;
}

// --- selection and scrolling

bool CPopupMenu::CanChoose(int nLine) const
{
    if (nLine < 0 || nLine >= GetLineCount())
        return false;
    const Line& line = m_arrLine[static_cast<std::size_t>(nLine)];
    return !line.bSeparator && (line.nFlags & (MF_GRAYED | MF_DISABLED)) == 0;
}

void CPopupMenu::Select(int nLine)
{
    if (!CanChoose(nLine))
        nLine = -1;
    if (nLine == m_nSelection)
        return;
    m_nSelection = nLine;
    Invalidate();
    if (nLine < 0)
        return;
    const Line& line = m_arrLine[static_cast<std::size_t>(nLine)];
    const int nRoom = LinesRect().Height();
    if (line.nTop < m_nScroll)
        ScrollTo(line.nTop);
    else if (line.nTop + line.nHeight > m_nScroll + nRoom)
        ScrollTo(line.nTop + line.nHeight - nRoom);
}

int CPopupMenu::Next(int nFrom, int nStep) const
{
    const int nCount = GetLineCount();
    int n = nFrom < 0 ? (nStep > 0 ? -1 : nCount) : nFrom;
    for (int nTried = 0; nTried < nCount; ++nTried) {
        n = (n + nStep + nCount) % nCount;
        if (CanChoose(n))
            return n;
    }
    return -1;
}

int CPopupMenu::ScrollDirection(CPoint ptScreen) const
{
    CRect rcWindow;
    GetWindowRect(&rcWindow);
    if (!IsScrolled() || !rcWindow.PtInRect(ptScreen))
        return 0;
    CRect rcLines = LinesRect();
    ClientToScreen(&rcLines);
    if (ptScreen.y < rcLines.top)
        return m_nScroll > 0 ? -1 : 0;
    if (ptScreen.y >= rcLines.bottom)
        return m_nScroll < ContentHeight() - rcLines.Height() ? 1 : 0;
    return 0;
}

void CPopupMenu::Scroll(int nLines)
{
    ScrollTo(m_nScroll + nLines * LINE_HEIGHT);
}

void CPopupMenu::ScrollTo(int nTop)
{
    nTop = std::clamp(nTop, 0, std::max(0, ContentHeight() - LinesRect().Height()));
    if (nTop == m_nScroll)
        return;
    m_nScroll = nTop;
    Invalidate();
}

// --- painting

BOOL CPopupMenu::OnEraseBkgnd(CDC* /*pDC*/)
{
    return TRUE; // OnPaint covers all of it
}

void CPopupMenu::OnPaint()
{
    CPaintDC dc(this);
    CRect rcClient;
    GetClientRect(&rcClient);
    dc.FillSolidRect(&rcClient, ::GetSysColor(COLOR_MENU));
    CBrush brushFrame(::GetSysColor(COLOR_WINDOWFRAME));
    dc.FrameRect(&rcClient, &brushFrame);
    SelectLookFont(dc);
    if (IsScrolled())
        DrawScrollMarks(dc);
    const CRect rcLines = LinesRect();
    dc.IntersectClipRect(rcLines);
    for (int n = 0; n < GetLineCount(); ++n) {
        const Line& line = m_arrLine[static_cast<std::size_t>(n)];
        if (dc.RectVisible(RectOf(line)))
            DrawLine(dc, line, n == m_nSelection);
    }
}

void CPopupMenu::DrawLine(CDC& dc, const Line& line, bool bSelected) const
{
    const CRect rc = RectOf(line);
    if (line.bSeparator) {
        dc.FillSolidRect(rc.left + MARK_COLUMN, rc.top + SEPARATOR_HEIGHT / 2,
                         rc.Width() - MARK_COLUMN - PADDING, 1, ::GetSysColor(COLOR_3DLIGHT));
        return;
    }
    if (bSelected)
        dc.FillSolidRect(rc.left + PADDING, rc.top, rc.Width() - 2 * PADDING, rc.Height(),
                         ::GetSysColor(COLOR_MENUHILIGHT));
    const bool bEnabled = (line.nFlags & (MF_GRAYED | MF_DISABLED)) == 0;
    const COLORREF text = ::GetSysColor(bEnabled ? COLOR_MENUTEXT : COLOR_GRAYTEXT);
    dc.SetTextColor(text);
    CRect rcText(rc.left + MARK_COLUMN, rc.top, rc.right - ARROW_COLUMN, rc.bottom);
    dc.DrawText(line.strLabel, &rcText, DT_LEFT | DT_VCENTER | DT_SINGLELINE);
    if (!line.strShortcut.IsEmpty()) {
        dc.SetTextColor(MixColors(text, ::GetSysColor(COLOR_MENU), 70));
        dc.DrawText(line.strShortcut, &rcText, DT_RIGHT | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    }
    const int yCentre = rc.top + rc.Height() / 2;
    if ((line.nFlags & MF_CHECKED) != 0)
        DrawCheckMark(dc, {rc.left + MARK_COLUMN / 2, yCentre}, text);
    if ((line.nFlags & MF_POPUP) != 0)
        DrawAngle(dc, {rc.right - ARROW_COLUMN / 2, yCentre}, 1, 0, text);
}

void CPopupMenu::DrawScrollMarks(CDC& dc) const
{
    const CRect rcLines = LinesRect();
    const bool bMoreAbove = m_nScroll > 0;
    const bool bMoreBelow = m_nScroll < ContentHeight() - rcLines.Height();
    const int xCentre = rcLines.CenterPoint().x;
    const auto color = [](bool bMore) { return ::GetSysColor(bMore ? COLOR_MENUTEXT : COLOR_3DSHADOW); };
    DrawAngle(dc, {xCentre, rcLines.top - SCROLL_ZONE / 2}, 0, -1, color(bMoreAbove));
    DrawAngle(dc, {xCentre, rcLines.bottom + SCROLL_ZONE / 2}, 0, 1, color(bMoreBelow));
}

} // namespace splitframe
