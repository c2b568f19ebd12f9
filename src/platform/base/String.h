// CString: text of any length, one UTF-16 code unit in each wchar_t. Knows nothing but the text conversions.
// Every `const wchar_t*` that enters may hold whole characters above FFFF; they are split into two units
// first, so that text from a literal, a file and an archive compares equal. Narrow text is UTF-8; a byte that
// is not valid UTF-8 becomes the character of the same number. Short text lives in the object itself, without
// an allocation.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"

#include <cstddef>
#include <cstring>
#include <functional>
#include <string>
#include <string_view>
#include <type_traits>

class CString;

namespace splitframe {

/// One argument of CString::Format, with its type kept: a wrong conversion in the format can not misread it.
class SPLITFRAME_PLATFORM_API FormatArg
{
public:
    enum class Kind
    {
        Signed,
        Unsigned,
        Real,
        Character,
        Wide,
        Narrow,
        Pointer
    };

    template <class T>
    requires(std::is_integral_v<T> || std::is_enum_v<T>) FormatArg(T value)
        : m_kind(Kind::Signed), m_nBytes(sizeof(T))
    {
        if constexpr (std::is_same_v<T, wchar_t> || std::is_same_v<T, char> || std::is_same_v<T, char16_t>)
            m_kind = Kind::Character;
        else if constexpr (std::is_enum_v<T>)
            m_kind = Kind::Signed;
        else if constexpr (std::is_unsigned_v<T>)
            m_kind = Kind::Unsigned;
        m_nValue = static_cast<long long>(value);
    }
    FormatArg(double dValue) : m_kind(Kind::Real), m_dValue(dValue) {}
    FormatArg(const wchar_t* psz) : m_kind(Kind::Wide), m_pWide(psz) {}
    FormatArg(const char* psz) : m_kind(Kind::Narrow), m_pNarrow(psz) {}
    FormatArg(const std::string& str) : m_kind(Kind::Narrow), m_pNarrow(str.c_str()) {}
    FormatArg(const CString& str);
    FormatArg(const void* p)
        : m_kind(Kind::Pointer), m_nValue(static_cast<long long>(reinterpret_cast<INT_PTR>(p)))
    {
    }

private:
    friend class FormatWriter;
    Kind m_kind;
    int m_nBytes = 8;
    long long m_nValue = 0;
    double m_dValue = 0.0;
    const wchar_t* m_pWide = nullptr;
    const char* m_pNarrow = nullptr;
    int m_nLength = -1; // of m_pWide; -1: up to its terminator
};

} // namespace splitframe

/// Text. Positions and lengths count UTF-16 units. A null `const wchar_t*` is taken as empty text everywhere.
/// Text made from a pointer ends at its first zero; text made with a length, and text worked on in place, may
/// hold zeros. An index outside the text raises the invalid-argument exception; memory that runs out, the
/// memory exception.
class SPLITFRAME_PLATFORM_API CString
{
public:
    /// Units that every text has room for, without an allocation. With them the object fills one cache line.
    static constexpr int SHORT_CAPACITY = 11;

    CString() noexcept : m_pText(m_szShort), m_nLength(0), m_nCapacity(SHORT_CAPACITY) { m_szShort[0] = 0; }
    CString(const CString& str) : CString(Units{}, str.m_pText, str.m_nLength) {}
    CString(CString&& str) noexcept : CString() { Take(str); }
    CString(std::nullptr_t) noexcept : CString() {}
    CString(const wchar_t* psz);
    /// The first nLength values of psz, zeros included; a negative length is taken as 0.
    CString(const wchar_t* psz, int nLength);
    /// nRepeat times the character ch (two units each when above FFFF).
    explicit CString(wchar_t ch, int nRepeat = 1);
    /// Narrow text, UTF-8.
    explicit CString(const char* psz);
    /// Narrow text of the given size, zeros included.
    static CString FromUtf8(std::string_view text);
    /// UTF-16 units as they stand, zeros and unpaired surrogates included.
    static CString FromUnits(const wchar_t* pUnits, int nLength) { return CString(Units{}, pUnits, nLength); }
    /// The same for short text, quicker: nLength is at most SHORT_CAPACITY, but one more than that can be
    /// read.
    static CString FromShortUnits(const wchar_t* pUnits, int nLength) noexcept
    {
        return CString(pUnits, nLength, Short{});
    }
    ~CString()
    {
        if (m_pText != m_szShort)
            Free(m_pText);
    }

    CString& operator=(const CString& str);
    CString& operator=(CString&& str) noexcept;
    CString& operator=(const wchar_t* psz);
    CString& operator=(const char* psz);
    CString& operator=(wchar_t ch);

    CString& operator+=(const CString& str);
    CString& operator+=(const wchar_t* psz);
    CString& operator+=(wchar_t ch);
    void Append(const wchar_t* psz, int nLength);

    int GetLength() const { return m_nLength; }
    bool IsEmpty() const { return m_nLength == 0; }
    void Empty() noexcept;

    /// The text, followed by a zero; valid until the next change.
    const wchar_t* GetString() const { return m_pText; }
    operator const wchar_t*() const { return m_pText; }
    std::wstring_view View() const { return {m_pText, static_cast<std::size_t>(m_nLength)}; }
    /// The text as UTF-8. An unpaired surrogate is written as its own three bytes.
    std::string ToUtf8() const;
    /// The text for the compiler's wide functions: pairs of units joined to whole characters.
    std::wstring ToWide() const;

    wchar_t GetAt(int nIndex) const;
    wchar_t operator[](int nIndex) const { return GetAt(nIndex); }
    void SetAt(int nIndex, wchar_t unit);

    /// Opens the text for writing in place: at least nMinLength units and a zero after them. End with
    /// ReleaseBuffer.
    wchar_t* GetBuffer(int nMinLength)
    {
        if (nMinLength > m_nCapacity)
            Reserve(nMinLength);
        return m_pText;
    }
    wchar_t* GetBuffer() { return GetBuffer(m_nLength); }
    /// @param nNewLength  the length after writing, or -1 to take all up to the first zero
    void ReleaseBuffer(int nNewLength = -1);
    /// Ends writing of exactly nLength UTF-16 units, zeros included. Unlike ReleaseBuffer it does not look at
    /// them.
    void ReleaseBufferSetLength(int nLength)
    {
        m_nLength = nLength < 0 ? 0 : nLength < m_nCapacity ? nLength : m_nCapacity;
        m_pText[m_nLength] = 0;
    }
    /// Replaces nCount units at nIndex by room for nNewCount others; both are clamped to the text. The text
    /// behind moves, the text before does not.
    /// @return where the new units are to be written, before anything else is done with the text
    wchar_t* OpenGap(int nIndex, int nCount, int nNewCount);
    /// Makes room for nLength units, so that appending up to there does not allocate.
    void Preallocate(int nLength);

    /// Orders by UTF-16 unit values. @return below 0, 0 or above 0
    int Compare(const wchar_t* psz) const;
    int Compare(const CString& str) const;
    /// As Compare, after simple, locale-independent case folding of both texts.
    int CompareNoCase(const wchar_t* psz) const;

    /// @return position of the first match at nStart or later, or -1; an nStart outside the text finds
    /// nothing
    int Find(wchar_t ch, int nStart = 0) const;
    int Find(const wchar_t* pszSub, int nStart = 0) const;
    int ReverseFind(wchar_t ch) const;
    /// Parts of the text; positions and counts are clamped to it.
    CString Left(int nCount) const;
    CString Right(int nCount) const;
    CString Mid(int nFirst) const;
    CString Mid(int nFirst, int nCount) const;

    CString& MakeUpper();
    CString& MakeLower();
    /// Removes spaces, tabs and line ends at both ends.
    CString& Trim();

    /// Replaces the text. Conversions: %d %i %u %x %X %c %s %f %e %g %p %%, with flags, width, precision and
    /// length modifiers (which the arguments' own types make needless). Independent of the locale. A
    /// conversion without an argument is written as it stands.
    template <class... Args> void Format(const wchar_t* pszFormat, const Args&... args)
    {
        const splitframe::FormatArg list[] = {splitframe::FormatArg(args)..., splitframe::FormatArg(0)};
        CString str;
        str.AppendArgs(pszFormat, list, static_cast<int>(sizeof...(args)));
        *this = static_cast<CString&&>(str);
    }
    template <class... Args> void AppendFormat(const wchar_t* pszFormat, const Args&... args)
    {
        CString str;
        str.Format(pszFormat, args...);
        *this += str;
    }

private:
    struct Units
    {
    };
    struct Short
    {
    };

    CString(Units, const wchar_t* pUnits, int nLength);
    CString(const wchar_t* pUnits, int nLength, Short) noexcept
        : m_pText(m_szShort), m_nLength(nLength), m_nCapacity(SHORT_CAPACITY)
    {
        std::memcpy(m_szShort, pUnits, sizeof(m_szShort)); // of a fixed size: a few instructions
        m_szShort[nLength] = 0;
    }
    static wchar_t* Allocate(wchar_t* pText, int nCapacity);
    static void Free(wchar_t* pText) noexcept;
    void Take(CString& str) noexcept;
    void Reserve(long long nLength);
    void AppendUnits(const wchar_t* pUnits, int nLength);
    void AppendSplit(const wchar_t* pText, std::size_t nCount);
    void AppendArgs(const wchar_t* pszFormat, const splitframe::FormatArg* pArgs, int nArgs);

    wchar_t* m_pText; // m_szShort, or owned memory of m_nCapacity + 1 units
    int m_nLength;
    int m_nCapacity;
    wchar_t m_szShort[SHORT_CAPACITY + 1];
};

inline splitframe::FormatArg::FormatArg(const CString& str)
    : m_kind(Kind::Wide), m_pWide(str.GetString()), m_nLength(str.GetLength())
{
}

SPLITFRAME_PLATFORM_API CString operator+(const CString& a, const CString& b);
SPLITFRAME_PLATFORM_API CString operator+(const CString& a, const wchar_t* b);
SPLITFRAME_PLATFORM_API CString operator+(const wchar_t* a, const CString& b);
SPLITFRAME_PLATFORM_API CString operator+(const CString& a, wchar_t b);

SPLITFRAME_PLATFORM_API bool operator==(const CString& a, const CString& b);
inline bool operator==(const CString& a, const wchar_t* b)
{
    return a.Compare(b) == 0;
}
inline bool operator<(const CString& a, const CString& b)
{
    return a.Compare(b) < 0;
}

template <> struct SPLITFRAME_PLATFORM_API std::hash<CString>
{
    std::size_t operator()(const CString& str) const noexcept
    {
        return std::hash<std::wstring_view>{}(str.View());
    }
};
