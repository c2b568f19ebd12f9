// The queue of posted messages, and PostMessage.
#include "platform/window/MessageQueue.h"
#include "platform/display/Display.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowRecord.h"

#include <mutex>

namespace splitframe {

namespace {

// These outlive the queue: other threads may post until the process is gone.
constinit std::mutex g_mutex;
constinit MessageQueue* g_pQueue = nullptr; // guarded by the mutex

} // namespace

MessageQueue::MessageQueue()
{
    const std::lock_guard lock(g_mutex);
    g_pQueue = this;
}

MessageQueue::~MessageQueue()
{
    const std::lock_guard lock(g_mutex);
    g_pQueue = nullptr;
}

bool MessageQueue::Post(const MSG& msg)
{
    PostedMessages(); // there is one from the first post on
    bool bWasEmpty = false;
    {
        const std::lock_guard lock(g_mutex);
        if (!g_pQueue || g_pQueue->m_incoming.size() >= LONGEST)
            return false;
        bWasEmpty = g_pQueue->m_incoming.empty();
        g_pQueue->m_incoming.push_back(msg);
    }
    if (bWasEmpty)
        WakeDisplay();
    return true;
}

void MessageQueue::Fetch()
{
    const std::lock_guard lock(g_mutex);
    if (m_ready.empty())
        m_ready.swap(m_incoming);
}

bool MessageQueue::Take(MSG& msg, bool bRemove)
{
    for (;;) {
        if (m_ready.empty())
            Fetch();
        if (m_ready.empty())
            return false;
        msg = m_ready.front();
        const bool bGone = msg.hwnd && !FindWindowRecord(msg.hwnd);
        if (bRemove || bGone)
            m_ready.pop_front();
        if (!bGone)
            return true;
    }
}

MessageQueue& PostedMessages()
{
    static MessageQueue queue; // one user-interface thread, one queue
    return queue;
}

} // namespace splitframe

BOOL PostMessage(HWND hWnd, UINT nMessage, WPARAM wParam, LPARAM lParam)
{
    if (!hWnd || (splitframe::IsUserInterfaceThread() && !IsWindow(hWnd)))
        return FALSE;
    return splitframe::MessageQueue::Post({hWnd, nMessage, wParam, lParam, 0, {0, 0}}) ? TRUE : FALSE;
}
