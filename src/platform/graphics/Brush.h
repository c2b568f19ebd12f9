// Brushes: how areas are filled. See GdiObject.h for handles and ownership.
#pragma once

#include "platform/graphics/GdiObject.h"

/// Makes a brush of one colour; the caller owns it (DeleteObject or CBrush::Attach).
SPLITFRAME_PLATFORM_API HBRUSH CreateSolidBrush(COLORREF color);

class SPLITFRAME_PLATFORM_API CBrush : public CGdiObject
{
    DECLARE_DYNAMIC(CBrush)

public:
    /// Empty until created or attached.
    CBrush() = default;
    explicit CBrush(COLORREF color);

    /// FALSE, and nothing changes, when this object already holds a brush.
    BOOL CreateSolidBrush(COLORREF color);
    /// Null unless the handle is a live brush's.
    static CBrush* FromHandle(HBRUSH hBrush);
    operator HBRUSH() const { return static_cast<HBRUSH>(GetSafeHandle()); }

protected:
    bool Accepts(HGDIOBJ hObject) const override;
};

namespace splitframe {

/// The colour that a brush fills with. Window classes also write a system colour as the number of the colour
/// plus one in place of a handle; those are understood too.
/// @return false for null, a stale handle and the stock NULL_BRUSH: they fill nothing
SPLITFRAME_PLATFORM_API bool GetBrushColor(HBRUSH hBrush, COLORREF& color);

} // namespace splitframe
