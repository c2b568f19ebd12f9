// The headless display's pixels, input queue and clock.
#include "platform/display/Headless.h"
#include "platform/graphics/Png.h"
#include "platform/graphics/SystemColors.h"
#include "platform/window/Messages.h"

#include <chrono>
#include <utility>

namespace splitframe {

namespace {
std::unique_ptr<Surface> MakeSurface(const SIZE& size, double dScale)
{
    return std::make_unique<Surface>(size.cx, size.cy, dScale, GetSysColor(COLOR_3DFACE));
}
} // namespace

HeadlessDisplay::HeadlessDisplay(int cx, int cy, double dScale)
    : m_size{cx > 0 ? cx : 0, cy > 0 ? cy : 0}, m_dScale(dScale), m_pShown(MakeSurface(m_size, dScale))
{
}

void HeadlessDisplay::Queue(const InputEvent& event)
{
    m_input.push_back(event);
}

void HeadlessDisplay::MoveMouse(int x, int y)
{
    m_ptMouse = {x, y};
    InputEvent event;
    event.kind = InputEvent::Kind::MouseMove;
    event.pt = m_ptMouse;
    Queue(event);
}

void HeadlessDisplay::PressButton(UINT nButton)
{
    InputEvent event;
    event.kind = InputEvent::Kind::ButtonDown;
    event.pt = m_ptMouse;
    event.nButton = nButton;
    Queue(event);
}

void HeadlessDisplay::ReleaseButton(UINT nButton)
{
    InputEvent event;
    event.kind = InputEvent::Kind::ButtonUp;
    event.pt = m_ptMouse;
    event.nButton = nButton;
    Queue(event);
}

void HeadlessDisplay::Click(int x, int y, UINT nButton)
{
    MoveMouse(x, y);
    PressButton(nButton);
    ReleaseButton(nButton);
}

void HeadlessDisplay::TurnWheel(int nDelta)
{
    InputEvent event;
    event.kind = InputEvent::Kind::Wheel;
    event.pt = m_ptMouse;
    event.nDelta = nDelta;
    Queue(event);
}

void HeadlessDisplay::PressKey(UINT nKey, bool bRepeat)
{
    InputEvent event;
    event.kind = InputEvent::Kind::KeyDown;
    event.nKey = nKey;
    event.bRepeat = bRepeat;
    Queue(event);
}

void HeadlessDisplay::ReleaseKey(UINT nKey)
{
    InputEvent event;
    event.kind = InputEvent::Kind::KeyUp;
    event.nKey = nKey;
    Queue(event);
}

void HeadlessDisplay::TypeText(const wchar_t* pszText)
{
    InputEvent event;
    event.kind = InputEvent::Kind::Text;
    event.strText = pszText;
    Queue(event);
}

void HeadlessDisplay::Activate(bool bActive)
{
    InputEvent event;
    event.kind = bActive ? InputEvent::Kind::Activate : InputEvent::Kind::Deactivate;
    Queue(event);
}

void HeadlessDisplay::RequestClose()
{
    InputEvent event;
    event.kind = InputEvent::Kind::Close;
    Queue(event);
}

void HeadlessDisplay::Resize(int cx, int cy)
{
    m_size = {cx > 0 ? cx : 0, cy > 0 ? cy : 0};
    m_pShown = MakeSurface(m_size, m_dScale);
    InputEvent event;
    event.kind = InputEvent::Kind::Resize;
    event.size = m_size;
    Queue(event);
}

bool HeadlessDisplay::Repeat(std::string_view line)
{
    std::optional<TimedInput> input = ReadInput(line);
    if (input)
        m_toRepeat.push_back(std::move(*input));
    return input.has_value();
}

// A timer that is due earlier goes first.
bool HeadlessDisplay::RepeatNext(DWORD nMilliseconds)
{
    if (m_toRepeat.empty())
        return false;
    if (m_clock && nMilliseconds != INFINITE_WAIT && *m_clock + nMilliseconds < m_toRepeat.front().nTime) {
        AdvanceClock(nMilliseconds);
        return true;
    }
    const TimedInput next = std::move(m_toRepeat.front());
    m_toRepeat.pop_front();
    SetClock(next.nTime);
    if (next.event.kind == InputEvent::Kind::Resize)
        Resize(next.event.size.cx, next.event.size.cy);
    else
        Queue(next.event);
    return true;
}

void HeadlessDisplay::SetClock(ULONGLONG nMilliseconds)
{
    m_clock = nMilliseconds;
}

void HeadlessDisplay::AdvanceClock(ULONGLONG nMilliseconds)
{
    m_clock = Now() + nMilliseconds;
}

std::string HeadlessDisplay::WritePng(const std::filesystem::path& file) const
{
    return splitframe::WritePng(*m_pShown, file);
}

void HeadlessDisplay::SetMessageBoxAnswer(std::function<int(const MessageBoxRequest&)> answer)
{
    m_answer = std::move(answer);
}

void HeadlessDisplay::Present(const Surface& surface, const Region& damage)
{
    ++m_nPresents;
    m_lastPresented = damage;
    for (const RECT& rc : damage.Rects())
        m_pShown->Copy(surface, rc, {rc.left, rc.top});
}

bool HeadlessDisplay::TakeInput(InputEvent& event)
{
    if (m_input.empty())
        return false;
    event = std::move(m_input.front());
    m_input.pop_front();
    return true;
}

bool HeadlessDisplay::Wait(DWORD nMilliseconds)
{
    std::unique_lock lock(m_mutex);
    const auto bWoken = [this] { return m_bWoken; };
    bool bAnything = m_bWoken || !m_input.empty() || RepeatNext(nMilliseconds);
    if (!bAnything && !m_clock) {
        if (nMilliseconds == INFINITE_WAIT)
            m_wakeUp.wait(lock, bWoken);
        else
            m_wakeUp.wait_for(lock, std::chrono::milliseconds(nMilliseconds), bWoken);
        bAnything = true;
    }
    m_bWoken = false;
    return bAnything;
}

void HeadlessDisplay::Wake()
{
    {
        const std::lock_guard lock(m_mutex);
        m_bWoken = true;
    }
    m_wakeUp.notify_one();
}

ULONGLONG HeadlessDisplay::Now() const
{
    if (m_clock)
        return *m_clock;
    const auto time = std::chrono::steady_clock::now().time_since_epoch();
    return static_cast<ULONGLONG>(std::chrono::duration_cast<std::chrono::milliseconds>(time).count());
}

int HeadlessDisplay::ShowMessageBox(const MessageBoxRequest& request)
{
    m_boxes.push_back(request);
    if (m_answer)
        return m_answer(request);
    if (!m_toRepeat.empty())
        return 0;
    const UINT nButtons = request.nType & 0x0FU;
    return nButtons == MB_YESNO || nButtons == MB_YESNOCANCEL ? IDYES : IDOK;
}

HeadlessDisplay* CurrentHeadless()
{
    return dynamic_cast<HeadlessDisplay*>(&CurrentDisplay());
}

} // namespace splitframe
