// Measuring needs no window: a device context without a surface knows its font.
#include "platform/docking/BarMetrics.h"

#include "platform/base/Geometry.h"
#include "platform/base/String.h"
#include "platform/graphics/DC.h"

namespace splitframe {

COLORREF MixColors(COLORREF first, COLORREF second, int nPart)
{
    const auto mix = [nPart](int nFirst, int nSecond) {
        return (nFirst * nPart + nSecond * (100 - nPart)) / 100;
    };
    return RGB(mix(GetRValue(first), GetRValue(second)), mix(GetGValue(first), GetGValue(second)),
               mix(GetBValue(first), GetBValue(second)));
}

void SelectBarFont(CDC& dc)
{
    dc.SelectStockObject(DEFAULT_GUI_FONT);
    dc.SetBkMode(TRANSPARENT);
}

int MeasureLabel(const CString& strLabel, UINT nFormat)
{
    CDC dc;
    SelectBarFont(dc);
    CRect rc(0, 0, 0, 0);
    dc.DrawText(strLabel, &rc, DT_CALCRECT | DT_SINGLELINE | nFormat);
    return rc.Width();
}

} // namespace splitframe
