// Runs work that may raise a platform exception.
#pragma once

#include <functional>

namespace test {

/// The cause of the file or archive exception that the work raises, or -1 for none. The exception is ended.
template <class EXCEPTION> int CauseOf(const std::function<void()>& work)
{
    try {
        work();
    } catch (EXCEPTION* pException) {
        const int cause = pException->GetErrorMessage().IsEmpty() ? -2 : pException->m_cause;
        pException->Delete();
        return cause;
    }
    return -1;
}

} // namespace test
