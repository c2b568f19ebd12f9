// On X the process sleeps on the connection itself. The library's own waiting sends itself wake-ups through
// the server, which may reach a window that is gone by then and end the program.
#include "platform/display/internal/SdlWaiter.h"
#include "platform/display/Display.h"

#include <SDL.h>
#include <SDL_syswm.h>

#include <algorithm>
#include <climits>
#include <cstdint>
#include <poll.h>
#include <sys/eventfd.h>
#include <unistd.h>

namespace splitframe {

namespace {

int TimeOut(DWORD nMilliseconds)
{
    return nMilliseconds == Display::INFINITE_WAIT
               ? -1
               : static_cast<int>(std::min<DWORD>(nMilliseconds, INT_MAX));
}

int ConnectionOf(SDL_Window* pWindow)
{
    SDL_SysWMinfo info;
    SDL_VERSION(&info.version);
    if (SDL_GetWindowWMInfo(pWindow, &info) == SDL_TRUE && info.subsystem == SDL_SYSWM_X11)
        return ConnectionNumber(info.info.x11.display);
    return -1;
}

} // namespace

SdlWaiter::SdlWaiter(SDL_Window* pWindow) : m_nConnection(ConnectionOf(pWindow))
{
    if (m_nConnection >= 0)
        m_nWakeUp = eventfd(0, EFD_CLOEXEC | EFD_NONBLOCK);
    else
        m_nWakeEvent = SDL_RegisterEvents(1);
}

SdlWaiter::~SdlWaiter()
{
    if (m_nWakeUp >= 0)
        close(m_nWakeUp);
}

void SdlWaiter::Wait(DWORD nMilliseconds)
{
    if (m_nConnection < 0) {
        SDL_WaitEventTimeout(nullptr, TimeOut(nMilliseconds));
        return;
    }
    pollfd descriptors[] = {{m_nConnection, POLLIN, 0}, {m_nWakeUp, POLLIN, 0}};
    poll(descriptors, m_nWakeUp >= 0 ? 2 : 1, TimeOut(nMilliseconds));
    std::uint64_t nCalls = 0;
    if (read(m_nWakeUp, &nCalls, sizeof nCalls) < 0)
        return; // nobody called
}

bool SdlWaiter::IsConnected() const
{
    pollfd connection = {m_nConnection, POLLRDHUP, 0}; // -1: none, and nothing is told of it
    poll(&connection, 1, 0);
    return (connection.revents & (POLLRDHUP | POLLHUP | POLLERR | POLLNVAL)) == 0;
}

void SdlWaiter::Wake()
{
    if (m_nConnection < 0) {
        SDL_Event event{};
        event.type = m_nWakeEvent;
        SDL_PushEvent(&event);
        return;
    }
    const std::uint64_t nCall = 1;
    if (write(m_nWakeUp, &nCall, sizeof nCall) < 0)
        return; // full: it is awake already
}

} // namespace splitframe
