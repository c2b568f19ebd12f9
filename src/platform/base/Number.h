// Numbers in text: read and written the same way whatever the locale says. Pure functions.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"

#include <cstdint>
#include <limits>

namespace splitframe {

/// The integer at the start of the text: white space, an optional sign, decimal digits up to the first other
/// character.
/// @return 0 without digits or for null; a value outside 32 bits becomes the nearest one inside
SPLITFRAME_PLATFORM_API int TextToInt(const wchar_t* pszText);

/// The real number at the start of the text: white space, an optional sign, decimal digits with an optional
/// fraction after a full stop and an optional exponent. Hexadecimal numbers, "inf" and "nan" are no numbers
/// here.
/// @param dValue  set to the number, 0.0 without digits or for null; left alone on overflow
/// @return false when the number is too large for a double (1e999)
SPLITFRAME_PLATFORM_API bool TextToReal(const wchar_t* pszText, double& dValue);

/// The shortest text that TextToReal reads back as the same number.
SPLITFRAME_PLATFORM_API CString RealToText(double dValue);

/// The 32-bit value nearest to a 64-bit one.
constexpr int ClampToInt(std::int64_t nValue)
{
    return nValue > std::numeric_limits<std::int32_t>::max()   ? std::numeric_limits<std::int32_t>::max()
           : nValue < std::numeric_limits<std::int32_t>::min() ? std::numeric_limits<std::int32_t>::min()
                                                               : static_cast<int>(nValue);
}

/// The 32-bit value nearest to a real one, truncated toward zero; 0 for what is not a number.
constexpr int ClampToInt(double dValue)
{
    return dValue >= 2147483647.0    ? std::numeric_limits<std::int32_t>::max()
           : dValue <= -2147483648.0 ? std::numeric_limits<std::int32_t>::min()
           : dValue == dValue        ? static_cast<int>(dValue)
                                     : 0;
}

/// Sums and differences of 32-bit values that stop at the ends of the range.
constexpr int AddClamped(int a, int b)
{
    return ClampToInt(std::int64_t{a} + b);
}
constexpr int SubtractClamped(int a, int b)
{
    return ClampToInt(std::int64_t{a} - b);
}

} // namespace splitframe
