// Device contexts on windows: for painting, and for drawing outside of it. Each draws in the window's client
// coordinates, clipped to what is visible of it.
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
