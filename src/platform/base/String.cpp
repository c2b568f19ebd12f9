// The text object: storage, comparing, searching, parts. Formatting stands in StringFormat.cpp.
#include "platform/base/String.h"

#include "platform/base/Exception.h"
#include "platform/base/LargePages.h"
#include "platform/base/Unicode.h"

#include <algorithm>
#include <cstdlib>
#include <cwchar>
#include <limits>
#include <new>

using namespace splitframe;

namespace {

// Units that the values make beyond one each.
std::size_t CountSplits(const wchar_t* pText, std::size_t nCount)
{
    std::size_t nSplits = 0;
    for (std::size_t i = 0; i < nCount; ++i)
        nSplits += static_cast<char32_t>(pText[i]) > 0xFFFF ? 1 : 0;
    return nSplits;
}

wchar_t* SplitInto(wchar_t* pOut, const wchar_t* pText, std::size_t nCount)
{
    for (std::size_t i = 0; i < nCount; ++i) {
        const wchar_t ch = pText[i];
        if (UnitsOf(ch) == 1) {
            *pOut++ = ch;
        } else {
            *pOut++ = HighUnit(ch);
            *pOut++ = LowUnit(ch);
        }
    }
    return pOut;
}

std::size_t LengthOf(const wchar_t* psz)
{
    return psz ? std::wcslen(psz) : 0;
}

int Order(wchar_t a, wchar_t b)
{
    return a == b ? 0 : static_cast<char32_t>(a) < static_cast<char32_t>(b) ? -1 : 1;
}

wchar_t Same(wchar_t unit)
{
    return unit;
}

// Compares units with text whose values may still have to be split; each unit passes through map first.
template <class Map> int CompareSplit(const wchar_t* pUnits, int nLength, const wchar_t* psz, Map map)
{
    const wchar_t* pEnd = pUnits + nLength;
    wchar_t low = 0; // second unit of the value before, still to be compared
    for (psz = psz ? psz : L""; low != 0 || *psz != 0; ++pUnits) {
        if (pUnits == pEnd)
            return -1;
        wchar_t unit = low;
        if (unit != 0) {
            low = 0;
        } else if (UnitsOf(*psz) == 2) {
            unit = HighUnit(*psz);
            low = LowUnit(*psz++);
        } else {
            unit = *psz++;
        }
        if (const int nOrder = Order(map(*pUnits), map(unit)))
            return nOrder;
    }
    return pUnits == pEnd ? 0 : 1;
}

} // namespace

// @param pText  the memory to grow, or null for new memory
wchar_t* CString::Allocate(wchar_t* pText, int nCapacity)
{
    const std::size_t nBytes = (static_cast<std::size_t>(nCapacity) + 1) * sizeof(wchar_t);
    void* pNew = pText ? std::realloc(pText, nBytes) : std::malloc(nBytes);
    if (!pNew)
        AfxThrowMemoryException();
    PreferLargePages(pNew, nBytes);
    return static_cast<wchar_t*>(pNew);
}

void CString::Free(wchar_t* pText) noexcept
{
    std::free(pText);
}

// Takes the other text's memory; this one must be empty and short. Short text is copied.
void CString::Take(CString& str) noexcept
{
    if (str.m_pText == str.m_szShort) {
        std::memcpy(m_szShort, str.m_szShort, sizeof(m_szShort));
    } else {
        m_pText = str.m_pText;
        m_nCapacity = str.m_nCapacity;
        str.m_pText = str.m_szShort;
        str.m_nCapacity = SHORT_CAPACITY;
    }
    m_nLength = str.m_nLength;
    str.m_nLength = 0;
    str.m_szShort[0] = 0;
}

void CString::Reserve(long long nLength)
{
    if (nLength <= m_nCapacity)
        return;
    if (nLength >= std::numeric_limits<int>::max())
        AfxThrowMemoryException();
    // A first allocation is exact; appending piece by piece grows by half.
    if (m_nLength == 0) {
        wchar_t* pText = Allocate(nullptr, static_cast<int>(nLength));
        *pText = 0;
        if (m_pText != m_szShort)
            Free(m_pText);
        m_pText = pText;
        m_nCapacity = static_cast<int>(nLength);
        return;
    }
    const long long nGrown = std::min<long long>(m_nCapacity + m_nCapacity / 2LL, 0x7FFFFFF0);
    const int nCapacity = static_cast<int>(std::max(nLength, nGrown));
    if (m_pText == m_szShort) {
        m_pText = Allocate(nullptr, nCapacity);
        std::memcpy(m_pText, m_szShort, sizeof(m_szShort));
    } else {
        m_pText = Allocate(m_pText, nCapacity);
    }
    m_nCapacity = nCapacity;
}

wchar_t* CString::OpenGap(int nIndex, int nCount, int nNewCount)
{
    const int nStart = std::clamp(nIndex, 0, m_nLength);
    const int nTail = nStart + std::clamp(nCount, 0, m_nLength - nStart);
    const int nGap = std::max(nNewCount, 0);
    const long long nLength = static_cast<long long>(m_nLength) - (nTail - nStart) + nGap;
    Reserve(nLength);
    std::memmove(m_pText + nStart + nGap, m_pText + nTail,
                 (static_cast<std::size_t>(m_nLength - nTail) + 1) * sizeof(wchar_t));
    m_nLength = static_cast<int>(nLength);
    return m_pText + nStart;
}

void CString::AppendUnits(const wchar_t* pUnits, int nLength)
{
    if (nLength <= 0)
        return;
    const bool bOwn = !std::less<>{}(pUnits, m_pText) && !std::less<>{}(m_pText + m_nLength, pUnits);
    const std::ptrdiff_t nOffset = bOwn ? pUnits - m_pText : 0;
    Reserve(static_cast<long long>(m_nLength) + nLength);
    std::memmove(m_pText + m_nLength, bOwn ? m_pText + nOffset : pUnits,
                 static_cast<std::size_t>(nLength) * sizeof(wchar_t));
    m_nLength += nLength;
    m_pText[m_nLength] = 0;
}

void CString::AppendSplit(const wchar_t* pText, std::size_t nCount)
{
    const std::size_t nSplits = CountSplits(pText, nCount);
    const std::size_t nTotal = static_cast<std::size_t>(m_nLength) + nCount + nSplits;
    if (nTotal >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        AfxThrowMemoryException();
    if (nSplits == 0)
        return AppendUnits(pText, static_cast<int>(nCount));
    Reserve(static_cast<long long>(nTotal));
    SplitInto(m_pText + m_nLength, pText, nCount);
    m_nLength = static_cast<int>(nTotal);
    m_pText[m_nLength] = 0;
}

CString::CString(Units, const wchar_t* pUnits, int nLength) : CString()
{
    AppendUnits(pUnits, nLength);
}

// Most texts are short: those are copied while their end is sought.
CString::CString(const wchar_t* psz) : CString()
{
    if (!psz)
        return;
    int n = 0;
    for (; n < SHORT_CAPACITY && psz[n] != 0 && UnitsOf(psz[n]) == 1; ++n)
        m_szShort[n] = psz[n];
    m_szShort[psz[n] == 0 ? n : 0] = 0;
    if (psz[n] == 0)
        m_nLength = n;
    else
        AppendSplit(psz, std::wcslen(psz));
}

CString::CString(const wchar_t* psz, int nLength) : CString()
{
    if (psz && nLength > 0)
        AppendSplit(psz, static_cast<std::size_t>(nLength));
}

CString::CString(wchar_t ch, int nRepeat) : CString()
{
    if (nRepeat <= 0)
        return;
    Reserve(static_cast<long long>(nRepeat) * UnitsOf(ch));
    for (int i = 0; i < nRepeat; ++i)
        AppendSplit(&ch, 1);
}

CString::CString(const char* psz) : CString(FromUtf8(psz ? std::string_view(psz) : std::string_view())) {}

CString CString::FromUtf8(std::string_view text)
{
    CString str;
    if (text.size() >= static_cast<std::size_t>(std::numeric_limits<int>::max()))
        AfxThrowMemoryException();
    str.Reserve(static_cast<long long>(CountUnits(text)));
    str.m_nLength = static_cast<int>(DecodeUtf8(text, str.m_pText));
    str.m_pText[str.m_nLength] = 0;
    return str;
}

CString& CString::operator=(const CString& str)
{
    if (this == &str)
        return *this;
    m_nLength = 0;
    m_pText[0] = 0;
    AppendUnits(str.m_pText, str.m_nLength);
    return *this;
}

CString& CString::operator=(CString&& str) noexcept
{
    if (this == &str)
        return *this;
    if (m_pText != m_szShort)
        Free(m_pText);
    m_pText = m_szShort;
    m_nCapacity = SHORT_CAPACITY;
    Take(str);
    return *this;
}

CString& CString::operator=(const wchar_t* psz)
{
    return *this = CString(psz); // psz may point into this text
}

CString& CString::operator=(const char* psz)
{
    return *this = CString(psz);
}

CString& CString::operator=(wchar_t ch)
{
    return *this = CString(ch);
}

CString& CString::operator+=(const CString& str)
{
    AppendUnits(str.m_pText, str.m_nLength);
    return *this;
}

CString& CString::operator+=(const wchar_t* psz)
{
    AppendSplit(psz, LengthOf(psz));
    return *this;
}

CString& CString::operator+=(wchar_t ch)
{
    AppendSplit(&ch, 1);
    return *this;
}

void CString::Append(const wchar_t* psz, int nLength)
{
    if (psz && nLength > 0)
        AppendSplit(psz, static_cast<std::size_t>(nLength));
}

void CString::Empty() noexcept
{
    *this = CString();
}

std::string CString::ToUtf8() const
{
    return EncodeUtf8(View());
}

std::wstring CString::ToWide() const
{
    return JoinUnits(View());
}

wchar_t CString::GetAt(int nIndex) const
{
    // The terminator may be read too, as through the pointer.
    if (nIndex < 0 || nIndex > m_nLength)
        AfxThrowInvalidArgException();
    return m_pText[nIndex];
}

void CString::SetAt(int nIndex, wchar_t unit)
{
    if (nIndex < 0 || nIndex >= m_nLength || UnitsOf(unit) != 1)
        AfxThrowInvalidArgException();
    m_pText[nIndex] = unit;
}

void CString::ReleaseBuffer(int nNewLength)
{
    m_pText[m_nCapacity] = 0;
    const int nLength =
        nNewLength < 0 ? static_cast<int>(std::wcslen(m_pText)) : std::min(nNewLength, m_nCapacity);
    if (CountSplits(m_pText, static_cast<std::size_t>(nLength)) != 0)
        *this = CString(m_pText, nLength);
    else
        ReleaseBufferSetLength(nLength);
}

void CString::Preallocate(int nLength)
{
    Reserve(nLength);
}

int CString::Compare(const wchar_t* psz) const
{
    return CompareSplit(m_pText, m_nLength, psz, Same);
}

int CString::Compare(const CString& str) const
{
    const int nCommon = std::min(m_nLength, str.m_nLength);
    const auto [pOwn, pOther] = std::mismatch(m_pText, m_pText + nCommon, str.m_pText);
    if (pOwn != m_pText + nCommon)
        return Order(*pOwn, *pOther);
    return m_nLength == str.m_nLength ? 0 : m_nLength < str.m_nLength ? -1 : 1;
}

int CString::CompareNoCase(const wchar_t* psz) const
{
    return CompareSplit(m_pText, m_nLength, psz, FoldCase);
}

int CString::Find(wchar_t ch, int nStart) const
{
    if (UnitsOf(ch) == 2)
        return Find(CString(ch).GetString(), nStart);
    if (nStart < 0 || nStart >= m_nLength)
        return -1;
    const wchar_t* pFound = std::wmemchr(m_pText + nStart, ch, static_cast<std::size_t>(m_nLength - nStart));
    return pFound ? static_cast<int>(pFound - m_pText) : -1;
}

int CString::Find(const wchar_t* pszSub, int nStart) const
{
    if (nStart < 0 || nStart > m_nLength)
        return -1;
    const std::size_t nFound = View().find(CString(pszSub).View(), static_cast<std::size_t>(nStart));
    return nFound == std::wstring_view::npos ? -1 : static_cast<int>(nFound);
}

int CString::ReverseFind(wchar_t ch) const
{
    const std::size_t nFound = View().rfind(CString(ch).View());
    return nFound == std::wstring_view::npos ? -1 : static_cast<int>(nFound);
}

CString CString::Left(int nCount) const
{
    return Mid(0, nCount);
}

CString CString::Right(int nCount) const
{
    const int nClamped = std::clamp(nCount, 0, m_nLength);
    return Mid(m_nLength - nClamped, nClamped);
}

CString CString::Mid(int nFirst) const
{
    return Mid(nFirst, m_nLength);
}

CString CString::Mid(int nFirst, int nCount) const
{
    const int nStart = std::clamp(nFirst, 0, m_nLength);
    return CString(Units{}, m_pText + nStart, std::clamp(nCount, 0, m_nLength - nStart));
}

CString& CString::MakeUpper()
{
    std::transform(m_pText, m_pText + m_nLength, m_pText, UpperCase);
    return *this;
}

CString& CString::MakeLower()
{
    std::transform(m_pText, m_pText + m_nLength, m_pText, FoldCase);
    return *this;
}

CString& CString::Trim()
{
    const std::size_t nFirst = View().find_first_not_of(L" \t\r\n\v\f");
    if (nFirst == std::wstring_view::npos) {
        Empty();
        return *this;
    }
    const std::size_t nLast = View().find_last_not_of(L" \t\r\n\v\f");
    *this = Mid(static_cast<int>(nFirst), static_cast<int>(nLast - nFirst + 1));
    return *this;
}

CString operator+(const CString& a, const CString& b)
{
    CString str;
    if (a.GetLength() <= std::numeric_limits<int>::max() - b.GetLength())
        str.Preallocate(a.GetLength() + b.GetLength());
    str += a;
    str += b;
    return str;
}

CString operator+(const CString& a, const wchar_t* b)
{
    CString str(a);
    str += b;
    return str;
}

CString operator+(const wchar_t* a, const CString& b)
{
    CString str(a);
    str += b;
    return str;
}

CString operator+(const CString& a, wchar_t b)
{
    CString str(a);
    str += b;
    return str;
}

bool operator==(const CString& a, const CString& b)
{
    return a.View() == b.View();
}
