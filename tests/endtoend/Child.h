// A program that a test starts and that ends with it.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

class Child
{
public:
    using Variables = std::vector<std::pair<std::string, std::string>>;

    /// Starts a program with these variables added to the environment. Throws std::runtime_error on failure.
    /// @param nKept  a descriptor that the child keeps, or -1
    Child(const std::vector<std::string>& command, const Variables& environment = {}, int nKept = -1);
    ~Child();
    Child(const Child&) = delete;
    Child& operator=(const Child&) = delete;

    bool IsRunning();
    /// @return the exit status, -1 when a signal ended it or when it goes on beyond the deadline
    int WaitForEnd();
    /// Processor time used so far, milliseconds.
    long ProcessorTime() const;

private:
    bool Reap();

    int m_nProcess = -1;
    std::optional<int> m_status; // once it has ended
};
