// Unit IDs: the numbers in parameter strings that carry a unit window from one style to another. Text and
// records only; knows no window.
#pragma once

#include "platform/base/String.h"
#include "platform/base/Types.h"

#include <vector>

class CBaseFrameStyle;

namespace splitframe {

inline constexpr int NO_UNIT_ID = -1;

/// The number behind the first "ID" and one more character; NO_UNIT_ID without "ID".
int UnitIDOf(const CString& strParam);

/// Whether an entry of a style is for a unit of that class and name and gives it an ID.
bool EntryGivesID(const CBaseFrameStyle& style, int nEntry, const GUID& guid, const CString& strName,
                  int& nID);

/// The ID that the first of these entries gives a unit, or NO_UNIT_ID. An index outside the style's lists
/// raises the invalid-argument exception.
int UnitIDInStyle(const CBaseFrameStyle& style, const std::vector<int>& arrEntry, const GUID& guid,
                  const CString& strName);

} // namespace splitframe
