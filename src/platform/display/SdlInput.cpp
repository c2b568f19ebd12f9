// Events to input. Order is kept; what changes nothing for the receiver is merged: moves in a row, sizes in a
// row.
#include "platform/display/internal/SdlInput.h"
#include "platform/display/internal/SdlKeys.h"
#include "platform/window/Messages.h"

#include <SDL.h>

#include <cmath>
#include <utility>

namespace splitframe {

namespace {

using Kind = InputEvent::Kind;

UINT ButtonOf(Uint8 nButton)
{
    switch (nButton) {
    case SDL_BUTTON_LEFT:
        return VK_LBUTTON;
    case SDL_BUTTON_MIDDLE:
        return VK_MBUTTON;
    case SDL_BUTTON_RIGHT:
        return VK_RBUTTON;
    default:
        return 0;
    }
}

wchar_t LowerLatin(wchar_t ch)
{
    return ch >= L'A' && ch <= L'Z' ? static_cast<wchar_t>(ch - L'A' + L'a') : ch;
}

} // namespace

POINT SdlInput::ToLogical(int x, int y) const
{
    // Logical pixel n covers the device pixels from round(n * scale) on.
    const auto one = [this](int n) { return static_cast<LONG>(std::ceil((n + 0.5) / m_dScale)) - 1; };
    return {one(x), one(y)};
}

void SdlInput::Push(const InputEvent& event)
{
    const bool bMerges =
        event.kind == Kind::MouseMove || event.kind == Kind::Resize || event.kind == Kind::Expose;
    if (bMerges && !m_queue.empty() && m_queue.back().kind == event.kind)
        m_queue.back() = event;
    else
        m_queue.push_back(event);
}

void SdlInput::Push(Kind kind)
{
    InputEvent event;
    event.kind = kind;
    Push(event);
}

void SdlInput::PushKey(Kind kind, UINT nKey, bool bRepeat)
{
    InputEvent event;
    event.kind = kind;
    event.nKey = nKey;
    event.bRepeat = bRepeat;
    Push(event);
}

bool SdlInput::Next(InputEvent& event)
{
    if (m_queue.empty())
        return false;
    event = std::move(m_queue.front());
    m_queue.pop_front();
    return true;
}

void SdlInput::Take(const SDL_Event& event)
{
    switch (event.type) {
    case SDL_WINDOWEVENT:
        return TakeWindow(event.window);
    case SDL_MOUSEMOTION:
    case SDL_MOUSEBUTTONDOWN:
    case SDL_MOUSEBUTTONUP:
    case SDL_MOUSEWHEEL:
        return TakeMouse(event);
    case SDL_KEYDOWN:
    case SDL_KEYUP:
        return TakeKey(event.key);
    case SDL_TEXTINPUT:
        return TakeText(event.text.text);
    default:
        return;
    }
}

void SdlInput::EndBatch()
{
    TellHeldKey();
    m_bJustActivated = false;
}

void SdlInput::TakeWindow(const SDL_WindowEvent& event)
{
    switch (event.event) {
    case SDL_WINDOWEVENT_EXPOSED:
        return Push(Kind::Expose);
    case SDL_WINDOWEVENT_MINIMIZED:
        return Push(Kind::Minimize);
    case SDL_WINDOWEVENT_RESTORED:
        return Push(Kind::Restore);
    case SDL_WINDOWEVENT_FOCUS_GAINED:
        m_bJustActivated = true;
        return Push(Kind::Activate);
    case SDL_WINDOWEVENT_FOCUS_LOST:
        return Leave();
    case SDL_WINDOWEVENT_CLOSE:
        return Push(Kind::Close);
    default:
        return;
    }
}

// The library lets go of all keys before it tells that the window is left. A stroke of Alt made up that way
// would open the menu bar, so the releases are taken back: being left releases all keys anyway.
void SdlInput::Leave()
{
    m_heldKey.nKey = 0;
    m_alt = Alt::Up;
    m_bControl = false;
    while (!m_queue.empty() && m_queue.back().kind == Kind::KeyUp)
        m_queue.pop_back();
    Push(Kind::Deactivate);
}

void SdlInput::TakeMouse(const SDL_Event& event)
{
    InputEvent input;
    switch (event.type) {
    case SDL_MOUSEMOTION:
        input.kind = Kind::MouseMove;
        input.pt = ToLogical(event.motion.x, event.motion.y);
        break;
    case SDL_MOUSEWHEEL:
        input.kind = Kind::Wheel;
        input.pt = ToLogical(event.wheel.mouseX, event.wheel.mouseY);
        input.nDelta = static_cast<int>(std::lround(event.wheel.preciseY * WHEEL_DELTA));
        if (input.nDelta == 0)
            return;
        break;
    default:
        input.kind = event.type == SDL_MOUSEBUTTONDOWN ? Kind::ButtonDown : Kind::ButtonUp;
        input.pt = ToLogical(event.button.x, event.button.y);
        input.nButton = ButtonOf(event.button.button);
        if (input.nButton == 0)
            return;
        break;
    }
    if (input.kind != Kind::MouseMove)
        SettleAlt();
    Push(input);
    if (input.kind != Kind::ButtonUp)
        return;
    // The release may have moved windows and ended a capture: who is under the mouse now is to know it, so
    // that the cursor is right and a line can be dragged again at once.
    input.kind = Kind::MouseMove;
    Push(input);
}

void SdlInput::TakeKey(const SDL_KeyboardEvent& event)
{
    const bool bDown = event.type == SDL_KEYDOWN;
    const UINT nKey = VirtualKey(event.keysym);
    if (nKey == VK_MENU)
        return TakeAlt(event);
    TellHeldKey();
    if (nKey == VK_CONTROL)
        m_bControl = bDown;
    if (bDown && nKey == 0)
        m_bTapCounts = false; // such as an accent that waits for its letter
    // Of two equal keys that are held the last one released counts.
    const int nOther = nKey == VK_SHIFT ? KMOD_SHIFT : nKey == VK_CONTROL ? KMOD_CTRL : 0;
    if (nKey == 0 || (!bDown && (event.keysym.mod & nOther) != 0))
        return;
    if (bDown && m_alt == Alt::Undecided && nKey != VK_SHIFT && nKey != VK_CONTROL) {
        m_heldKey.kind = Kind::KeyDown;
        m_heldKey.nKey = nKey;
        m_heldKey.bRepeat = event.repeat != 0;
        m_chHeld = PlainCharacter(event.keysym);
        return;
    }
    PushKey(bDown ? Kind::KeyDown : Kind::KeyUp, nKey, event.repeat != 0);
}

void SdlInput::TakeAlt(const SDL_KeyboardEvent& event)
{
    TellHeldKey();
    if (event.type == SDL_KEYDOWN) {
        if (m_alt == Alt::Up && (event.keysym.sym == SDLK_RALT || m_bJustActivated)) {
            m_alt = Alt::Undecided;
            m_bTapCounts = !m_bJustActivated;
        } else if (m_alt != Alt::Undecided) {
            m_alt = Alt::Down;
            PushKey(Kind::KeyDown, VK_MENU, event.repeat != 0);
        }
        return;
    }
    if ((event.keysym.mod & KMOD_ALT) != 0)
        return;
    if (m_alt == Alt::Undecided && m_bTapCounts)
        SettleAlt();
    if (m_alt == Alt::Down)
        PushKey(Kind::KeyUp, VK_MENU);
    m_alt = Alt::Up;
}

void SdlInput::TakeText(const char* pszText)
{
    const CString strText = CString::FromUtf8(pszText);
    if (m_heldKey.nKey != 0) {
        const bool bOwn = strText.GetLength() == 1 && LowerLatin(strText.GetAt(0)) == LowerLatin(m_chHeld);
        if (bOwn)
            return TellHeldKey();
        Push(std::exchange(m_heldKey, {})); // the key types another character with the one that is held
        m_bTapCounts = false;
    }
    if (m_alt == Alt::Down || m_bControl || strText.IsEmpty())
        return;
    InputEvent event;
    event.kind = Kind::Text;
    event.strText = strText;
    Push(event);
}

void SdlInput::SettleAlt()
{
    if (m_alt != Alt::Undecided)
        return;
    m_alt = Alt::Down;
    PushKey(Kind::KeyDown, VK_MENU);
}

// Nothing came of the key but what it does by itself: with Alt it is a system key.
void SdlInput::TellHeldKey()
{
    if (m_heldKey.nKey == 0)
        return;
    SettleAlt();
    Push(std::exchange(m_heldKey, {}));
}

} // namespace splitframe
