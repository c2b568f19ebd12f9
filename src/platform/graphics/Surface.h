// Pixels in memory, 32 bits each: 0xFFRRGGBB once painted; the high byte has no meaning for what is shown.
// Knows no window and no device context. All coordinates are logical pixels; a surface with a scale above 1
// holds more device pixels, so that lines and text are drawn sharp on a dense screen. A logical edge at x
// lies at the device edge round(x * scale): neighbouring rectangles meet exactly at every scale.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Types.h"

#include <cstddef>
#include <cstdint>
#include <memory>

namespace splitframe {

class SPLITFRAME_PLATFORM_API Surface
{
public:
    /// Longest side in device pixels; larger sizes are cut to it.
    static constexpr int kMaxSide = 16384;
    static constexpr double MIN_SCALE = 0.25;
    static constexpr double MAX_SCALE = 8.0;

    /// A surface of cx by cy logical pixels, every pixel `color`. Sizes below 1 (or memory that the machine
    /// does not have) give an empty surface, on which drawing does nothing.
    /// @param dScale  device pixels per logical pixel, cut to MIN_SCALE .. MAX_SCALE; not a number counts as
    /// 1
    Surface(int cx, int cy, double dScale = 1.0, COLORREF color = 0);
    ~Surface();
    Surface(const Surface&) = delete;
    Surface& operator=(const Surface&) = delete;

    int Width() const { return m_cx; }
    int Height() const { return m_cy; }
    double Scale() const { return m_dScale; }
    bool IsEmpty() const { return m_pPixels == nullptr; }
    RECT Bounds() const { return {0, 0, m_cx, m_cy}; }

    int DeviceWidth() const { return m_cxDevice; }
    int DeviceHeight() const { return m_cyDevice; }
    /// The device pixels of a logical rectangle, cut to the surface; no area gives a rectangle with no area.
    RECT ToDevice(const RECT& rc) const;
    /// First pixel of a device row (0 .. DeviceHeight() - 1); DeviceWidth() pixels follow one another.
    std::uint32_t* Row(int nDeviceRow) { return m_pPixels.get() + OffsetOf(nDeviceRow); }
    const std::uint32_t* Row(int nDeviceRow) const { return m_pPixels.get() + OffsetOf(nDeviceRow); }

    /// The colour of a logical pixel (its upper left device pixel), 0xFFFFFFFF outside the surface.
    COLORREF GetPixel(int x, int y) const;
    void Fill(const RECT& rc, COLORREF color);
    /// Combines every device pixel of the rectangle with the colour by exclusive or: twice restores it.
    void Xor(const RECT& rc, COLORREF color);
    /// Copies a rectangle of `source` to the point `ptTo` of this surface; both are cut where they leave
    /// their surface. The two may be the same surface and overlap. Different scales are sampled, not
    /// filtered.
    void Copy(const Surface& source, const RECT& rcFrom, POINT ptTo);

private:
    friend class CairoContext;
    struct Backend;

    std::ptrdiff_t OffsetOf(int nDeviceRow) const { return std::ptrdiff_t{nDeviceRow} * m_cxDevice; }
    int DeviceEdge(std::int64_t n, int nLimit) const;
    void CopySampled(const Surface& source, const RECT& rcFrom, POINT ptTo);

    int m_cx = 0;
    int m_cy = 0;
    double m_dScale = 1.0;
    int m_cxDevice = 0;
    int m_cyDevice = 0;
    std::unique_ptr<std::uint32_t[], void (*)(void*)> m_pPixels;
    // The drawing library's view of the same pixels, made at first use.
    std::unique_ptr<Backend, void (*)(Backend*)> m_pBackend{nullptr, nullptr};
};

/// A colour as a painted pixel of a surface, and back.
constexpr std::uint32_t PixelFromColor(COLORREF color)
{
    return 0xFF000000U | ((color & 0xFFU) << 16) | (color & 0xFF00U) | ((color >> 16) & 0xFFU);
}
constexpr COLORREF ColorFromPixel(std::uint32_t nPixel)
{
    return ((nPixel & 0xFFU) << 16) | (nPixel & 0xFF00U) | ((nPixel >> 16) & 0xFFU);
}

} // namespace splitframe
