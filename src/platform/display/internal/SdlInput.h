// From the events of the window library to input: places in logical pixels, virtual keys, text. Knows events
// only, so that it can be tested without a window.
#pragma once

#include "platform/display/Display.h"

#include <deque>

union SDL_Event;
struct SDL_KeyboardEvent;
struct SDL_WindowEvent;

namespace splitframe {

class SdlInput
{
public:
    explicit SdlInput(double dScale) : m_dScale(dScale) {}

    /// Translates one event; those that do not concern the user's input do nothing. Sizes are told by the
    /// display.
    void Take(const SDL_Event& event);
    /// Call when no event waits: what depended on the next event is decided.
    void EndBatch();
    void Push(const InputEvent& event);
    void Push(InputEvent::Kind kind);
    /// @return false when there is none
    bool Next(InputEvent& event);
    bool IsEmpty() const { return m_queue.empty(); }
    /// Device pixels of the window to the logical pixel that covers them.
    POINT ToLogical(int x, int y) const;

private:
    // The right Alt key is on many keyboards the one that types further characters: it counts as Alt once it
    // is used like Alt. An Alt key that was held when the window became active may belong to another window.
    enum class Alt
    {
        Up,
        Undecided, // held, not told
        Down
    };

    void TakeWindow(const SDL_WindowEvent& event);
    void TakeMouse(const SDL_Event& event);
    void TakeKey(const SDL_KeyboardEvent& event);
    void TakeText(const char* pszText);
    void TakeAlt(const SDL_KeyboardEvent& event);
    void Leave();
    void PushKey(InputEvent::Kind kind, UINT nKey, bool bRepeat = false);
    void SettleAlt();
    void TellHeldKey();

    double m_dScale;
    std::deque<InputEvent> m_queue;
    Alt m_alt = Alt::Up;
    bool m_bTapCounts = false;     // while undecided: pressed and released alone it is a stroke of Alt
    bool m_bJustActivated = false; // keys told now were pressed elsewhere
    bool m_bControl = false;
    InputEvent m_heldKey; // waits for what it types; nKey 0: none
    wchar_t m_chHeld = 0; // what it types by itself
};

} // namespace splitframe
