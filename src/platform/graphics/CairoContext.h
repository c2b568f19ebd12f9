// The drawing library's access to a surface's pixels, for the sources of this folder that draw smooth shapes
// and text. The library's own headers stay out of this one.
#pragma once

#include "platform/graphics/Region.h"
#include "platform/graphics/Surface.h"

struct _cairo;

namespace splitframe {

/// Opens a surface for smooth drawing in logical coordinates, cut to the part of the clip near a rectangle,
/// and closes it at the end of the scope. The surface keeps the drawing state, so opening is cheap.
class CairoContext
{
public:
    /// @param rcNear  surface coordinates; nothing is drawn outside
    CairoContext(Surface& surface, const Region& clip, const RECT& rcNear);
    ~CairoContext();
    CairoContext(const CairoContext&) = delete;
    CairoContext& operator=(const CairoContext&) = delete;

    /// Null when there is nothing to draw on.
    _cairo* Get() const { return m_pCairo; }

private:
    static _cairo* Open(Surface& surface);

    _cairo* m_pCairo = nullptr; // the surface owns it
};

} // namespace splitframe
