// The device context: lines, shapes, fills and text on a surface, inside a clip. Knows surfaces, regions and
// drawing objects; knows no window. Coordinates are logical pixels from the context's origin; right and
// bottom edges lie outside. Any 32-bit coordinates are safe: all is cut to the clip before it is drawn.
// Drawing on a context without a surface does nothing.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Geometry.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/graphics/Brush.h"
#include "platform/graphics/Canvas.h"
#include "platform/graphics/Font.h"
#include "platform/graphics/Pen.h"
#include "platform/graphics/SystemColors.h"

#include <vector>

inline constexpr int R2_XORPEN = 7;
inline constexpr int R2_COPYPEN = 13;

inline constexpr int TRANSPARENT = 1;
inline constexpr int OPAQUE = 2;

inline constexpr UINT DT_TOP = 0x0000;
inline constexpr UINT DT_LEFT = 0x0000;
inline constexpr UINT DT_CENTER = 0x0001;
inline constexpr UINT DT_RIGHT = 0x0002;
inline constexpr UINT DT_VCENTER = 0x0004;
inline constexpr UINT DT_BOTTOM = 0x0008;
inline constexpr UINT DT_WORDBREAK = 0x0010;
inline constexpr UINT DT_SINGLELINE = 0x0020;
inline constexpr UINT DT_NOCLIP = 0x0100;
inline constexpr UINT DT_CALCRECT = 0x0400;
inline constexpr UINT DT_NOPREFIX = 0x0800;
inline constexpr UINT DT_END_ELLIPSIS = 0x8000;
inline constexpr UINT DT_HIDEPREFIX = 0x100000;

/// Measures of a font in logical pixels; all 0 when no font is installed.
struct TEXTMETRIC
{
    LONG tmHeight; // ascent plus descent: the distance of two lines
    LONG tmAscent;
    LONG tmDescent;
    LONG tmAveCharWidth;
    LONG tmWeight;
};

class SPLITFRAME_PLATFORM_API CDC : public CObject
{
    DECLARE_DYNAMIC(CDC)

public:
    /// A context without a surface: state can be set, drawing does nothing.
    CDC();
    ~CDC() override;
    CDC(const CDC&) = delete;
    CDC& operator=(const CDC&) = delete;

    /// For the window manager and for drawing off screen: starts drawing on the canvas, whose surface must
    /// live until DetachCanvas or the end of the context. Clip and viewport origin start afresh, saved states
    /// are dropped; pen, brush, font, colours and raster operation stay.
    void AttachCanvas(splitframe::Canvas canvas);
    /// Back to a context without a surface, for a window that died while its context was in use.
    void DetachCanvas();

    /// The context's handle; it names this context until it is destroyed.
    HDC GetSafeHdc() const;
    /// The context behind a handle, null for null or stale ones. Not owned by the caller.
    static CDC* FromHandle(HDC hDC);

    // --- state

    /// Selects a drawing object and returns the one selected before. Null, and nothing changes, for null or
    /// an empty object. A context starts with BLACK_PEN, WHITE_BRUSH and SYSTEM_FONT. The context does not
    /// own them.
    CPen* SelectObject(CPen* pPen);
    CBrush* SelectObject(CBrush* pBrush);
    CFont* SelectObject(CFont* pFont);
    HGDIOBJ SelectObject(HGDIOBJ hObject);
    /// Selects a stock object by its number; null when there is none.
    CGdiObject* SelectStockObject(int nIndex);

    /// Each setter returns the value before. Text starts black on white, background mode TRANSPARENT.
    COLORREF SetTextColor(COLORREF color);
    COLORREF GetTextColor() const;
    COLORREF SetBkColor(COLORREF color);
    COLORREF GetBkColor() const;
    /// OPAQUE fills the box of a text with the background colour first. Other values change nothing and
    /// return 0.
    int SetBkMode(int nMode);
    int GetBkMode() const;
    /// R2_COPYPEN or R2_XORPEN, for everything drawn with pen or selected brush (not FillRect and the like,
    /// not text). With R2_XORPEN whole pixels are drawn, nothing is smoothed: the same drawing twice restores
    /// every pixel. Other values change nothing and return 0.
    int SetROP2(int nMode);
    int GetROP2() const;

    /// Saves colours, objects, clip, origin and position; returns the number of the saved state, from 1.
    int SaveDC();
    /// Restores the state of that number and drops the later ones; -1 is the last. FALSE: no such state.
    BOOL RestoreDC(int nSaved);

    /// Moves the point (0, 0) to a point counted from the canvas's origin; returns the point before.
    CPoint SetViewportOrg(int x, int y);
    CPoint SetViewportOrg(POINT pt) { return SetViewportOrg(pt.x, pt.y); }
    CPoint GetViewportOrg() const;

    void IntersectClipRect(LPCRECT pRect);
    void ExcludeClipRect(LPCRECT pRect);
    /// The bounds of the clip, empty when nothing can be drawn.
    CRect GetClipBox() const;
    /// False when no pixel of the rectangle can be drawn: callers may skip it.
    bool RectVisible(LPCRECT pRect) const;

    // --- lines and shapes, with the selected pen and brush

    CPoint MoveTo(int x, int y); // returns the position before
    CPoint MoveTo(POINT pt) { return MoveTo(pt.x, pt.y); }
    CPoint GetCurrentPosition() const;
    /// A line from the current position, its first pixel included, its last excluded; moves the position. A
    /// wide axis-parallel line of n pixels starts n / 2 pixels before the line; others are smoothed.
    BOOL LineTo(int x, int y);
    BOOL LineTo(POINT pt) { return LineTo(pt.x, pt.y); }
    /// Lines from point to point; the current position is neither used nor moved. FALSE for fewer than 2
    /// points.
    BOOL Polyline(const POINT* pPoints, int nCount);
    /// A closed shape, filled by the even-odd rule, then outlined. FALSE for fewer than 2 points.
    BOOL Polygon(const POINT* pPoints, int nCount);
    BOOL Rectangle(LPCRECT pRect);
    BOOL Rectangle(int left, int top, int right, int bottom);
    BOOL Ellipse(LPCRECT pRect);
    /// @param ptCorner  width and height of the ellipse that rounds the corners
    BOOL RoundRect(LPCRECT pRect, POINT ptCorner);

    // --- areas

    void FillRect(LPCRECT pRect, CBrush* pBrush);
    void FillRect(LPCRECT pRect, HBRUSH hBrush);
    void FillSolidRect(LPCRECT pRect, COLORREF color);
    void FillSolidRect(int x, int y, int cx, int cy, COLORREF color);
    /// A frame one pixel wide just inside the rectangle.
    void FrameRect(LPCRECT pRect, CBrush* pBrush);
    /// 0xFFFFFFFF outside the clip.
    COLORREF GetPixel(int x, int y) const;
    void SetPixel(int x, int y, COLORREF color);
    /// Copies pixels of another context (or this one; they may overlap). FALSE without a surface on both
    /// sides.
    BOOL BitBlt(int x, int y, int cx, int cy, CDC* pSource, int xSource, int ySource);

    // --- text, with the selected font and text colour

    /// Draws text inside a rectangle, cut to it unless DT_NOCLIP. Without DT_SINGLELINE line breaks in the
    /// text count; DT_WORDBREAK breaks at words that do not fit (at characters if a word is too long),
    /// DT_END_ELLIPSIS shortens a line that does not fit; DT_VCENTER and DT_BOTTOM need DT_SINGLELINE. Unless
    /// DT_NOPREFIX, '&' underlines the next character and "&&" is an ampersand. DT_CALCRECT draws nothing and
    /// sets right and bottom to hold the text. Text beyond 65536 units (16384
    /// with DT_WORDBREAK) is cut.
    /// @return the height of the text in logical pixels
    int DrawText(const CString& strText, LPRECT pRect, UINT nFlags);
    /// Draws one line with its upper left corner at (x, y). '&' is a character.
    BOOL TextOut(int x, int y, const CString& strText);
    /// Size of one line; the height is that of the font, whatever the text.
    CSize GetTextExtent(const CString& strText) const;
    BOOL GetTextMetrics(TEXTMETRIC* pMetrics) const;

private:
    struct State
    {
        HPEN hPen;
        HBRUSH hBrush;
        HFONT hFont;
        COLORREF colText = 0;
        COLORREF colBack = 0xFFFFFF;
        int nBkMode = TRANSPARENT;
        int nRop = R2_COPYPEN;
        POINT ptPosition{};
        POINT ptViewport{};
        splitframe::Region clip{}; // surface coordinates, never more than the canvas's
    };
    class Painter;
    friend class Painter;

    splitframe::Canvas m_canvas;
    State m_state;
    std::vector<State> m_saved;
    mutable HDC m_hDC = nullptr;
};

/// As CDC::FillRect on the context behind the handle. @return 0 for a stale handle, else 1
SPLITFRAME_PLATFORM_API int FillRect(HDC hDC, LPCRECT pRect, HBRUSH hBrush);
