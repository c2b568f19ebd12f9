// Dispatch, with a short way past classes that do not handle a message.
// Most messages of a layout go to windows that handle none of them. The object's virtual table tells whether
// its class overrides the window procedure; when it does not and the map has no entry either, only the
// default processing is left, and no code outside the platform has run.
#include "platform/window/Dispatch.h"
#include "platform/window/CallScope.h"
#include "platform/window/Report.h"
#include "platform/window/Wnd.h"

#include <cstring>

namespace splitframe {

namespace {

const MessageFrame* g_pCurrent = nullptr;

class FrameScope
{
public:
    FrameScope(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam)
        : m_frame{{hWnd, nMessage, wParam, lParam, 0, {0, 0}}, g_pCurrent}
    {
        g_pCurrent = &m_frame;
    }
    ~FrameScope() { g_pCurrent = m_frame.pOuter; }
    FrameScope(const FrameScope&) = delete;
    FrameScope& operator=(const FrameScope&) = delete;

private:
    MessageFrame m_frame;
};

// Messages with default processing. The others need not be sent to a class that has no handler.
bool HasDefaultProcessing(UINT nMessage)
{
    switch (nMessage) {
    case WM_MOVE:
    case WM_SIZE:
    case WM_SHOWWINDOW:
    case WM_PAINT:
    case WM_CREATE:
    case WM_DESTROY:
    case WM_NCDESTROY:
    case WM_MOUSEMOVE:
    case WM_MOUSELEAVE:
        return false;
    default:
        return true;
    }
}

// The functions of a class at some places of its virtual table. A pointer to a virtual member function holds
// the place as an offset in bytes (plus one on some machines); true of every compiler that builds this for
// Linux. Were it not, an address would differ where it is equal, and a class without handler took the long
// way.
constexpr std::size_t WATCHED = 3;
struct Procedures
{
    const void* pfn[WATCHED];
};

template <class Function> std::size_t VirtualTableOffset(Function pfn)
{
    std::uintptr_t nEncoded = 0;
    std::memcpy(&nEncoded, &pfn, sizeof nEncoded);
    return nEncoded & ~std::uintptr_t{1};
}

Procedures ProceduresOf(const CWnd& wnd, const std::size_t (&offsets)[WATCHED])
{
    const char* pTable = nullptr;
    std::memcpy(&pTable, static_cast<const void*>(&wnd), sizeof pTable);
    Procedures procedures{};
    for (std::size_t n = 0; n < WATCHED; ++n)
        std::memcpy(&procedures.pfn[n], pTable + offsets[n], sizeof(void*));
    return procedures;
}

} // namespace

bool Dispatcher::OverridesProcedure(const CWnd& wnd)
{
    static const std::size_t offsets[WATCHED] = {VirtualTableOffset(&CWnd::WindowProc),
                                                 VirtualTableOffset(&CWnd::OnWndMsg),
                                                 VirtualTableOffset(&CWnd::DefWindowProc)};
    static const Procedures plain = [] {
        const CWnd wndPlain;
        return ProceduresOf(wndPlain, offsets);
    }();
    const Procedures own = ProceduresOf(wnd, offsets);
    return own.pfn[0] != plain.pfn[0] || own.pfn[1] != plain.pfn[1] || own.pfn[2] != plain.pfn[2];
}

bool Dispatcher::IsHandled(const CWnd& wnd, UINT nMessage)
{
    return FindMessageEntry(wnd.GetMessageMap(), nMessage) != nullptr || OverridesProcedure(wnd);
}

LRESULT Dispatcher::Send(WindowRecord& record, UINT nMessage, WPARAM wParam, LPARAM lParam,
                         LRESULT nOnException)
{
    CWnd* pWnd = record.pWnd;
    if (!pWnd)
        return 0;
    const bool bHostCode = nMessage == WM_COMMAND || IsHandled(*pWnd, nMessage);
    if (!bHostCode && !HasDefaultProcessing(nMessage))
        return 0;
    if (bHostCode)
        ++g_nHostCalls;
    const CCallScope scope;
    const FrameScope frame(record.Handle(), nMessage, wParam, lParam);
    try {
        return pWnd->WindowProc(nMessage, wParam, lParam);
    } catch (...) {
        ReportCurrentException(L"a message handler");
        return nOnException;
    }
}

void Dispatcher::Guard(const wchar_t* pszWhere, const std::function<void()>& call) noexcept
{
    ++g_nHostCalls;
    const CCallScope scope;
    try {
        call();
    } catch (...) {
        ReportCurrentException(pszWhere);
    }
}

const MessageFrame* Dispatcher::Current()
{
    return g_pCurrent;
}

void Dispatcher::CallBeginDestroy(CWnd& wnd) noexcept
{
    Guard(L"OnBeginDestroy", [&wnd] { wnd.OnBeginDestroy(); });
}

void Dispatcher::CallPostNcDestroy(CWnd& wnd) noexcept
{
    Guard(L"PostNcDestroy", [&wnd] { wnd.PostNcDestroy(); });
}

bool Dispatcher::CallPreCreate(CWnd& wnd, CREATESTRUCT& cs)
{
    return wnd.PreCreateWindow(cs) != FALSE;
}

} // namespace splitframe
