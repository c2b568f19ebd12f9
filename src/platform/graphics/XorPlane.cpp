// Areas by colour: exclusive or is the same in any order, so each colour is kept on its own.
#include "platform/graphics/XorPlane.h"

namespace splitframe {

void XorPlane::Toggle(const Region& area, COLORREF color)
{
    Region& drawn = m_drawn[color];
    drawn.Xor(area);
    if (drawn.IsEmpty())
        m_drawn.erase(color);
}

void XorPlane::Combine(Surface& surface) const
{
    for (const auto& [color, drawn] : m_drawn) {
        for (const RECT& rc : drawn.Rects())
            surface.Xor(rc, color);
    }
}

void XorPlane::CutTo(const RECT& rc)
{
    for (auto& [color, drawn] : m_drawn)
        drawn.Intersect(rc);
    std::erase_if(m_drawn, [](const auto& each) { return each.second.IsEmpty(); });
}

} // namespace splitframe
