// Device contexts on windows: for painting, and for drawing outside of it. Each draws in the window's client
// coordinates, clipped to what is visible of it. And one on the whole screen.
#pragma once

#include "platform/graphics/DC.h"
#include "platform/window/Wnd.h"

/// What BeginPaint tells.
struct PAINTSTRUCT
{
    BOOL fErase;  ///< the background has not been painted
    RECT rcPaint; ///< bounds of the part to paint, client coordinates
};

/// Painting in a WM_PAINT handler: clipped to the part that is marked, whose background has been erased. The
/// mark is taken back. Safe when the window dies while it is open.
class SPLITFRAME_PLATFORM_API CPaintDC : public CDC
{
    DECLARE_DYNAMIC(CPaintDC)
public:
    explicit CPaintDC(CWnd* pWnd);
    ~CPaintDC() override;

    PAINTSTRUCT m_ps{};

private:
    HWND m_hWnd;
};

/// Drawing at once on what is visible of a window, outside of painting.
class SPLITFRAME_PLATFORM_API CClientDC : public CDC
{
    DECLARE_DYNAMIC(CClientDC)
public:
    /// A null window gives a context that draws nothing.
    explicit CClientDC(CWnd* pWnd);
    ~CClientDC() override;

private:
    HWND m_hWnd;
};

/// As CClientDC: the client area is the whole window.
class SPLITFRAME_PLATFORM_API CWindowDC : public CClientDC
{
    DECLARE_DYNAMIC(CWindowDC)
public:
    using CClientDC::CClientDC;
    ~CWindowDC() override;
};

/// A context to draw at once on what is visible of a window or, with null, on the whole screen over all
/// windows, in screen coordinates. What is drawn on the screen with R2_XORPEN stays apart from what windows
/// paint: drawing it again removes it, whatever they painted meanwhile.
/// @return null for a handle without window; give it back by ReleaseDC
SPLITFRAME_PLATFORM_API HDC GetDC(HWND hWnd);
/// @return 0 when the context is none that GetDC gave, else 1
SPLITFRAME_PLATFORM_API int ReleaseDC(HWND hWnd, HDC hDC);
