// Contexts on windows. While one is open its window may die or change: what it draws then still goes to the
// screen's surface within the clip that held when it was opened, and the window manager paints over it.
#include "platform/window/PaintDC.h"
#include "platform/window/Painting.h"
#include "platform/window/Screen.h"
#include "platform/window/WindowTree.h"

#include <algorithm>
#include <memory>
#include <vector>

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

namespace {

class ScreenDC : public CDC
{
public:
    ScreenDC() { AttachCanvas(CanvasForScreen(m_drawn)); }
    ~ScreenDC() override
    {
        DetachCanvas();
        NoteDrawnOnScreen(m_drawn);
    }
    ScreenDC(const ScreenDC&) = delete;
    ScreenDC& operator=(const ScreenDC&) = delete;

private:
    Region m_drawn;
};

// The contexts that GetDC has given and that are not back yet. User-interface thread only.
std::vector<std::unique_ptr<CDC>>& LentContexts()
{
    static std::vector<std::unique_ptr<CDC>> contexts;
    return contexts;
}

} // namespace

HDC GetDC(HWND hWnd)
{
    if (hWnd && !FindWindowRecord(hWnd))
        return nullptr;
    std::unique_ptr<CDC> pDC;
    if (hWnd)
        pDC = std::make_unique<CClientDC>(CWnd::FromHandle(hWnd));
    else
        pDC = std::make_unique<ScreenDC>();
    return LentContexts().emplace_back(std::move(pDC))->GetSafeHdc();
}

int ReleaseDC(HWND, HDC hDC)
{
    const CDC* pDC = CDC::FromHandle(hDC);
    return pDC && std::erase_if(LentContexts(), [&](const auto& pLent) { return pLent.get() == pDC; }) ? 1
                                                                                                       : 0;
}
