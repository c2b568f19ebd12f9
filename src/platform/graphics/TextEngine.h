// Text as measured and drawn blocks of lines, for the device context. Laid-out text is kept, as laying out
// costs a hundred times what drawing does. Process-wide state of the user-interface thread. Sources of this
// folder only.
#pragma once

#include "platform/graphics/ObjectTable.h"
#include "platform/graphics/Region.h"
#include "platform/graphics/Surface.h"

#include <cstdint>
#include <string_view>

namespace splitframe {

/// The number of a font (nId is ignored); equal fonts have equal numbers for as long as the library is
/// loaded.
int InternFont(const FontData& font);

struct FontMetrics
{
    int nAscent = 0;
    int nDescent = 0;
    int nAverageWidth = 0;
    int Height() const { return nAscent + nDescent; }
};

/// What is laid out. Everything in it is part of the cache's key.
struct TextRequest
{
    enum Flags : unsigned
    {
        SingleLine = 1,
        WordBreak = 2,
        Ellipsis = 4,
        Prefix = 8,
        HidePrefix = 16
    };

    std::wstring_view text; // UTF-16 units
    int nFont = 0;          // from InternFont
    int nWidth = -1;        // logical pixels, for WordBreak and Ellipsis; -1: no limit
    unsigned nFlags = 0;
    double dScale = 1.0; // of the surface
};

/// Laid-out text. Sizes in logical pixels; a line's height is the font's.
class TextBlock
{
public:
    virtual ~TextBlock() = default;
    virtual int LineCount() const = 0;
    virtual int LineWidth(int nLine) const = 0;
    /// The widest line.
    virtual int Width() const = 0;
};

/// All 0 when no font is installed.
FontMetrics GetFontMetrics(int nFont);

/// The laid-out text, from the cache if it is there. Valid until the next call.
const TextBlock& LayOutText(const TextRequest& request);

/// Draws one line with its box's upper left corner at (x, y) of the surface, cut to the clip.
void DrawTextLine(Surface& surface, const Region& clip, const TextBlock& block, int nLine, int nFont,
                  std::int64_t x, std::int64_t y, COLORREF color);

} // namespace splitframe
