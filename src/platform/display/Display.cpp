// Which display is in use: chosen by name once, kept for the process, replaceable by tests.
#include "platform/display/Display.h"
#include "platform/display/Headless.h"

#include <cstdlib>
#include <mutex>
#include <string_view>
#include <utility>

namespace splitframe {

namespace {

// The process has one display. The lock lets other threads wake it while it may be replaced.
struct Current
{
    std::mutex mutex;
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
    const std::lock_guard lock(current.mutex);
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
    Current& current = TheCurrent();
    const std::lock_guard lock(current.mutex);
    if (current.pDisplay)
        current.pDisplay->Wake();
}

} // namespace splitframe
