// Conversions between UTF-8, UTF-16 units and whole characters.
#include "platform/base/Unicode.h"

#include <clocale>
#include <cwctype>
#include <locale.h>

namespace splitframe {

namespace {

using Byte = unsigned char;

bool IsContinuation(Byte byte)
{
    return (byte & 0xC0) == 0x80;
}

// The length of the valid sequence at the start of the bytes, 0 when there is none. Overlong forms,
// surrogates and values above 10FFFF are not valid.
std::size_t SequenceLength(const Byte* p, std::size_t nLeft)
{
    const Byte lead = p[0];
    if (lead < 0x80)
        return 1;
    if (lead < 0xC2 || nLeft < 2 || !IsContinuation(p[1]))
        return 0;
    if (lead < 0xE0)
        return 2;
    if (nLeft < 3 || !IsContinuation(p[2]))
        return 0;
    if (lead < 0xF0)
        return (lead == 0xE0 && p[1] < 0xA0) || (lead == 0xED && p[1] > 0x9F) ? 0 : 3;
    if (nLeft < 4 || !IsContinuation(p[3]) || lead > 0xF4)
        return 0;
    return (lead == 0xF0 && p[1] < 0x90) || (lead == 0xF4 && p[1] > 0x8F) ? 0 : 4;
}

char32_t Sequence(const Byte* p, std::size_t nLength)
{
    const auto low = [p](std::size_t i) { return static_cast<char32_t>(p[i] & 0x3F); };
    switch (nLength) {
    case 2:
        return (static_cast<char32_t>(p[0] & 0x1F) << 6) | low(1);
    case 3:
        return (static_cast<char32_t>(p[0] & 0x0F) << 12) | (low(1) << 6) | low(2);
    case 4:
        return (static_cast<char32_t>(p[0] & 0x07) << 18) | (low(1) << 12) | (low(2) << 6) | low(3);
    default: // one ASCII byte, or a byte that stands for itself
        return p[0];
    }
}

bool IsHigh(wchar_t unit)
{
    return (static_cast<char32_t>(unit) & 0xFFFFFC00) == 0xD800;
}

bool IsLow(wchar_t unit)
{
    return (static_cast<char32_t>(unit) & 0xFFFFFC00) == 0xDC00;
}

// The character at the index, which moves past it.
char32_t NextCharacter(std::wstring_view units, std::size_t& i)
{
    const char32_t first = static_cast<char32_t>(units[i++]);
    if (i < units.size() && IsHigh(static_cast<wchar_t>(first)) && IsLow(units[i]))
        return 0x10000 + ((first - 0xD800) << 10) + (static_cast<char32_t>(units[i++]) - 0xDC00);
    return first > 0x10FFFF ? 0xFFFD : first;
}

void PutUtf8(std::string& str, char32_t ch)
{
    const auto put = [&str](char32_t byte) { str.push_back(static_cast<char>(byte)); };
    if (ch < 0x80) {
        put(ch);
    } else if (ch < 0x800) {
        put(0xC0 | (ch >> 6));
        put(0x80 | (ch & 0x3F));
    } else if (ch < 0x10000) {
        put(0xE0 | (ch >> 12));
        put(0x80 | ((ch >> 6) & 0x3F));
        put(0x80 | (ch & 0x3F));
    } else {
        put(0xF0 | (ch >> 18));
        put(0x80 | ((ch >> 12) & 0x3F));
        put(0x80 | ((ch >> 6) & 0x3F));
        put(0x80 | (ch & 0x3F));
    }
}

// Case tables of the C library for all of Unicode, whatever locale the program runs in; null where they are
// missing.
locale_t UnicodeLocale()
{
    static const locale_t locale = newlocale(LC_CTYPE_MASK, "C.UTF-8", nullptr);
    return locale;
}

} // namespace

std::size_t CountUnits(std::string_view utf8)
{
    const Byte* p = reinterpret_cast<const Byte*>(utf8.data());
    std::size_t nUnits = 0;
    for (std::size_t i = 0; i < utf8.size();) {
        const std::size_t nLength = SequenceLength(p + i, utf8.size() - i);
        nUnits += nLength == 4 ? 2 : 1;
        i += nLength == 0 ? 1 : nLength;
    }
    return nUnits;
}

std::size_t BytesOfUnits(std::string_view utf8, std::size_t nUnits)
{
    const Byte* p = reinterpret_cast<const Byte*>(utf8.data());
    std::size_t i = 0;
    for (std::size_t nPassed = 0; nPassed < nUnits && i < utf8.size();) {
        const std::size_t nLength = SequenceLength(p + i, utf8.size() - i);
        nPassed += nLength == 4 ? 2 : 1;
        i += nLength == 0 ? 1 : nLength;
    }
    return i;
}

std::size_t DecodeUtf8(std::string_view utf8, wchar_t* pUnits)
{
    const Byte* p = reinterpret_cast<const Byte*>(utf8.data());
    wchar_t* pOut = pUnits;
    for (std::size_t i = 0; i < utf8.size();) {
        if (p[i] < 0x80) {
            *pOut++ = p[i++];
            continue;
        }
        const std::size_t nLength = SequenceLength(p + i, utf8.size() - i);
        const wchar_t ch = static_cast<wchar_t>(Sequence(p + i, nLength));
        if (nLength == 4) {
            *pOut++ = HighUnit(ch);
            *pOut++ = LowUnit(ch);
        } else {
            *pOut++ = ch;
        }
        i += nLength == 0 ? 1 : nLength;
    }
    return static_cast<std::size_t>(pOut - pUnits);
}

std::string EncodeUtf8(std::wstring_view units)
{
    std::string str;
    str.reserve(units.size());
    for (std::size_t i = 0; i < units.size();)
        PutUtf8(str, NextCharacter(units, i));
    return str;
}

std::wstring JoinUnits(std::wstring_view units)
{
    std::wstring str;
    str.reserve(units.size());
    for (std::size_t i = 0; i < units.size();)
        str.push_back(static_cast<wchar_t>(NextCharacter(units, i)));
    return str;
}

wchar_t FoldCase(wchar_t unit)
{
    if (unit >= 0 && unit < 0x80)
        return unit >= L'A' && unit <= L'Z' ? static_cast<wchar_t>(unit + 32) : unit;
    const locale_t locale = UnicodeLocale();
    return locale ? static_cast<wchar_t>(towlower_l(static_cast<wint_t>(unit), locale)) : unit;
}

wchar_t UpperCase(wchar_t unit)
{
    if (unit >= 0 && unit < 0x80)
        return unit >= L'a' && unit <= L'z' ? static_cast<wchar_t>(unit - 32) : unit;
    const locale_t locale = UnicodeLocale();
    return locale ? static_cast<wchar_t>(towupper_l(static_cast<wint_t>(unit), locale)) : unit;
}

} // namespace splitframe
