// How values stand in a layout definition: integers, reals, GUIDs. Text in, value out.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"

namespace splitframe {

/// Eleven hexadecimal numbers with hyphens as in "6863074A-E996-4D17-A3AF-7FA2D093541B", in either case;
/// white space may stand before each, and anything behind the last.
/// @param guid  the zero GUID when the text does not match
/// @return whether it matches
SPLITFRAME_API bool TextToGuid(const CString& strText, GUID& guid);

/// A real number; one that is too large gives dOnOverflow.
SPLITFRAME_API double TextToRate(const CString& strText, double dOnOverflow);

} // namespace splitframe
