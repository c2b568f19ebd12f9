// The record of one unit: its name, the class of its window, where it starts, how it may be sized and framed.
// Plain data; knows no window. Made by whoever reads a layout definition, shared by every document of its
// frame.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"

/// One unit as a layout definition describes it. Lengths are pixels, rates are fractions of the holding
/// window's client area. A frame's definition document owns the records of its units, the main frame those of
/// the global units; unit windows and styles only point to them.
class SPLITFRAME_API CBaseUnitInfo : public CObject
{
public:
    CBaseUnitInfo();
    CBaseUnitInfo(const CBaseUnitInfo&) = delete;
    ~CBaseUnitInfo() override;

    /// Takes over the four size limits and the two weights; name, class, rectangle, edge rates and border
    /// stay.
    CBaseUnitInfo& operator=(CBaseUnitInfo& other);

    /// Writes or reads the record's archive form, which leaves out the global flag, the size limits and the
    /// weights: reading does not change those. What an exception interrupts is half read, and safe.
    void Serialize(CArchive& ar) override;

    /// The key by which styles, split lines, caches and the host find the unit; also the window's text.
    CString m_strName;
    /// A global unit that at least one style places: its window is lent by the main frame, not created.
    bool m_bGlobal;
    /// The class of the unit window.
    GUID m_guid;
    /// The rectangle of the window in client coordinates of the window that holds it: first the initial one,
    /// later the last one that a layout gave the unit.
    int m_cx;
    int m_cy;
    int m_x;
    int m_y;
    /// Where the four edges lie when the unit is placed by rates.
    double m_dLeftRate;
    double m_dTopRate;
    double m_dRightRate;
    double m_dBottomRate;
    /// 0: no border is drawn. 1: drawn, and the unit is placed by its edge rates. Any other value: drawn.
    int m_nBorderStyle;
    /// Size limits. A minimum equal to its maximum fixes that size.
    int m_nMaxHeight;
    int m_nMinHeight;
    int m_nMaxWidth;
    int m_nMinWidth;
    /// Weights of the unit, summed or compared over a subtree. No layout divides by them.
    double m_dHeightRate;
    double m_dWidthRate;
};
