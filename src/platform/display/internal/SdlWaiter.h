// Sleeping until a window has news, another thread calls, or time is up. Uses no processor time meanwhile.
#pragma once

#include "platform/base/Types.h"

struct SDL_Window;

namespace splitframe {

class SdlWaiter
{
public:
    explicit SdlWaiter(SDL_Window* pWindow);
    ~SdlWaiter();
    SdlWaiter(const SdlWaiter&) = delete;
    SdlWaiter& operator=(const SdlWaiter&) = delete;

    /// All events that came before must have been taken. @param nMilliseconds Display::INFINITE_WAIT: for
    /// ever
    void Wait(DWORD nMilliseconds);
    /// Any thread.
    void Wake();
    /// Whether the server can still answer.
    bool IsConnected() const;

private:
    int m_nConnection = -1; // descriptor of the connection to the X server; -1: another kind of screen
    int m_nWakeUp = -1;     // descriptor that other threads write to
    unsigned m_nWakeEvent = 0;
};

} // namespace splitframe
