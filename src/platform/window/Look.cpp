// Measuring needs no window: a device context without a surface knows its font.
#include "platform/window/Look.h"

#include "platform/base/String.h"
#include "platform/graphics/DC.h"

#include <initializer_list>

namespace splitframe {

COLORREF MixColors(COLORREF first, COLORREF second, int nPart)
{
    const auto mix = [nPart](int nFirst, int nSecond) {
        return (nFirst * nPart + nSecond * (100 - nPart)) / 100;
    };
    return RGB(mix(GetRValue(first), GetRValue(second)), mix(GetGValue(first), GetGValue(second)),
               mix(GetBValue(first), GetBValue(second)));
}

void SelectLookFont(CDC& dc)
{
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.SetBkMode(TRANSPARENT);
}

int MeasureLabel(const CString& strLabel, UINT nFormat)
{
    CDC dc;
    SelectLookFont(dc);
    CRect rc(0, 0, 0, 0);
    dc.DrawText(strLabel, &rc, DT_CALCRECT | DT_SINGLELINE | nFormat);
    return rc.Width();
}

namespace {

void DrawStrokes(CDC& dc, std::initializer_list<POINT> points, int nWidth, COLORREF color)
{
    CPen pen(PS_SOLID, nWidth, color);
    CPen* pBefore = dc.SelectObject(&pen);
    dc.Polyline(points.begin(), static_cast<int>(points.size()));
    dc.SelectObject(pBefore);
}

} // namespace

void DrawAngle(CDC& dc, CPoint ptCentre, int dx, int dy, COLORREF color)
{
    const auto [x, y] = ptCentre;
    DrawStrokes(dc,
                {{x - 2 * dx - 4 * dy, y - 2 * dy - 4 * dx},
                 {x + 2 * dx, y + 2 * dy},
                 {x - 2 * dx + 4 * dy, y - 2 * dy + 4 * dx}},
                1, color);
}

void DrawCross(CDC& dc, CPoint ptCentre, int nReach, int nWidth, COLORREF color)
{
    const auto [x, y] = ptCentre;
    DrawStrokes(dc, {{x - nReach, y - nReach}, {x + nReach, y + nReach}}, nWidth, color);
    DrawStrokes(dc, {{x - nReach, y + nReach}, {x + nReach, y - nReach}}, nWidth, color);
}

} // namespace splitframe
