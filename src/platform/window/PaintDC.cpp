// Contexts on windows. While one is open its window may die or change: what it draws then still goes to the
// screen's surface within the clip that held when it was opened, and the window manager paints over it.
#include "platform/window/PaintDC.h"
#include "platform/window/Painting.h"
#include "platform/window/Screen.h"
#include "platform/window/WindowTree.h"

IMPLEMENT_DYNAMIC(CPaintDC, CDC)
IMPLEMENT_DYNAMIC(CClientDC, CDC)
IMPLEMENT_DYNAMIC(CWindowDC, CClientDC)

using namespace splitframe;

CPaintDC::CPaintDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->GetSafeHwnd() : nullptr)
{
    const WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    if (!pRecord)
        return;
    const POINT pt = ScreenOrigin(*pRecord);
    Region part = TakePaintPart(m_hWnd);
    m_ps.rcPaint = Moved(part.Bounds(), -pt.x, -pt.y);
    AttachCanvas(CanvasFor(pt, std::move(part), false));
}

CPaintDC::~CPaintDC()
{
    DetachCanvas();
}

CClientDC::CClientDC(CWnd* pWnd) : m_hWnd(pWnd ? pWnd->GetSafeHwnd() : nullptr)
{
    const WindowRecord* pRecord = FindWindowRecord(m_hWnd);
    if (pRecord)
        AttachCanvas(CanvasFor(ScreenOrigin(*pRecord), VisibleRegion(*pRecord), true));
}

CClientDC::~CClientDC()
{
    DetachCanvas();
}

CWindowDC::~CWindowDC() = default;
