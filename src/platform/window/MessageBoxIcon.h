// The icons of message boxes, drawn with lines and shapes.
#pragma once

#include "platform/base/Geometry.h"

class CDC;

namespace splitframe {

inline constexpr int BOX_ICON_SIZE = 32;

/// Whether a type (MB_ values) asks for an icon.
bool HasBoxIcon(UINT nType);

/// Draws it with its upper left corner at a point; nothing for a type without.
void DrawBoxIcon(CDC& dc, UINT nType, CPoint pt);

} // namespace splitframe
