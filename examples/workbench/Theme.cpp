// Fonts, colours by meaning, and the shapes.
#include "Theme.h"

#include <algorithm>
#include <array>
#include <cmath>
#include <cstddef>

namespace theme {

namespace {

/// Made at the first use and not before: drawing objects need the graphics library to be ready, which it is
/// not while this program's globals are built.
struct Fonts
{
    std::array<CFont, 6> arrFont;

    Fonts()
    {
        Make(Font::Small, 11, FW_NORMAL, L"DejaVu Sans");
        Make(Font::Normal, 13, FW_NORMAL, L"DejaVu Sans");
        Make(Font::Bold, 13, FW_BOLD, L"DejaVu Sans");
        Make(Font::Large, 22, FW_BOLD, L"DejaVu Sans");
        Make(Font::Huge, 34, FW_BOLD, L"DejaVu Sans");
        Make(Font::Fixed, 12, FW_NORMAL, L"DejaVu Sans Mono");
    }
    void Make(Font font, int nHeight, int nWeight, LPCWSTR pszFace)
    {
        arrFont[static_cast<std::size_t>(font)].CreateFont(nHeight, pszFace, nWeight);
    }
};

} // namespace

CFont* GetFont(Font font)
{
    static Fonts fonts;
    return &fonts.arrFont[static_cast<std::size_t>(font)];
}

COLORREF TraceColor(int nTrace)
{
    static constexpr std::array<COLORREF, 6> COLORS = {RGB(28, 103, 186), RGB(214, 108, 22),
                                                       RGB(30, 140, 88),  RGB(140, 72, 176),
                                                       RGB(190, 52, 90),  RGB(96, 110, 20)};
    return COLORS[static_cast<std::size_t>(std::max(nTrace, 0)) % COLORS.size()];
}

COLORREF StateColor(AlarmState state)
{
    return state == AlarmState::Normal ? TEXT : state == AlarmState::High ? ALARM : WARNING;
}

COLORREF StateBackground(AlarmState state)
{
    return state == AlarmState::Normal ? PANEL : state == AlarmState::High ? ALARM_SOFT : WARNING_SOFT;
}

COLORREF SeverityColor(Severity severity)
{
    switch (severity) {
    case Severity::Alarm:
        return ALARM;
    case Severity::Warning:
        return WARNING;
    case Severity::Operator:
        return ACCENT;
    case Severity::Info:
        break;
    }
    return MUTED;
}

COLORREF SeverityBackground(Severity severity)
{
    return Mix(SeverityColor(severity), PANEL, 0.13);
}

COLORREF Mix(COLORREF a, COLORREF b, double dPart)
{
    const auto blend = [dPart](int nA, int nB) {
        return static_cast<int>(std::lround(nA * dPart + nB * (1.0 - dPart)));
    };
    return RGB(blend(GetRValue(a), GetRValue(b)), blend(GetGValue(a), GetGValue(b)),
               blend(GetBValue(a), GetBValue(b)));
}

void DrawLine(CDC& dc, const CString& strText, const CRect& rc, Font font, COLORREF color, UINT nAlign)
{
    if (rc.IsRectEmpty())
        return;
    CFont* pOld = dc.SelectObject(GetFont(font));
    const COLORREF old = dc.SetTextColor(color);
    CRect rcText(rc);
    dc.DrawText(strText, rcText, DT_SINGLELINE | DT_VCENTER | DT_END_ELLIPSIS | DT_NOPREFIX | nAlign);
    dc.SetTextColor(old);
    dc.SelectObject(pOld);
}

int TextWidth(CDC& dc, const CString& strText, Font font)
{
    CFont* pOld = dc.SelectObject(GetFont(font));
    const int nWidth = dc.GetTextExtent(strText).cx;
    dc.SelectObject(pOld);
    return nWidth;
}

void DrawBox(CDC& dc, const CRect& rc, COLORREF fill, COLORREF outline, int nCorner)
{
    if (rc.IsRectEmpty())
        return;
    const CPenScope pen(dc, outline, 1);
    const CBrushScope brush(dc, fill);
    dc.RoundRect(rc, CPoint(nCorner, nCorner));
}

void DrawDisc(CDC& dc, CPoint ptCenter, int nRadius, COLORREF fill)
{
    const CPenScope pen(dc, fill, 1);
    const CBrushScope brush(dc, fill);
    const CRect rc(ptCenter.x - nRadius, ptCenter.y - nRadius, ptCenter.x + nRadius, ptCenter.y + nRadius);
    dc.Ellipse(rc);
}

void DrawPill(CDC& dc, const CString& strText, const CRect& rc, COLORREF text, COLORREF fill)
{
    if (rc.Width() < 12 || rc.Height() < 8)
        return;
    DrawBox(dc, rc, fill, fill, rc.Height());
    DrawLine(dc, strText, rc, Font::Small, text, DT_CENTER);
}

void DrawStroke(CDC& dc, CPoint ptFrom, CPoint ptTo, COLORREF color, int nWidth)
{
    const CPenScope pen(dc, color, nWidth);
    dc.MoveTo(ptFrom);
    dc.LineTo(ptTo);
}

} // namespace theme
