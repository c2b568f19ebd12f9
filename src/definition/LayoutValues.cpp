#include "definition/LayoutValues.h"

#include "platform/base/Number.h"

#include <iterator>

namespace splitframe {
namespace {

int HexDigit(wchar_t ch)
{
    if (ch >= L'0' && ch <= L'9')
        return ch - L'0';
    if (ch >= L'a' && ch <= L'f')
        return ch - L'a' + 10;
    return ch >= L'A' && ch <= L'F' ? ch - L'A' + 10 : -1;
}

bool IsSpace(wchar_t ch)
{
    return ch == L' ' || (ch >= L'\t' && ch <= L'\r');
}

bool ScanHex(const wchar_t*& psz, int nMaxDigits, DWORD& nValue)
{
    while (IsSpace(*psz))
        ++psz;
    nValue = 0;
    int nDigits = 0;
    for (; nDigits < nMaxDigits && HexDigit(*psz) >= 0; ++nDigits)
        nValue = nValue << 4 | static_cast<DWORD>(HexDigit(*psz++));
    return nDigits > 0;
}

struct Field
{
    int nMaxDigits;
    wchar_t chBefore; // must stand right before the field; 0: nothing
};

constexpr Field FIELDS[] = {{8, 0}, {4, L'-'}, {4, L'-'}, {2, L'-'}, {2, 0}, {2, L'-'},
                            {2, 0}, {2, 0},    {2, 0},    {2, 0},    {2, 0}};

} // namespace

bool TextToGuid(const CString& strText, GUID& guid)
{
    guid = {};
    DWORD arrValue[std::size(FIELDS)] = {};
    const wchar_t* psz = strText;
    for (std::size_t i = 0; i < std::size(FIELDS); ++i) {
        if (FIELDS[i].chBefore && *psz++ != FIELDS[i].chBefore)
            return false;
        if (!ScanHex(psz, FIELDS[i].nMaxDigits, arrValue[i]))
            return false;
    }
    guid.Data1 = arrValue[0];
    guid.Data2 = static_cast<WORD>(arrValue[1]);
    guid.Data3 = static_cast<WORD>(arrValue[2]);
    for (std::size_t i = 0; i < std::size(guid.Data4); ++i)
        guid.Data4[i] = static_cast<BYTE>(arrValue[i + 3]);
    return true;
}

double TextToRate(const CString& strText, double dOnOverflow)
{
    double dValue = 0.0;
    return TextToReal(strText, dValue) ? dValue : dOnOverflow;
}

} // namespace splitframe
