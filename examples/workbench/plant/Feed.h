// The data feed: a worker thread that measures the plant and tells windows that there is something new.
//
// What a second thread may do with windows is one thing only: post messages. So the thread puts the samples
// into a mailbox under a lock and posts UNIT_MSG_ENGINE_DATA to every subscriber. The message carries no
// samples, only the number of the newest one: a message that is dropped because its window closed loses
// nothing and leaks nothing.
#pragma once

#include "plant/Simulation.h"

#include <platform/base/Types.h>

#include <chrono>
#include <condition_variable>
#include <cstdint>
#include <deque>
#include <mutex>
#include <thread>
#include <vector>

class CPlantFeed
{
public:
    /// Seconds between two samples.
    static constexpr double STEP = 0.5;
    /// Samples that the mailbox keeps; older ones are dropped.
    static constexpr std::size_t CAPACITY = 7200;

    CPlantFeed() = default;
    ~CPlantFeed() { Stop(); }
    CPlantFeed(const CPlantFeed&) = delete;
    CPlantFeed& operator=(const CPlantFeed&) = delete;

    /// Starts the thread. It measures nBacklog samples at once, as if it had been running for a while, and
    /// then one every STEP seconds, until Stop(). Without bGoOn it ends after the backlog. A feed that runs
    /// already is left alone.
    void Start(int nBacklog, bool bGoOn);
    /// Ends the thread and waits for it; the mailbox keeps its samples.
    void Stop();

    void SetPaused(bool bPaused);
    bool IsPaused() const;

    /// From now on the window gets UNIT_MSG_ENGINE_DATA after each new sample, and once right away if there
    /// are samples. Null is ignored.
    void Subscribe(HWND hWnd);
    /// No message is posted to the window after this call.
    void Unsubscribe(HWND hWnd);

    /// Appends the samples from number nNext on and moves nNext behind the last one. Any thread.
    void TakeNew(std::uint64_t& nNext, std::vector<PlantSample>& arrSample) const;

    /// Waits until the backlog is complete.
    void WaitForBacklog();

private:
    void Run(int nBacklog, bool bGoOn);
    void Put(const PlantSample& sample);
    void TellSubscribers();
    bool WaitForNextStep();

    std::thread m_thread;

    mutable std::mutex m_mutex; // guards all that follows
    std::condition_variable m_wake;
    std::deque<PlantSample> m_arrSample;
    std::uint64_t m_nEnd = 0; // number of the sample that comes next
    std::vector<HWND> m_arrSubscriber;
    bool m_bStop = false;
    bool m_bPaused = false;
    bool m_bBacklogDone = false;
};
