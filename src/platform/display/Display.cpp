// Which display is in use: chosen by name once, kept for the process, replaceable by tests.
#include "platform/display/Display.h"
#include "platform/display/Headless.h"

#include <cstdlib>
#include <mutex>
#include <string_view>
#include <utility>

namespace splitframe {

namespace {

// For other threads, which may wake the display while it is replaced and until the process is gone: so these
// outlive it.
constinit std::mutex g_mutex;
constinit Display* g_pWakened = nullptr; // the display in use; guarded by the mutex

// The process has one display.
struct Current
{
    ~Current() { SetDisplay(nullptr); }

    std::unique_ptr<Display> pDisplay;
    bool bStandIn = false;
    unsigned long nSerial = 0;
};

Current& TheCurrent()
{
    static Current current;
    return current;
}

std::unique_ptr<Display> MakeDisplay(CString& strReason)
{
    const char* pszName = std::getenv("SPLITFRAME_DISPLAY");
    const std::string_view name = pszName ? pszName : "";
    if (name.empty() || name == "headless")
        return std::make_unique<HeadlessDisplay>();
    if (name == "sdl")
        strReason =
            L"SPLITFRAME_DISPLAY=sdl: this build has no window display; use SPLITFRAME_DISPLAY=headless";
    else
        strReason = CString(L"SPLITFRAME_DISPLAY=") + CString(pszName) + L": no such display; use headless";
    return nullptr;
}

} // namespace

CString OpenDisplay()
{
    Current& current = TheCurrent();
    if (current.pDisplay && !current.bStandIn)
        return {};
    CString strReason;
    std::unique_ptr<Display> pDisplay = MakeDisplay(strReason);
    if (pDisplay)
        SetDisplay(std::move(pDisplay));
    return strReason;
}

Display& CurrentDisplay()
{
    Current& current = TheCurrent();
    if (!current.pDisplay && !OpenDisplay().IsEmpty()) {
        SetDisplay(std::make_unique<HeadlessDisplay>());
        current.bStandIn = true;
    }
    return *current.pDisplay;
}

bool IsDisplayUsable()
{
    CurrentDisplay();
    return !TheCurrent().bStandIn;
}

std::unique_ptr<Display> SetDisplay(std::unique_ptr<Display> pDisplay)
{
    Current& current = TheCurrent();
    const std::lock_guard lock(g_mutex);
    g_pWakened = pDisplay.get();
    current.bStandIn = false;
    ++current.nSerial;
    return std::exchange(current.pDisplay, std::move(pDisplay));
}

unsigned long DisplaySerial()
{
    return TheCurrent().nSerial;
}

void WakeDisplay()
{
    const std::lock_guard lock(g_mutex);
    if (g_pWakened)
        g_pWakened->Wake();
}

} // namespace splitframe
