// The journal: what happened in the plant and what the operator did about it, in the order of its happening.
// Plain data of the user-interface thread; whoever adds an entry tells the windows that show it.
#pragma once

#include <platform/base/String.h>

#include <deque>

enum class Severity
{
    Info,
    Operator, // something that the user did
    Warning,
    Alarm
};

struct JournalEntry
{
    double dTime = 0.0; // seconds since the run began
    Severity severity = Severity::Info;
    CString strSource;
    CString strText;
    bool bAcknowledged = true; // only alarms start without
};

class CJournal
{
public:
    /// Entries that are kept; the oldest are dropped.
    static constexpr int CAPACITY = 2000;

    void Add(double dTime, Severity severity, const CString& strSource, const CString& strText);

    int GetCount() const { return static_cast<int>(m_arrEntry.size()); }
    /// An entry by its age: 0 is the newest. Ages outside the journal give an empty entry.
    const JournalEntry& GetByAge(int nAge) const;

    int CountUnacknowledged() const;
    /// Marks all alarms as seen. @return how many there were
    int AcknowledgeAll();

private:
    std::deque<JournalEntry> m_arrEntry;
};

const wchar_t* GetSeverityName(Severity severity);
