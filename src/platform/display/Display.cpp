// Which display is in use: chosen by name once, kept for the process, replaceable by tests.
#include "platform/display/Display.h"
#include "platform/display/Headless.h"
#include "platform/display/InputRecord.h"
#include "platform/display/Sdl.h"

#include <charconv>
#include <cstdio>
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

std::string_view Environment(const char* pszName)
{
    const char* pszValue = std::getenv(pszName);
    return pszValue ? pszValue : "";
}

CString Text(std::string_view text)
{
    return CString::FromUtf8(text);
}

// Device pixels per logical pixel; 0 for what is no such number.
double WantedScale()
{
    const std::string_view text = Environment("SPLITFRAME_SCALE");
    if (text.empty())
        return 1.0;
    double dScale = 0.0;
    const auto [pStop, error] = std::from_chars(text.data(), text.data() + text.size(), dScale);
    const bool bGood = error == std::errc() && pStop == text.data() + text.size() &&
                       dScale >= Surface::MIN_SCALE && dScale <= Surface::MAX_SCALE;
    return bGood ? dScale : 0.0;
}

std::unique_ptr<Display> MakeHeadless(double dScale)
{
    return std::make_unique<HeadlessDisplay>(Display::DEFAULT_WIDTH, Display::DEFAULT_HEIGHT, dScale);
}

// Nobody asked for a display by name: a window where there is a screen.
std::unique_ptr<Display> MakeFittingDisplay(double dScale)
{
    if (Environment("DISPLAY").empty() && Environment("WAYLAND_DISPLAY").empty())
        return MakeHeadless(dScale);
    CString strReason;
    if (std::unique_ptr<Display> pWindow = OpenSdlDisplay(dScale, strReason))
        return pWindow;
    std::fprintf(stderr, "no window on the screen, drawing in memory only: %s\n", strReason.ToUtf8().c_str());
    return MakeHeadless(dScale);
}

std::unique_ptr<Display> MakeDisplay(CString& strReason)
{
    const double dScale = WantedScale();
    if (dScale == 0.0) {
        strReason =
            L"SPLITFRAME_SCALE=" + Text(Environment("SPLITFRAME_SCALE")) + L": not a number from 0.25 to 8";
        return nullptr;
    }
    const std::string_view name = Environment("SPLITFRAME_DISPLAY");
    if (name.empty())
        return MakeFittingDisplay(dScale);
    if (name == "headless")
        return MakeHeadless(dScale);
    if (name != "sdl") {
        strReason = L"SPLITFRAME_DISPLAY=" + Text(name) + L": no such display; use sdl or headless";
        return nullptr;
    }
    std::unique_ptr<Display> pDisplay = OpenSdlDisplay(dScale, strReason);
    if (!pDisplay)
        strReason = L"SPLITFRAME_DISPLAY=sdl: " + strReason;
    return pDisplay;
}

} // namespace

Display::Display() = default;
Display::~Display() = default;

bool Display::NextInput(InputEvent& event)
{
    if (!TakeInput(event))
        return false;
    if (m_pRecorder)
        m_pRecorder->Note(event, Now());
    return true;
}

CString Display::RecordInput(const std::filesystem::path& file)
{
    auto pRecorder = std::make_unique<InputRecorder>(file, Now());
    InputEvent start; // a recording begins with the size that its points are meant for
    start.kind = InputEvent::Kind::Resize;
    start.size = Size();
    pRecorder->Note(start, Now());
    if (!pRecorder->IsGood())
        return Text(file.string()) + L": cannot be written";
    m_pRecorder = std::move(pRecorder);
    return {};
}

CString OpenDisplay()
{
    Current& current = TheCurrent();
    if (current.pDisplay && !current.bStandIn)
        return {};
    CString strReason;
    std::unique_ptr<Display> pDisplay = MakeDisplay(strReason);
    if (!pDisplay)
        return strReason;
    if (const std::string_view record = Environment("SPLITFRAME_RECORD"); !record.empty()) {
        strReason = pDisplay->RecordInput(record);
        if (!strReason.IsEmpty())
            return L"SPLITFRAME_RECORD=" + strReason;
    }
    SetDisplay(std::move(pDisplay));
    return {};
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
