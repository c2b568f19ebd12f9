// The journal's list and its words.
#include "plant/Journal.h"

#include <algorithm>

void CJournal::Add(double dTime, Severity severity, const CString& strSource, const CString& strText)
{
    m_arrEntry.push_back({dTime, severity, strSource, strText, severity != Severity::Alarm});
    if (GetCount() > CAPACITY)
        m_arrEntry.pop_front();
}

const JournalEntry& CJournal::GetByAge(int nAge) const
{
    static const JournalEntry empty;
    if (nAge < 0 || nAge >= GetCount())
        return empty;
    return m_arrEntry[m_arrEntry.size() - 1 - static_cast<std::size_t>(nAge)];
}

int CJournal::CountUnacknowledged() const
{
    return static_cast<int>(std::count_if(m_arrEntry.begin(), m_arrEntry.end(),
                                          [](const JournalEntry& entry) { return !entry.bAcknowledged; }));
}

int CJournal::AcknowledgeAll()
{
    const int nCount = CountUnacknowledged();
    for (JournalEntry& entry : m_arrEntry)
        entry.bAcknowledged = true;
    return nCount;
}

const wchar_t* GetSeverityName(Severity severity)
{
    switch (severity) {
    case Severity::Operator:
        return L"Operator";
    case Severity::Warning:
        return L"Warning";
    case Severity::Alarm:
        return L"Alarm";
    case Severity::Info:
        break;
    }
    return L"Info";
}
