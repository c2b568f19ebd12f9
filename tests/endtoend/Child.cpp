// Starting, watching and ending one process, by its number.
#include "Child.h"

#include "Wait.h"

#include <csignal>
#include <cstdlib>
#include <fcntl.h>
#include <fstream>
#include <stdexcept>
#include <sys/wait.h>
#include <unistd.h>

Child::Child(const std::vector<std::string>& command, const Variables& environment, int nKept)
{
    m_nProcess = fork();
    if (m_nProcess < 0)
        throw std::runtime_error("cannot start " + command.front());
    if (m_nProcess > 0)
        return;
    for (const auto& [strName, strValue] : environment)
        setenv(strName.c_str(), strValue.c_str(), 1);
    if (nKept >= 0)
        fcntl(nKept, F_SETFD, 0);
    std::vector<char*> args;
    for (const std::string& strEach : command)
        args.push_back(const_cast<char*>(strEach.c_str()));
    args.push_back(nullptr);
    execv(args[0], args.data());
    _exit(127);
}

Child::~Child()
{
    if (Reap())
        return;
    kill(m_nProcess, SIGKILL);
    waitpid(m_nProcess, nullptr, 0);
}

bool Child::Reap()
{
    int nStatus = 0;
    if (!m_status && waitpid(m_nProcess, &nStatus, WNOHANG) == m_nProcess)
        m_status = WIFEXITED(nStatus) ? WEXITSTATUS(nStatus) : -1;
    return m_status.has_value();
}

bool Child::IsRunning()
{
    return !Reap();
}

int Child::WaitForEnd()
{
    return WaitUntil([this] { return Reap(); }) ? *m_status : -1;
}

long Child::ProcessorTime() const
{
    std::ifstream file("/proc/" + std::to_string(m_nProcess) + "/stat");
    std::string strField;
    long nTicks = 0;
    for (int n = 1; n <= 15 && file >> strField; ++n) {
        if (n >= 14) // in user mode, in the kernel
            nTicks += std::stol(strField);
    }
    return nTicks * 1000 / sysconf(_SC_CLK_TCK);
}
