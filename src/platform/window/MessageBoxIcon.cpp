#include "platform/window/MessageBoxIcon.h"

#include "platform/graphics/DC.h"
#include "platform/window/Look.h"
#include "platform/window/Messages.h"

namespace splitframe {

namespace {

constexpr COLORREF RED = RGB(196, 43, 28);
constexpr COLORREF AMBER = RGB(240, 173, 20);
constexpr COLORREF BLUE = RGB(38, 110, 194);
constexpr COLORREF WHITE = RGB(255, 255, 255);
constexpr COLORREF DARK = RGB(32, 36, 41);

// Selects a pen and a brush for as long as it lives.
class Tools
{
public:
    Tools(CDC& dc, int nWidth, COLORREF color)
        : m_dc(dc), m_pen(PS_SOLID, nWidth, color), m_brush(color), m_pPenBefore(dc.SelectObject(&m_pen)),
          m_pBrushBefore(dc.SelectObject(&m_brush))
    {
    }
    ~Tools()
    {
        m_dc.SelectObject(m_pPenBefore);
        m_dc.SelectObject(m_pBrushBefore);
    }
    Tools(const Tools&) = delete;
    Tools& operator=(const Tools&) = delete;

private:
    CDC& m_dc;
    CPen m_pen;
    CBrush m_brush;
    CPen* m_pPenBefore;
    CBrush* m_pBrushBefore;
};

void DrawDisc(CDC& dc, CPoint pt, COLORREF color)
{
    const Tools tools(dc, 1, color);
    dc.Ellipse(CRect(pt, CSize(BOX_ICON_SIZE, BOX_ICON_SIZE)));
}

void DrawTriangle(CDC& dc, CPoint pt, COLORREF color)
{
    const Tools tools(dc, 2, color);
    const POINT points[] = {{pt.x + 16, pt.y + 3}, {pt.x + 30, pt.y + 28}, {pt.x + 2, pt.y + 28}};
    dc.Polygon(points, 3);
}

void DrawSign(CDC& dc, CPoint pt, const wchar_t* pszSign, COLORREF color)
{
    CFont font;
    font.CreateFont(20, nullptr, FW_BOLD);
    CFont* pBefore = dc.SelectObject(&font);
    const COLORREF before = dc.SetTextColor(color);
    CRect rc(pt, CSize(BOX_ICON_SIZE, BOX_ICON_SIZE));
    dc.DrawText(pszSign, &rc, DT_CENTER | DT_VCENTER | DT_SINGLELINE | DT_NOPREFIX);
    dc.SetTextColor(before);
    dc.SelectObject(pBefore);
}

} // namespace

bool HasBoxIcon(UINT nType)
{
    const UINT nIcon = nType & MB_ICONMASK;
    return nIcon == MB_ICONERROR || nIcon == MB_ICONQUESTION || nIcon == MB_ICONWARNING ||
           nIcon == MB_ICONINFORMATION;
}

void DrawBoxIcon(CDC& dc, UINT nType, CPoint pt)
{
    switch (nType & MB_ICONMASK) {
    case MB_ICONERROR:
        DrawDisc(dc, pt, RED);
        DrawCross(dc, {pt.x + BOX_ICON_SIZE / 2, pt.y + BOX_ICON_SIZE / 2}, 5, 3, WHITE);
        break;
    case MB_ICONQUESTION:
        DrawDisc(dc, pt, BLUE);
        DrawSign(dc, pt, L"?", WHITE);
        break;
    case MB_ICONWARNING:
        DrawTriangle(dc, pt, AMBER);
        DrawSign(dc, {pt.x, pt.y + 2}, L"!", DARK);
        break;
    case MB_ICONINFORMATION:
        DrawDisc(dc, pt, BLUE);
        DrawSign(dc, pt, L"i", WHITE);
        break;
    default:
        break;
    }
}

} // namespace splitframe
