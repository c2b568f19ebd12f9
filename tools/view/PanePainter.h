// What a placeholder shows: its name in a band, below it its size and place and its parameter string, as far
// as there is room. Knows a device context and a rectangle, no window.
#pragma once

#include "PaneColors.h"
#include "platform/base/Geometry.h"
#include "platform/base/String.h"
#include "platform/graphics/Font.h"

class CDC;

namespace viewer {

struct PaneTexts
{
    CString strName;
    CString strSize;
    CString strPlace;
    CString strNotes; // what else is to be said in passing
    CString strParam;
};

class PanePainter
{
public:
    PanePainter();

    /// Fills the rectangle. What does not fit is left out, long lines end in an ellipsis, and a pane of a few
    /// pixels shows its colour only.
    void Paint(CDC& dc, const CRect& rc, const PaneTexts& texts, const PaneColors& colors);

private:
    void PaintBand(CDC& dc, CRect rc, const PaneTexts& texts, const PaneColors& colors);
    void PaintBody(CDC& dc, CRect rc, const PaneTexts& texts, const PaneColors& colors);

    CFont m_fontName;
    CFont m_fontText;
};

} // namespace viewer
