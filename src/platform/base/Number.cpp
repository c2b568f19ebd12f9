// Reading numbers from text and writing them, without the locale.
#include "platform/base/Number.h"

#include <charconv>
#include <string>

namespace splitframe {

namespace {

bool IsDigit(wchar_t ch)
{
    return ch >= L'0' && ch <= L'9';
}

const wchar_t* SkipSpace(const wchar_t* psz)
{
    while (*psz == L' ' || (*psz >= L'\t' && *psz <= L'\r'))
        ++psz;
    return psz;
}

// Reads an optional sign. @return whether it is a minus
bool ReadSign(const wchar_t*& psz)
{
    const bool bMinus = *psz == L'-';
    if (*psz == L'-' || *psz == L'+')
        ++psz;
    return bMinus;
}

// Copies digits. @return how many
std::size_t ReadDigits(const wchar_t*& psz, std::string& str)
{
    const wchar_t* pStart = psz;
    while (IsDigit(*psz))
        str.push_back(static_cast<char>(*psz++));
    return static_cast<std::size_t>(psz - pStart);
}

// Copies an exponent if a whole one stands here; "1e" and "1e+" are the number 1.
void ReadExponent(const wchar_t* psz, std::string& str)
{
    if (*psz != L'e' && *psz != L'E')
        return;
    ++psz;
    const bool bMinus = ReadSign(psz);
    if (!IsDigit(*psz))
        return;
    str += bMinus ? "e-" : "e";
    ReadDigits(psz, str);
}

// Whether a number that no double can hold is too large, not too small. Digits: decimal notation without a
// sign.
bool IsTooLarge(const std::string& digits)
{
    const std::size_t nExponent = digits.find('e');
    const std::string mantissa = digits.substr(0, nExponent);
    const std::size_t nPoint = std::min(mantissa.find('.'), mantissa.size());
    const std::size_t nFirst = mantissa.find_first_not_of("0.");
    if (nFirst == std::string::npos)
        return false;
    // Decimal exponent of the first digit that is not 0, without the written exponent.
    const long long nPlace =
        static_cast<long long>(nPoint) - static_cast<long long>(nFirst) - (nFirst < nPoint ? 1 : 0);
    long long nWritten = 0;
    if (nExponent != std::string::npos) {
        const std::size_t nStart = nExponent + 1;
        const auto result = std::from_chars(digits.data() + nStart, digits.data() + digits.size(), nWritten);
        if (result.ec != std::errc())
            return digits[nStart] != '-'; // an exponent that long outweighs any place
    }
    return nWritten > 0 ? nWritten > -nPlace : nPlace > -nWritten;
}

} // namespace

int TextToInt(const wchar_t* pszText)
{
    if (!pszText)
        return 0;
    const wchar_t* psz = SkipSpace(pszText);
    const bool bMinus = ReadSign(psz);
    std::int64_t nValue = 0;
    for (; IsDigit(*psz) && nValue <= std::numeric_limits<std::int32_t>::max(); ++psz)
        nValue = nValue * 10 + (*psz - L'0');
    return ClampToInt(bMinus ? -nValue : nValue);
}

bool TextToReal(const wchar_t* pszText, double& dValue)
{
    const wchar_t* psz = SkipSpace(pszText ? pszText : L"");
    const bool bMinus = ReadSign(psz);
    std::string digits;
    std::size_t nDigits = ReadDigits(psz, digits);
    if (*psz == L'.') {
        digits.push_back('.');
        nDigits += ReadDigits(++psz, digits);
    }
    if (nDigits == 0) {
        dValue = 0.0;
        return true;
    }
    ReadExponent(psz, digits);
    double dResult = 0.0;
    const auto result = std::from_chars(digits.data(), digits.data() + digits.size(), dResult);
    if (result.ec == std::errc::result_out_of_range) {
        if (IsTooLarge(digits))
            return false;
        dResult = 0.0;
    }
    dValue = bMinus ? -dResult : dResult;
    return true;
}

CString RealToText(double dValue)
{
    char buffer[32];
    const auto result = std::to_chars(buffer, buffer + sizeof(buffer), dValue);
    return CString::FromUtf8({buffer, static_cast<std::size_t>(result.ptr - buffer)});
}

} // namespace splitframe
