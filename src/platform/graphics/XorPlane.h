// What is drawn over a surface by exclusive or, kept apart from it: the surface holds it only while it is
// shown. Areas, not pixels: drawing, removing and keeping a line cost the same whatever its length.
#pragma once

#include "platform/graphics/Region.h"
#include "platform/graphics/Surface.h"

#include <map>

namespace splitframe {

class SPLITFRAME_PLATFORM_API XorPlane
{
public:
    /// Draws an area; drawn a second time in the same colour it is gone.
    void Toggle(const Region& area, COLORREF color);
    bool IsEmpty() const { return m_drawn.empty(); }
    /// Combines what is drawn with the pixels of a surface: done twice it restores them.
    void Combine(Surface& surface) const;
    /// Forgets what is drawn outside of a rectangle.
    void CutTo(const RECT& rc);

private:
    std::map<COLORREF, Region> m_drawn; // where each colour is drawn; none is empty
};

} // namespace splitframe
