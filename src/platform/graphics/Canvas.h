// What a device context draws on: the window manager fills one in for each context that it hands out.
#pragma once

#include "platform/graphics/Region.h"
#include "platform/graphics/Surface.h"
#include "platform/graphics/XorPlane.h"

#include <memory>

namespace splitframe {

struct Canvas
{
    Surface* pSurface = nullptr;          // outlives the context's use of it; null: drawing does nothing
    std::shared_ptr<const Surface> pKeep; // set where the surface may be replaced while the context lives
    POINT ptOrigin{};                     // surface coordinates of the context's point (0, 0), logical pixels
    Region clip;                          // surface coordinates; what lies outside is never touched
    XorPlane* pXorPlane = nullptr;        // not owned; exclusive-or drawing goes here instead, if set
    Region* pDamage =
        nullptr; // not owned; gets the bounds of everything drawn, in surface coordinates, if set
};

} // namespace splitframe
