// The queue of posted messages, and PostMessage.
#include "platform/window/MessageQueue.h"
#include "platform/display/Display.h"
#include "platform/window/WindowManager.h"
#include "platform/window/WindowRecord.h"

namespace splitframe {

bool MessageQueue::Post(const MSG& msg)
{
    bool bWasEmpty = false;
    {
        const std::lock_guard lock(m_mutex);
        if (m_incoming.size() >= LONGEST)
            return false;
        bWasEmpty = m_incoming.empty();
        m_incoming.push_back(msg);
    }
    if (bWasEmpty)
        WakeDisplay();
    return true;
}

void MessageQueue::Fetch()
{
    const std::lock_guard lock(m_mutex);
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
    return splitframe::PostedMessages().Post({hWnd, nMessage, wParam, lParam, 0, {0, 0}}) ? TRUE : FALSE;
}
