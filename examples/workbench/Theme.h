// How the workbench looks: colours, fonts and the few shapes that every unit draws. Nothing else in the
// workbench names a colour or a font.
#pragma once

#include "plant/Instrument.h"
#include "plant/Journal.h"

#include <platform/graphics/DC.h>

namespace theme {

inline constexpr COLORREF PANEL = RGB(255, 255, 255);     // behind a unit's content
inline constexpr COLORREF CAPTION = RGB(240, 243, 247);   // behind its caption
inline constexpr COLORREF ZEBRA = RGB(247, 249, 251);     // every other row
inline constexpr COLORREF LINE = RGB(201, 209, 219);      // borders
inline constexpr COLORREF GRID = RGB(230, 234, 239);      // lines inside charts and tables
inline constexpr COLORREF TEXT = RGB(32, 41, 54);         // what is read
inline constexpr COLORREF MUTED = RGB(108, 119, 135);     // labels and units of measure
inline constexpr COLORREF ACCENT = RGB(28, 103, 186);     // focus and what can be pressed
inline constexpr COLORREF SELECTION = RGB(217, 232, 250); // the selected row
inline constexpr COLORREF HEADER = RGB(28, 52, 84);       // the banner
inline constexpr COLORREF ON_HEADER = RGB(236, 242, 250); // text on it
inline constexpr COLORREF SOFT_ON_HEADER = RGB(158, 181, 212);
inline constexpr COLORREF ALARM = RGB(200, 42, 46);
inline constexpr COLORREF ALARM_SOFT = RGB(252, 231, 231);
inline constexpr COLORREF WARNING = RGB(190, 118, 8);
inline constexpr COLORREF WARNING_SOFT = RGB(253, 242, 220);
inline constexpr COLORREF GOOD = RGB(30, 132, 82);
inline constexpr COLORREF LIQUID = RGB(170, 208, 240);
inline constexpr COLORREF METAL = RGB(118, 131, 148);

inline constexpr int CAPTION_HEIGHT = 26;
inline constexpr int ROW_HEIGHT = 22;
inline constexpr int PADDING = 10;

enum class Font
{
    Small,  // 11 pixels: axis labels
    Normal, // 13
    Bold,   // 13
    Large,  // 22: figures
    Huge,   // 34
    Fixed   // 12, all digits as wide as each other
};

/// The font, made at its first use; it lives as long as the program.
CFont* GetFont(Font font);

/// The colour of the n-th line of a chart; they repeat.
COLORREF TraceColor(int nTrace);
/// The colour of a value in that state, and a light one to put behind it.
COLORREF StateColor(AlarmState state);
COLORREF StateBackground(AlarmState state);
COLORREF SeverityColor(Severity severity);
COLORREF SeverityBackground(Severity severity);
/// A mixture: dPart of a, the rest b.
COLORREF Mix(COLORREF a, COLORREF b, double dPart);

/// One line of text in a rectangle, shortened with an ellipsis if it does not fit.
/// @param nAlign  DT_LEFT, DT_CENTER or DT_RIGHT
void DrawLine(CDC& dc, const CString& strText, const CRect& rc, Font font, COLORREF color,
              UINT nAlign = DT_LEFT);
int TextWidth(CDC& dc, const CString& strText, Font font);

/// A filled shape with rounded corners and an outline.
void DrawBox(CDC& dc, const CRect& rc, COLORREF fill, COLORREF outline, int nCorner = 6);
void DrawDisc(CDC& dc, CPoint ptCenter, int nRadius, COLORREF fill);
/// A short text in a rounded patch of its colours; nothing when it has no room.
void DrawPill(CDC& dc, const CString& strText, const CRect& rc, COLORREF text, COLORREF fill);
void DrawStroke(CDC& dc, CPoint ptFrom, CPoint ptTo, COLORREF color, int nWidth = 1);

/// Selects a pen for as long as it lives.
class CPenScope
{
public:
    CPenScope(CDC& dc, COLORREF color, int nWidth, int nStyle = PS_SOLID)
        : m_dc(dc), m_pen(nStyle, nWidth, color), m_pOld(dc.SelectObject(&m_pen))
    {
    }
    ~CPenScope() { m_dc.SelectObject(m_pOld); }
    CPenScope(const CPenScope&) = delete;
    CPenScope& operator=(const CPenScope&) = delete;

private:
    CDC& m_dc;
    CPen m_pen;
    CPen* m_pOld;
};

/// Selects a brush for as long as it lives.
class CBrushScope
{
public:
    CBrushScope(CDC& dc, COLORREF color) : m_dc(dc), m_brush(color), m_pOld(dc.SelectObject(&m_brush)) {}
    ~CBrushScope() { m_dc.SelectObject(m_pOld); }
    CBrushScope(const CBrushScope&) = delete;
    CBrushScope& operator=(const CBrushScope&) = delete;

private:
    CDC& m_dc;
    CBrush m_brush;
    CBrush* m_pOld;
};

} // namespace theme
