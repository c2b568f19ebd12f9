// A unit's parameter string, as the layout definition writes it: "KEY=VALUE;KEY=VALUE". The first "ID=" in it
// belongs to the library, so other keys must not contain those two letters before it.
#pragma once

#include <platform/base/String.h>

#include <vector>

class CParameters
{
public:
    CParameters() = default;
    /// Null means no parameters.
    explicit CParameters(const wchar_t* pszText) : m_strText(pszText) {}

    /// The value of a key, letter case kept; empty when the key is not there.
    CString GetText(const wchar_t* pszKey) const;
    /// The value in two, cut at the first comma; both empty when the key is not there.
    /// @return whether the first is not empty
    bool GetPair(const wchar_t* pszKey, CString& strFirst, CString& strSecond) const;
    /// Whether the key has the value "1".
    bool IsSet(const wchar_t* pszKey) const;
    /// The instruments whose tags a key lists, separated by commas; unknown tags are left out.
    std::vector<int> GetInstruments(const wchar_t* pszKey) const;

private:
    CString m_strText;
};
