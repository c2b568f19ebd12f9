// Conversions between the three forms of text: wchar_t with whole characters or units, UTF-16 units, UTF-8
// bytes. Pure functions over memory; they never fail and never drop anything: what is not valid is passed on
// by its number.
#pragma once

#include "platform/base/Export.h"

#include <cstddef>
#include <string>
#include <string_view>

namespace splitframe {

/// Number of UTF-16 units that UTF-8 text makes. A byte that is not part of valid UTF-8 counts as one unit.
SPLITFRAME_PLATFORM_API std::size_t CountUnits(std::string_view utf8);

/// How many bytes the first units of UTF-8 text take. A count that ends in the middle of a character takes
/// all of it.
/// @return at most utf8.size()
SPLITFRAME_PLATFORM_API std::size_t BytesOfUnits(std::string_view utf8, std::size_t nUnits);

/// Writes the units of UTF-8 text; a byte that is not part of valid UTF-8 becomes the unit of the same
/// number.
/// @param pUnits  room for CountUnits(utf8) values (utf8.size() is always enough)
/// @return the number of units written
SPLITFRAME_PLATFORM_API std::size_t DecodeUtf8(std::string_view utf8, wchar_t* pUnits);

/// UTF-8 of UTF-16 units; whole characters above FFFF are taken too; an unpaired surrogate becomes its three
/// bytes.
SPLITFRAME_PLATFORM_API std::string EncodeUtf8(std::wstring_view units);

/// Joins pairs of units to whole characters, for the compiler's own wide functions.
SPLITFRAME_PLATFORM_API std::wstring JoinUnits(std::wstring_view units);

/// How many units a value of wide text makes: two above FFFF, else one.
constexpr int UnitsOf(wchar_t ch)
{
    return static_cast<char32_t>(ch) > 0xFFFF ? 2 : 1;
}

/// The first unit of a whole character above FFFF. Values above 10FFFF are no characters: they become U+FFFD,
/// twice.
constexpr wchar_t HighUnit(wchar_t ch)
{
    const char32_t value = static_cast<char32_t>(ch);
    return static_cast<wchar_t>(value > 0x10FFFF ? 0xFFFD : 0xD800 + ((value - 0x10000) >> 10));
}

/// The second unit of a whole character above FFFF.
constexpr wchar_t LowUnit(wchar_t ch)
{
    const char32_t value = static_cast<char32_t>(ch);
    return static_cast<wchar_t>(value > 0x10FFFF ? 0xFFFD : 0xDC00 + ((value - 0x10000) & 0x3FF));
}

/// Simple, locale-independent lower case of one unit: for comparing without case.
SPLITFRAME_PLATFORM_API wchar_t FoldCase(wchar_t unit);
SPLITFRAME_PLATFORM_API wchar_t UpperCase(wchar_t unit);

} // namespace splitframe
