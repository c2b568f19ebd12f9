// Surfaces as image surfaces of the drawing library over the same memory.
#include "platform/graphics/CairoContext.h"

#include "platform/graphics/RegionWalk.h"

#include <cairo.h>

namespace splitframe {

struct Surface::Backend
{
    cairo_surface_t* pImage;
    cairo_t* pCairo;

    static void Delete(Backend* pBackend)
    {
        cairo_destroy(pBackend->pCairo);
        cairo_surface_destroy(pBackend->pImage);
        delete pBackend;
    }
};

_cairo* CairoContext::Open(Surface& surface)
{
    if (surface.IsEmpty())
        return nullptr;
    if (!surface.m_pBackend) {
        auto* pData = reinterpret_cast<unsigned char*>(surface.Row(0));
        cairo_surface_t* pImage = cairo_image_surface_create_for_data(
            pData, CAIRO_FORMAT_RGB24, surface.DeviceWidth(), surface.DeviceHeight(),
            surface.DeviceWidth() * static_cast<int>(sizeof(std::uint32_t)));
        surface.m_pBackend = {new Surface::Backend{pImage, cairo_create(pImage)}, &Surface::Backend::Delete};
    }
    // A failed call (out of memory) leaves the state in error for good: begin afresh next time.
    if (cairo_status(surface.m_pBackend->pCairo) != CAIRO_STATUS_SUCCESS) {
        surface.m_pBackend.reset();
        return nullptr;
    }
    return surface.m_pBackend->pCairo;
}

CairoContext::CairoContext(Surface& surface, const Region& clip, const RECT& rcNear) : m_pCairo(Open(surface))
{
    if (!m_pCairo)
        return;
    cairo_surface_mark_dirty(cairo_get_target(m_pCairo)); // pixels were written behind the library's back
    cairo_identity_matrix(m_pCairo);
    cairo_reset_clip(m_pCairo);
    cairo_new_path(m_pCairo);
    ForEachOverlap(clip, rcNear, [&](const RECT& rc) {
        const RECT rcDevice = surface.ToDevice(rc);
        cairo_rectangle(m_pCairo, rcDevice.left, rcDevice.top, rcDevice.right - rcDevice.left,
                        rcDevice.bottom - rcDevice.top);
    });
    cairo_clip(m_pCairo);
    cairo_scale(m_pCairo, surface.Scale(), surface.Scale());
}

CairoContext::~CairoContext()
{
    if (m_pCairo)
        cairo_surface_flush(cairo_get_target(m_pCairo));
}

} // namespace splitframe
