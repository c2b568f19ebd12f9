// What the parts that the library draws itself have in common (menus, bars, tabs, message boxes): one font,
// and colours mixed from the system's, so that they look like one thing. Knows device contexts; knows no
// window.
#pragma once

#include "platform/base/Geometry.h"

class CDC;
class CString;

namespace splitframe {

/// A colour between two others. @param nPart how much of the first, in hundredths
COLORREF MixColors(COLORREF first, COLORREF second, int nPart);

/// Selects the font of menus, bars and boxes; text is drawn on what is there.
void SelectLookFont(CDC& dc);

/// Width of a label in that font, in pixels. @param nFormat DT_NOPREFIX, or 0 for a label with "&"
int MeasureLabel(const CString& strLabel, UINT nFormat);

/// An angle of two thin strokes that points one step (dx, dy) to the right, left, down or up.
void DrawAngle(CDC& dc, CPoint ptCentre, int dx, int dy, COLORREF color);

/// Two crossed strokes. @param nReach  from the centre to each side
void DrawCross(CDC& dc, CPoint ptCentre, int nReach, int nWidth, COLORREF color);

} // namespace splitframe
