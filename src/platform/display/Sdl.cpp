// The window, its pixels, cursors and title.
// Input goes through SdlInput, sleeping through SdlWaiter. The window holds device pixels; the picture that
// is presented covers it, its last logical pixel may reach over the edge.
#include "platform/display/Sdl.h"
#include "platform/display/internal/SdlInput.h"
#include "platform/display/internal/SdlWaiter.h"
#include "platform/graphics/RegionWalk.h"
#include "platform/window/Messages.h"

#define SDL_MAIN_HANDLED
#include <SDL.h>

#include <algorithm>
#include <cmath>
#include <cstdio>
#include <cstdlib>
#include <cstring>
#include <map>
#include <string_view>
#include <vector>

namespace splitframe {

namespace {

// After a key: how long text of an input method may follow, and how often it is looked for. Milliseconds.
constexpr ULONGLONG COMPOSING = 2000;
constexpr DWORD COMPOSING_STEP = 20;

struct WindowDeleter
{
    void operator()(SDL_Window* pWindow) const
    {
        // What the server still sends goes to a window that is there.
        SDL_HideWindow(pWindow);
        SDL_PumpEvents();
        SDL_DestroyWindow(pWindow);
    }
};
struct CursorDeleter
{
    void operator()(SDL_Cursor* pCursor) const { SDL_FreeCursor(pCursor); }
};
using WindowPtr = std::unique_ptr<SDL_Window, WindowDeleter>;
using CursorPtr = std::unique_ptr<SDL_Cursor, CursorDeleter>;

std::string_view Environment(const char* pszName)
{
    const char* pszValue = std::getenv(pszName);
    return pszValue ? pszValue : "";
}

// Owns the library's video part; what needs it goes before it.
class SdlVideo
{
public:
    explicit SdlVideo(CString& strReason);
    ~SdlVideo()
    {
        if (m_bOpen)
            SDL_Quit();
    }
    SdlVideo(const SdlVideo&) = delete;
    SdlVideo& operator=(const SdlVideo&) = delete;
    bool IsOpen() const { return m_bOpen; }

private:
    static void SetHints(const char* pszDrivers);

    bool m_bOpen = false;
};

// The library is made for games; this is a desktop program.
void SdlVideo::SetHints(const char* pszDrivers)
{
    SDL_SetHint(SDL_HINT_VIDEODRIVER, pszDrivers);
    SDL_SetHint(SDL_HINT_NO_SIGNAL_HANDLERS, "1");
    SDL_SetHint(SDL_HINT_QUIT_ON_LAST_WINDOW_CLOSE, "0");
    SDL_SetHint(SDL_HINT_VIDEO_ALLOW_SCREENSAVER, "1");
    SDL_SetHint(SDL_HINT_VIDEO_X11_NET_WM_BYPASS_COMPOSITOR, "0");
    SDL_SetHint(SDL_HINT_MOUSE_FOCUS_CLICKTHROUGH, "1");
    SDL_SetHint(SDL_HINT_IME_SHOW_UI, "1");
}

SdlVideo::SdlVideo(CString& strReason)
{
    // Only kinds of screens that are there: left alone, the library finds one that nobody sees.
    const bool bX = !Environment("DISPLAY").empty();
    const bool bWayland = !Environment("WAYLAND_DISPLAY").empty();
    if (!bX && !bWayland) {
        strReason = L"there is no screen: neither DISPLAY nor WAYLAND_DISPLAY is set";
        return;
    }
    SetHints(bX && bWayland ? "x11,wayland" : bX ? "x11" : "wayland");
    SDL_SetMainReady();
    m_bOpen = SDL_InitSubSystem(SDL_INIT_VIDEO) == 0;
    const char* pszDriver = m_bOpen ? SDL_GetCurrentVideoDriver() : nullptr;
    if (!pszDriver) {
        strReason = CString(L"no screen can be opened: ") + CString(SDL_GetError());
        return;
    }
    const std::string_view driver = pszDriver;
    if (driver != "x11" && driver != "wayland") {
        strReason = CString(L"no window can be seen with the video driver ") + CString(pszDriver);
        m_bOpen = false;
        SDL_Quit();
        return;
    }
    // On X, pixels that go through a texture cost 8 ms for any change, however small.
    if (driver == "x11")
        SDL_SetHint(SDL_HINT_FRAMEBUFFER_ACCELERATION, "0");
    SDL_EventState(SDL_DROPFILE, SDL_DISABLE);
    SDL_EventState(SDL_DROPTEXT, SDL_DISABLE);
}

// Input methods send what they compose over a connection of their own, which does not end the sleep.
bool HasInputMethodOnBus()
{
    for (const char* pszName : {"SDL_IM_MODULE", "XMODIFIERS"}) {
        const std::string_view value = Environment(pszName);
        if (value.find("ibus") != std::string_view::npos || value.find("fcitx") != std::string_view::npos)
            return true;
    }
    return false;
}

class SdlDisplay : public Display
{
public:
    /// Both are taken over; the window is hidden.
    SdlDisplay(std::unique_ptr<SdlVideo> pVideo, WindowPtr pWindow, double dScale);
    ~SdlDisplay() override;

    SIZE Size() const override { return m_size; }
    double Scale() const override { return m_dScale; }
    void Present(const Surface& surface, const Region& damage) override;
    void Resize(int cx, int cy) override;
    bool Wait(DWORD nMilliseconds) override;
    void Wake() override { m_waiter.Wake(); }
    ULONGLONG Now() const override { return SDL_GetTicks64(); }
    UINT DoubleClickTime() const override;
    void ShowCursor(UINT nCursor) override;
    void SetTitle(const CString& strTitle) override;
    int ShowMessageBox(const MessageBoxRequest& request) override;

protected:
    bool TakeInput(InputEvent& event) override;

private:
    void PumpEvents();
    void TakeWindowEvent(const SDL_WindowEvent& event);
    void FollowSize(int cxDevice, int cyDevice);
    void TellLeave();
    std::vector<SDL_Rect> Copy(const Surface& surface, const Region& damage, SDL_Surface& target) const;

    std::unique_ptr<SdlVideo> m_pVideo; // goes last
    WindowPtr m_pWindow;
    double m_dScale;
    SIZE m_size{};
    SdlInput m_input;
    SdlWaiter m_waiter;
    bool m_bShown = false;
    bool m_bMinimized = false;
    const bool m_bComposes = HasInputMethodOnBus();
    ULONGLONG m_nLastKey = 0; // time of the last key
    bool m_bAllLost = true;   // the window's surface is new: all of it is to be presented
    UINT m_nCursor = 0xFFFFFFFF;
    std::map<UINT, CursorPtr> m_cursors; // made at first use
};

// A program whose server is gone is ended by the connection's library with exit(), which comes here. Answers
// from the server would be waited for without end, so that what it had is left alone.
SdlDisplay::~SdlDisplay()
{
    if (m_waiter.IsConnected())
        return;
    for (auto& [nCursor, pCursor] : m_cursors)
        static_cast<void>(pCursor.release());
    static_cast<void>(m_pWindow.release());
    static_cast<void>(m_pVideo.release());
}

SdlDisplay::SdlDisplay(std::unique_ptr<SdlVideo> pVideo, WindowPtr pWindow, double dScale)
    : m_pVideo(std::move(pVideo)), m_pWindow(std::move(pWindow)), m_dScale(dScale), m_input(dScale),
      m_waiter(m_pWindow.get())
{
    int cx = 0;
    int cy = 0;
    SDL_GetWindowSize(m_pWindow.get(), &cx, &cy);
    FollowSize(cx, cy);
}

int DeviceLength(int n, double dScale)
{
    return static_cast<int>(std::clamp(std::floor(n * dScale + 0.5), 1.0, double{Surface::kMaxSide}));
}

// --- size

// The fewest logical pixels that cover the window.
void SdlDisplay::FollowSize(int cxDevice, int cyDevice)
{
    const auto cover = [this](int n) {
        return std::max(1, static_cast<int>(std::ceil((n - 0.5) / m_dScale)));
    };
    m_size = {cover(cxDevice), cover(cyDevice)};
    m_bAllLost = true;
}

void SdlDisplay::Resize(int cx, int cy)
{
    SDL_SetWindowSize(m_pWindow.get(), DeviceLength(cx, m_dScale), DeviceLength(cy, m_dScale));
}

// --- pixels

// Copies the device pixels of the damage. What leaves the window must never reach the server, which ends the
// program for it.
std::vector<SDL_Rect> SdlDisplay::Copy(const Surface& surface, const Region& damage,
                                       SDL_Surface& target) const
{
    std::vector<SDL_Rect> rects;
    const RECT rcWindow{0, 0, std::min(surface.DeviceWidth(), target.w),
                        std::min(surface.DeviceHeight(), target.h)};
    for (const RECT& rcDamage : damage.Rects()) {
        const RECT rc = SharedRect(surface.ToDevice(rcDamage), rcWindow);
        if (!HasArea(rc))
            continue;
        const SDL_Rect part{rc.left, rc.top, rc.right - rc.left, rc.bottom - rc.top};
        auto* pTo = static_cast<unsigned char*>(target.pixels) +
                    static_cast<std::ptrdiff_t>(part.y) * target.pitch +
                    static_cast<std::ptrdiff_t>(part.x) * target.format->BytesPerPixel;
        SDL_ConvertPixels(part.w, part.h, SDL_PIXELFORMAT_RGB888, surface.Row(part.y) + part.x,
                          surface.DeviceWidth() * static_cast<int>(sizeof(std::uint32_t)),
                          target.format->format, pTo, target.pitch);
        rects.push_back(part);
    }
    return rects;
}

void SdlDisplay::Present(const Surface& surface, const Region& damage)
{
    if (m_bMinimized)
        return; // shown as a whole when it is restored
    if (!m_bShown) {
        SDL_ShowWindow(m_pWindow.get());
        m_bShown = true;
        m_bAllLost = true;
    }
    SDL_Surface* pTarget = SDL_GetWindowSurface(m_pWindow.get()); // another one after each change of the size
    if (!pTarget)
        return;
    const std::vector<SDL_Rect> rects =
        Copy(surface, m_bAllLost ? Region(surface.Bounds()) : damage, *pTarget);
    if (!rects.empty() &&
        SDL_UpdateWindowSurfaceRects(m_pWindow.get(), rects.data(), static_cast<int>(rects.size())) == 0)
        m_bAllLost = false;
}

// --- input

void SdlDisplay::PumpEvents()
{
    SDL_Event event;
    while (SDL_PollEvent(&event)) {
        // The library asks to quit when its compositor is gone, and only then. On X the connection's own
        // library ends the program at this point.
        if (event.type == SDL_QUIT)
            std::exit(EXIT_FAILURE);
        if (event.type == SDL_WINDOWEVENT)
            TakeWindowEvent(event.window);
        if (event.type == SDL_KEYDOWN || event.type == SDL_KEYUP)
            m_nLastKey = Now();
        m_input.Take(event);
    }
    m_input.EndBatch();
}

void SdlDisplay::TakeWindowEvent(const SDL_WindowEvent& event)
{
    switch (event.event) {
    case SDL_WINDOWEVENT_SIZE_CHANGED: {
        FollowSize(event.data1, event.data2);
        InputEvent input;
        input.kind = InputEvent::Kind::Resize;
        input.size = m_size;
        return m_input.Push(input);
    }
    case SDL_WINDOWEVENT_MINIMIZED:
        m_bMinimized = true;
        return;
    case SDL_WINDOWEVENT_RESTORED:
    case SDL_WINDOWEVENT_MAXIMIZED:
        m_bMinimized = false;
        return;
    case SDL_WINDOWEVENT_LEAVE:
        return TellLeave();
    default:
        return;
    }
}

// The last move that is heard of ends at the window's edge: what follows the mouse would think it is still
// there.
void SdlDisplay::TellLeave()
{
    int x = 0, y = 0, xWindow = 0, yWindow = 0;
    if (SDL_GetGlobalMouseState(&x, &y) != 0)
        return; // a button is held: moves are still told
    SDL_GetWindowPosition(m_pWindow.get(), &xWindow, &yWindow);
    InputEvent input;
    input.pt = m_input.ToLogical(x - xWindow, y - yWindow);
    if (input.pt.x >= 0 && input.pt.y >= 0 && input.pt.x < m_size.cx && input.pt.y < m_size.cy)
        input.pt = {-1, -1}; // over another window that covers this one
    m_input.Push(input);
}

bool SdlDisplay::TakeInput(InputEvent& event)
{
    if (m_input.IsEmpty())
        PumpEvents();
    return m_input.Next(event);
}

bool SdlDisplay::Wait(DWORD nMilliseconds)
{
    // Calls to the server since the last look may have read events that would not wake the sleep.
    PumpEvents();
    if (m_bComposes && Now() - m_nLastKey < COMPOSING)
        nMilliseconds = std::min(nMilliseconds, COMPOSING_STEP);
    if (m_input.IsEmpty())
        m_waiter.Wait(nMilliseconds);
    return true;
}

UINT SdlDisplay::DoubleClickTime() const
{
    const char* pszTime = SDL_GetHint(SDL_HINT_MOUSE_DOUBLE_CLICK_TIME);
    const int nTime = pszTime ? std::atoi(pszTime) : 0;
    return nTime > 0 ? static_cast<UINT>(nTime) : 500;
}

// --- cursor, title, boxes

SDL_SystemCursor SystemCursor(UINT nCursor)
{
    switch (nCursor) {
    case 32513:
        return SDL_SYSTEM_CURSOR_IBEAM;
    case 32514:
        return SDL_SYSTEM_CURSOR_WAIT;
    case 32644:
        return SDL_SYSTEM_CURSOR_SIZEWE;
    case 32645:
        return SDL_SYSTEM_CURSOR_SIZENS;
    case 32649:
        return SDL_SYSTEM_CURSOR_HAND;
    default:
        return SDL_SYSTEM_CURSOR_ARROW;
    }
}

void SdlDisplay::ShowCursor(UINT nCursor)
{
    if (nCursor == m_nCursor)
        return;
    m_nCursor = nCursor;
    SDL_ShowCursor(nCursor == 0 ? SDL_DISABLE : SDL_ENABLE);
    if (nCursor == 0)
        return;
    CursorPtr& pCursor = m_cursors[nCursor];
    if (!pCursor)
        pCursor.reset(SDL_CreateSystemCursor(SystemCursor(nCursor)));
    if (pCursor)
        SDL_SetCursor(pCursor.get());
}

void SdlDisplay::SetTitle(const CString& strTitle)
{
    SDL_SetWindowTitle(m_pWindow.get(), strTitle.ToUtf8().c_str());
}

// Boxes are drawn in the window. As long as there is none the text is told, and the careful answer taken.
int SdlDisplay::ShowMessageBox(const MessageBoxRequest& request)
{
    if (m_bShown)
        return 0;
    std::fprintf(stderr, "%s\n", request.strText.ToUtf8().c_str());
    const UINT nButtons = request.nType & 0x0FU;
    return nButtons == MB_OK ? IDOK : nButtons == MB_YESNO ? IDNO : IDCANCEL;
}

SIZE FirstSize(double dScale)
{
    SIZE size{DeviceLength(Display::DEFAULT_WIDTH, dScale), DeviceLength(Display::DEFAULT_HEIGHT, dScale)};
    SDL_Rect room;
    if (SDL_GetDisplayUsableBounds(0, &room) == 0 && room.w > 0 && room.h > 0)
        size = {std::min<LONG>(size.cx, room.w), std::min<LONG>(size.cy, room.h)};
    return size;
}

} // namespace

std::unique_ptr<Display> OpenSdlDisplay(double dScale, CString& strReason)
{
    auto pVideo = std::make_unique<SdlVideo>(strReason);
    if (!pVideo->IsOpen())
        return nullptr;
    const SIZE size = FirstSize(dScale);
    WindowPtr pWindow(SDL_CreateWindow("", SDL_WINDOWPOS_UNDEFINED, SDL_WINDOWPOS_UNDEFINED, size.cx, size.cy,
                                       SDL_WINDOW_HIDDEN | SDL_WINDOW_RESIZABLE));
    if (!pWindow || !SDL_GetWindowSurface(pWindow.get())) {
        strReason = CString(L"no window can be made on the screen: ") + CString(SDL_GetError());
        pWindow.reset();
        return nullptr;
    }
    return std::make_unique<SdlDisplay>(std::move(pVideo), std::move(pWindow), dScale);
}

} // namespace splitframe
