// A flag that is set for as long as a scope lasts, also when an exception ends it.
#pragma once

namespace splitframe {

class ScopedFlag
{
public:
    explicit ScopedFlag(bool& bFlag) : m_bFlag(bFlag) { m_bFlag = true; }
    ~ScopedFlag() { m_bFlag = false; }
    ScopedFlag(const ScopedFlag&) = delete;
    ScopedFlag& operator=(const ScopedFlag&) = delete;

private:
    bool& m_bFlag;
};

} // namespace splitframe
