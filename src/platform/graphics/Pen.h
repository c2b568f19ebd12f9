// Pens: how lines are drawn. See GdiObject.h for handles and ownership.
#pragma once

#include "platform/graphics/GdiObject.h"

inline constexpr int PS_SOLID = 0;
inline constexpr int PS_DASH = 1;
inline constexpr int PS_DOT = 2;
inline constexpr int PS_NULL = 5;

/// Makes a pen; the caller owns it (DeleteObject or CPen::Attach).
/// @param nStyle  PS_SOLID, PS_DASH, PS_DOT or PS_NULL; others count as PS_SOLID
/// @param nWidth  logical pixels; below 1 counts as 1, above 1000 as 1000
SPLITFRAME_PLATFORM_API HPEN CreatePen(int nStyle, int nWidth, COLORREF color);

class SPLITFRAME_PLATFORM_API CPen : public CGdiObject
{
    DECLARE_DYNAMIC(CPen)

public:
    /// Empty until created or attached.
    CPen() = default;
    CPen(int nStyle, int nWidth, COLORREF color);

    /// FALSE, and nothing changes, when this object already holds a pen.
    BOOL CreatePen(int nStyle, int nWidth, COLORREF color);
    /// Null unless the handle is a live pen's.
    static CPen* FromHandle(HPEN hPen);
    operator HPEN() const { return static_cast<HPEN>(GetSafeHandle()); }

protected:
    bool Accepts(HGDIOBJ hObject) const override;
};
