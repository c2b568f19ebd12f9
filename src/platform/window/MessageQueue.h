// Posted messages: filled by any thread, emptied by the user-interface thread, in order.
#pragma once

#include "platform/window/Messages.h"

#include <deque>

namespace splitframe {

class MessageQueue
{
public:
    MessageQueue();
    ~MessageQueue();
    MessageQueue(const MessageQueue&) = delete;
    MessageQueue& operator=(const MessageQueue&) = delete;

    /// More than that wait only when nobody takes them: a flood that would end in running out of memory.
    static constexpr std::size_t LONGEST = 1'000'000;

    /// To the queue in use; any thread, also one that still runs when the process ends.
    /// @return false when the queue is full, or gone
    static bool Post(const MSG& msg);
    /// User-interface thread. Messages to windows that are gone are dropped on the way.
    bool Take(MSG& msg, bool bRemove);

private:
    void Fetch();

    std::deque<MSG> m_incoming; // guarded by the mutex of the source file
    std::deque<MSG> m_ready;    // of the user-interface thread
};

MessageQueue& PostedMessages();

} // namespace splitframe
