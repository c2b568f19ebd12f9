// Fonts: face, size, weight, slant. See GdiObject.h for handles and ownership. Characters that the face lacks
// are drawn with a fallback font; with no font installed at all text takes no room and draws boxes or
// nothing.
#pragma once

#include "platform/graphics/GdiObject.h"

inline constexpr int FW_NORMAL = 400;
inline constexpr int FW_BOLD = 700;

/// Makes a font; the caller owns it (DeleteObject or CFont::Attach).
/// @param nHeight  size of the em square in logical pixels, either sign; 0 is the default size (12); above
/// 500
///                 counts as 500
/// @param nWeight  100 to 1000; 0 counts as FW_NORMAL
/// @param pszFace  family name; null or empty is the default face. An unknown name gets the nearest font
SPLITFRAME_PLATFORM_API HFONT CreateFont(int nHeight, LPCWSTR pszFace, int nWeight = FW_NORMAL,
                                         bool bItalic = false, bool bUnderline = false);

class SPLITFRAME_PLATFORM_API CFont : public CGdiObject
{
    DECLARE_DYNAMIC(CFont)

public:
    /// Empty until created or attached.
    CFont() = default;

    /// As the function CreateFont. FALSE, and nothing changes, when this object already holds a font.
    BOOL CreateFont(int nHeight, LPCWSTR pszFace, int nWeight = FW_NORMAL, bool bItalic = false,
                    bool bUnderline = false);
    /// @param nTenths  size in tenths of a point, 96 logical pixels an inch
    BOOL CreatePointFont(int nTenths, LPCWSTR pszFace);
    /// Null unless the handle is a live font's.
    static CFont* FromHandle(HFONT hFont);
    operator HFONT() const { return static_cast<HFONT>(GetSafeHandle()); }

protected:
    bool Accepts(HGDIOBJ hObject) const override;
};

namespace splitframe {

/// Frees every cached text layout and font; the next text builds them anew. Runs by itself when the library
/// is unloaded. Not while a device context is drawing.
SPLITFRAME_PLATFORM_API void ReleaseFontResources();

} // namespace splitframe
