// Waiting for something to become true. Tests never sleep for a guessed time: the deadline is far beyond what
// the slowest machine needs, and is only reached by a failure.
#pragma once

#include <chrono>
#include <thread>

template <class Condition>
bool WaitUntil(Condition&& condition, std::chrono::seconds deadline = std::chrono::seconds(40))
{
    const auto end = std::chrono::steady_clock::now() + deadline;
    while (!condition()) {
        if (std::chrono::steady_clock::now() > end)
            return false;
        std::this_thread::sleep_for(std::chrono::milliseconds(15));
    }
    return true;
}
