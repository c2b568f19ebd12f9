// CString::Format: printf-like conversions that follow the arguments' own types and never the locale.
#include "platform/base/String.h"

#include "platform/base/Number.h"

#include <algorithm>
#include <charconv>
#include <cmath>
#include <cwchar>
#include <string>

namespace splitframe {

// One conversion of a format: flags, width, precision, letter.
struct Conversion
{
    bool bLeft = false;
    bool bZero = false;
    bool bPlus = false;
    bool bSpace = false;
    bool bAlternate = false;
    int nWidth = 0;
    int nPrecision = -1; // -1: none given
    wchar_t letter = 0;  // 0: the format ended before one
};

// Widths and precisions beyond this are a mistake in the format, not a layout.
constexpr int FORMAT_LIMIT = 4096;

class FormatWriter
{
public:
    FormatWriter(CString& str, const FormatArg* pArgs, int nArgs) : m_str(str), m_pArgs(pArgs), m_nArgs(nArgs)
    {
    }

    void Write(const wchar_t* psz)
    {
        while (*psz) {
            const wchar_t* pPercent = std::wcschr(psz, L'%');
            if (!pPercent) {
                m_str += psz;
                return;
            }
            m_str.Append(psz, static_cast<int>(pPercent - psz));
            psz = WriteConversion(pPercent);
        }
    }

private:
    const wchar_t* WriteConversion(const wchar_t* pPercent)
    {
        const wchar_t* psz = pPercent + 1;
        const Conversion conversion = ReadConversion(psz);
        if (conversion.letter == L'%')
            m_str += L'%';
        else if (conversion.letter == 0 || !std::wcschr(L"diuxXcsSfFeEgGp", conversion.letter) ||
                 m_nArg >= m_nArgs)
            m_str.Append(pPercent, static_cast<int>(psz - pPercent));
        else
            WriteArg(conversion, m_pArgs[m_nArg++]);
        return psz;
    }

    Conversion ReadConversion(const wchar_t*& psz)
    {
        Conversion conversion;
        for (;; ++psz) {
            if (*psz == L'-')
                conversion.bLeft = true;
            else if (*psz == L'0')
                conversion.bZero = true;
            else if (*psz == L'+')
                conversion.bPlus = true;
            else if (*psz == L' ')
                conversion.bSpace = true;
            else if (*psz == L'#')
                conversion.bAlternate = true;
            else
                break;
        }
        conversion.nWidth = ReadNumber(psz);
        if (conversion.nWidth < 0) { // only from an argument
            conversion.bLeft = true;
            conversion.nWidth = -conversion.nWidth;
        }
        if (*psz == L'.') {
            ++psz;
            conversion.nPrecision = ReadNumber(psz);
        }
        while (*psz && std::wcschr(L"hlLqjzt", *psz))
            ++psz;
        conversion.letter = *psz;
        if (*psz)
            ++psz;
        return conversion;
    }

    int ReadNumber(const wchar_t*& psz)
    {
        int nValue = 0;
        if (*psz == L'*') {
            ++psz;
            nValue = m_nArg < m_nArgs ? ClampToInt(static_cast<std::int64_t>(m_pArgs[m_nArg++].m_nValue)) : 0;
        } else {
            for (; *psz >= L'0' && *psz <= L'9'; ++psz)
                nValue = std::min(nValue * 10 + (*psz - L'0'), FORMAT_LIMIT);
        }
        return std::clamp(nValue, -FORMAT_LIMIT, FORMAT_LIMIT);
    }

    void WriteArg(const Conversion& conversion, const FormatArg& arg)
    {
        switch (arg.m_kind) {
        case FormatArg::Kind::Wide:
            return WriteText(conversion,
                             arg.m_nLength < 0 ? CString(arg.m_pWide) : CString(arg.m_pWide, arg.m_nLength));
        case FormatArg::Kind::Narrow:
            return WriteText(conversion, CString(arg.m_pNarrow));
        case FormatArg::Kind::Real:
            return WriteReal(conversion, arg.m_dValue);
        case FormatArg::Kind::Pointer:
            return WriteNumber(conversion, "0x", Digits(static_cast<unsigned long long>(arg.m_nValue), 16));
        case FormatArg::Kind::Character:
            if (conversion.letter == L'c' || conversion.letter == L's')
                return WriteText(conversion, CString(static_cast<wchar_t>(arg.m_nValue)));
            [[fallthrough]];
        default:
            return WriteInteger(conversion, arg);
        }
    }

    void WriteInteger(const Conversion& conversion, const FormatArg& arg)
    {
        // The number as the argument's own type holds it: -1 as an int is FFFFFFFF, not sixteen of them.
        const unsigned long long nMask = arg.m_nBytes >= 8 ? ~0ULL : (1ULL << (8 * arg.m_nBytes)) - 1;
        const unsigned long long nBits = static_cast<unsigned long long>(arg.m_nValue) & nMask;
        switch (conversion.letter) {
        case L'c':
            return WriteText(conversion, CString(static_cast<wchar_t>(arg.m_nValue)));
        case L'f':
        case L'F':
        case L'e':
        case L'E':
        case L'g':
        case L'G':
            return WriteReal(conversion, static_cast<double>(arg.m_nValue));
        case L'x':
        case L'X':
        case L'p':
            return WriteHex(conversion, nBits);
        case L'u':
            return WriteNumber(conversion, "", Digits(nBits, 10));
        default:
            if (arg.m_kind == FormatArg::Kind::Unsigned)
                return WriteNumber(conversion, Sign(conversion, false), Digits(nBits, 10));
            return WriteNumber(conversion, Sign(conversion, arg.m_nValue < 0),
                               Digits(arg.m_nValue < 0 ? 0ULL - static_cast<unsigned long long>(arg.m_nValue)
                                                       : static_cast<unsigned long long>(arg.m_nValue),
                                      10));
        }
    }

    void WriteHex(const Conversion& conversion, unsigned long long nBits)
    {
        std::string digits = Digits(nBits, 16);
        const bool bUpper = conversion.letter == L'X';
        if (bUpper)
            std::transform(digits.begin(), digits.end(), digits.begin(),
                           [](char ch) { return ch >= 'a' ? static_cast<char>(ch - 32) : ch; });
        WriteNumber(conversion, !conversion.bAlternate || nBits == 0 ? "" : bUpper ? "0X" : "0x", digits);
    }

    void WriteReal(const Conversion& conversion, double dValue)
    {
        std::chars_format format = std::chars_format::fixed;
        if (conversion.letter == L'e' || conversion.letter == L'E')
            format = std::chars_format::scientific;
        else if (conversion.letter == L'g' || conversion.letter == L'G')
            format = std::chars_format::general;
        const int nPrecision = conversion.nPrecision < 0 ? 6 : conversion.nPrecision;
        std::string digits(static_cast<std::size_t>(nPrecision) + 400, '\0');
        const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), std::fabs(dValue),
                                          format, nPrecision);
        digits.resize(static_cast<std::size_t>(result.ptr - digits.data()));
        Conversion plain = conversion;
        plain.nPrecision = -1;
        plain.bZero = conversion.bZero && std::isfinite(dValue);
        WriteNumber(plain, Sign(conversion, std::signbit(dValue)), digits);
    }

    static const char* Sign(const Conversion& conversion, bool bMinus)
    {
        return bMinus ? "-" : conversion.bPlus ? "+" : conversion.bSpace ? " " : "";
    }

    static std::string Digits(unsigned long long nValue, int nBase)
    {
        char buffer[24];
        const auto result = std::to_chars(buffer, buffer + sizeof(buffer), nValue, nBase);
        return {buffer, result.ptr};
    }

    // A prefix (sign, 0x), then zeros up to precision or width, then the digits.
    void WriteNumber(const Conversion& conversion, const std::string& prefix, std::string digits)
    {
        const std::size_t nPrecision = static_cast<std::size_t>(std::max(conversion.nPrecision, 0));
        if (digits.size() < nPrecision)
            digits.insert(0, nPrecision - digits.size(), '0');
        const std::size_t nWidth = static_cast<std::size_t>(conversion.nWidth);
        const bool bZeros = conversion.bZero && !conversion.bLeft && conversion.nPrecision < 0;
        if (bZeros && prefix.size() + digits.size() < nWidth)
            digits.insert(0, nWidth - prefix.size() - digits.size(), '0');
        WritePadded(conversion, CString::FromUtf8(prefix + digits));
    }

    void WriteText(const Conversion& conversion, const CString& str)
    {
        const bool bCut = conversion.nPrecision >= 0 && conversion.letter == L's';
        WritePadded(conversion, bCut ? str.Left(conversion.nPrecision) : str);
    }

    void WritePadded(const Conversion& conversion, const CString& str)
    {
        const CString padding(L' ', conversion.nWidth - std::min(conversion.nWidth, str.GetLength()));
        if (!conversion.bLeft)
            m_str += padding;
        m_str += str;
        if (conversion.bLeft)
            m_str += padding;
    }

    CString& m_str;
    const FormatArg* m_pArgs;
    int m_nArgs;
    int m_nArg = 0;
};

} // namespace splitframe

void CString::AppendArgs(const wchar_t* pszFormat, const splitframe::FormatArg* pArgs, int nArgs)
{
    if (pszFormat)
        splitframe::FormatWriter(*this, pArgs, nArgs).Write(pszFormat);
}
