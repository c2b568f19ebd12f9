// Reads unit definitions: the children BaseUnit of the global section or of a frame.
#pragma once

#include "definition/LayoutFaults.h"
#include "definition/LayoutText.h"

#include <memory>
#include <vector>

class CBaseUnitInfo;

namespace splitframe {

/// Reads all further unit definitions of a parent element. A required element that is missing takes the value
/// of the one before it, an optional one keeps the record's default.
std::vector<std::unique_ptr<CBaseUnitInfo>> ReadUnits(LayoutText::Element& parent,
                                                      const LayoutFaults& faults);

/// Moves to a required child; tells when it is missing, and stays at the child before then.
void FindRequired(LayoutText::Element& parent, const wchar_t* pszName, const CString& strOf,
                  const LayoutFaults& faults);

} // namespace splitframe
