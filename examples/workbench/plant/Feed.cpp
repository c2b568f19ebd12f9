// The feed's thread and its mailbox.
#include "plant/Feed.h"

#include <platform/window/WindowManager.h>
#include <unit/UnitMessages.h>

#include <algorithm>

void CPlantFeed::Start(int nBacklog, bool bGoOn)
{
    if (m_thread.joinable())
        return;
    {
        const std::lock_guard lock(m_mutex);
        m_bStop = false;
        m_bBacklogDone = false;
    }
    m_thread = std::thread([this, nBacklog, bGoOn] { Run(nBacklog, bGoOn); });
}

void CPlantFeed::Stop()
{
    {
        const std::lock_guard lock(m_mutex);
        m_bStop = true;
    }
    m_wake.notify_all();
    if (m_thread.joinable())
        m_thread.join();
}

void CPlantFeed::SetPaused(bool bPaused)
{
    const std::lock_guard lock(m_mutex);
    m_bPaused = bPaused;
}

bool CPlantFeed::IsPaused() const
{
    const std::lock_guard lock(m_mutex);
    return m_bPaused;
}

void CPlantFeed::Subscribe(HWND hWnd)
{
    if (!hWnd)
        return;
    const std::lock_guard lock(m_mutex);
    if (std::find(m_arrSubscriber.begin(), m_arrSubscriber.end(), hWnd) == m_arrSubscriber.end())
        m_arrSubscriber.push_back(hWnd);
    if (m_nEnd > 0)
        ::PostMessage(hWnd, UNIT_MSG_ENGINE_DATA, static_cast<WPARAM>(m_nEnd - 1));
}

void CPlantFeed::Unsubscribe(HWND hWnd)
{
    const std::lock_guard lock(m_mutex);
    std::erase(m_arrSubscriber, hWnd);
}

void CPlantFeed::TakeNew(std::uint64_t& nNext, std::vector<PlantSample>& arrSample) const
{
    const std::lock_guard lock(m_mutex);
    const std::uint64_t nFirst = m_nEnd - m_arrSample.size();
    for (std::uint64_t n = std::max(nNext, nFirst); n < m_nEnd; ++n)
        arrSample.push_back(m_arrSample[static_cast<std::size_t>(n - nFirst)]);
    nNext = m_nEnd;
}

void CPlantFeed::WaitForBacklog()
{
    std::unique_lock lock(m_mutex);
    m_wake.wait(lock, [this] { return m_bBacklogDone || m_bStop; });
}

void CPlantFeed::Run(int nBacklog, bool bGoOn)
{
    CSimulation simulation; // belongs to this thread alone
    for (int n = 0; n < nBacklog; ++n)
        Put(simulation.Step(STEP));
    TellSubscribers();
    {
        const std::lock_guard lock(m_mutex);
        m_bBacklogDone = true;
    }
    m_wake.notify_all();
    while (bGoOn && WaitForNextStep()) {
        if (IsPaused())
            continue;
        Put(simulation.Step(STEP));
        TellSubscribers();
    }
}

void CPlantFeed::Put(const PlantSample& sample)
{
    const std::lock_guard lock(m_mutex);
    m_arrSample.push_back(sample);
    if (m_arrSample.size() > CAPACITY)
        m_arrSample.pop_front();
    ++m_nEnd;
}

/// Posts under the lock: that is what makes Unsubscribe's promise hold. Posting only queues, so the lock is
/// short.
void CPlantFeed::TellSubscribers()
{
    const std::lock_guard lock(m_mutex);
    if (m_nEnd == 0)
        return;
    for (HWND hWnd : m_arrSubscriber)
        ::PostMessage(hWnd, UNIT_MSG_ENGINE_DATA, static_cast<WPARAM>(m_nEnd - 1));
}

/// Sleeps until the next sample is due. @return false when the feed is to stop
bool CPlantFeed::WaitForNextStep()
{
    std::unique_lock lock(m_mutex);
    m_wake.wait_for(lock, std::chrono::duration<double>(STEP), [this] { return m_bStop; });
    return !m_bStop;
}
