// Pixels in memory. Fills, exclusive-or and copies are done here row by row; shapes and text come from the
// drawing library, which sees the same memory (CairoContext.cpp).
#include "platform/graphics/Surface.h"

#include "platform/base/LargePages.h"
#include "platform/graphics/RegionWalk.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <cstring>

namespace splitframe {

namespace {

double CutScale(double dScale)
{
    return std::isnan(dScale) ? 1.0 : std::clamp(dScale, Surface::MIN_SCALE, Surface::MAX_SCALE);
}

int DeviceSide(int n, double dScale)
{
    return static_cast<int>(std::min(std::floor(n * dScale + 0.5), double{Surface::kMaxSide}));
}

LONG Cut(std::int64_t n, LONG nLimit)
{
    return static_cast<LONG>(std::clamp<std::int64_t>(n, 0, nLimit));
}

} // namespace

Surface::Surface(int cx, int cy, double dScale, COLORREF color)
    : m_dScale(CutScale(dScale)), m_pPixels(nullptr, &std::free)
{
    const int cxDevice = cx > 0 ? DeviceSide(cx, m_dScale) : 0;
    const int cyDevice = cy > 0 ? DeviceSide(cy, m_dScale) : 0;
    if (cxDevice < 1 || cyDevice < 1)
        return;
    // calloc leaves the pages of a large black surface untouched until they are drawn on.
    const std::size_t nPixels = static_cast<std::size_t>(cxDevice) * static_cast<std::size_t>(cyDevice);
    m_pPixels.reset(static_cast<std::uint32_t*>(std::calloc(nPixels, sizeof(std::uint32_t))));
    if (!m_pPixels)
        return;
    // A line down a large surface is in another page at each row.
    PreferLargePages(m_pPixels.get(), nPixels * sizeof(std::uint32_t));
    m_cxDevice = cxDevice;
    m_cyDevice = cyDevice;
    m_cx = std::min(cx, static_cast<int>(std::ceil(cxDevice / m_dScale)));
    m_cy = std::min(cy, static_cast<int>(std::ceil(cyDevice / m_dScale)));
    if (color != 0)
        std::fill_n(m_pPixels.get(), nPixels, PixelFromColor(color));
}

Surface::~Surface() = default;

int Surface::DeviceEdge(std::int64_t n, int nLimit) const
{
    const double dEdge = std::floor(static_cast<double>(n) * m_dScale + 0.5);
    return static_cast<int>(std::clamp(dEdge, 0.0, static_cast<double>(nLimit)));
}

RECT Surface::ToDevice(const RECT& rc) const
{
    return {DeviceEdge(rc.left, m_cxDevice), DeviceEdge(rc.top, m_cyDevice), DeviceEdge(rc.right, m_cxDevice),
            DeviceEdge(rc.bottom, m_cyDevice)};
}

COLORREF Surface::GetPixel(int x, int y) const
{
    if (x < 0 || y < 0 || x >= m_cx || y >= m_cy)
        return 0xFFFFFFFF;
    const int nColumn = std::min(DeviceEdge(x, m_cxDevice), m_cxDevice - 1);
    const int nRow = std::min(DeviceEdge(y, m_cyDevice), m_cyDevice - 1);
    return ColorFromPixel(Row(nRow)[nColumn]);
}

void Surface::Fill(const RECT& rc, COLORREF color)
{
    const RECT rcDevice = ToDevice(rc);
    if (!HasArea(rcDevice))
        return;
    // Rows are copied from the first: several times as fast as filling each.
    std::uint32_t* pFirst = Row(rcDevice.top) + rcDevice.left;
    const auto nWidth = static_cast<std::size_t>(rcDevice.right - rcDevice.left);
    std::fill_n(pFirst, nWidth, PixelFromColor(color));
    for (int y = rcDevice.top + 1; y < rcDevice.bottom; ++y)
        std::memcpy(Row(y) + rcDevice.left, pFirst, nWidth * sizeof(std::uint32_t));
}

void Surface::Xor(const RECT& rc, COLORREF color)
{
    const RECT rcDevice = ToDevice(rc);
    if (!HasArea(rcDevice))
        return;
    const std::uint32_t nMask = PixelFromColor(color) & 0x00FFFFFFU;
    for (int y = rcDevice.top; y < rcDevice.bottom; ++y) {
        std::uint32_t* pRow = Row(y);
        for (int x = rcDevice.left; x < rcDevice.right; ++x)
            pRow[x] ^= nMask;
    }
}

void Surface::Copy(const Surface& source, const RECT& rcFrom, POINT ptTo)
{
    // Cut to both surfaces in source coordinates.
    const std::int64_t dx = std::int64_t{ptTo.x} - rcFrom.left;
    const std::int64_t dy = std::int64_t{ptTo.y} - rcFrom.top;
    RECT rc = SharedRect(rcFrom, source.Bounds());
    rc = SharedRect(rc, {Cut(-dx, source.m_cx), Cut(-dy, source.m_cy), Cut(m_cx - dx, source.m_cx),
                         Cut(m_cy - dy, source.m_cy)});
    if (!HasArea(rc))
        return;
    const POINT pt{static_cast<LONG>(rc.left + dx), static_cast<LONG>(rc.top + dy)};
    if (m_dScale != source.m_dScale || m_dScale != std::floor(m_dScale))
        return CopySampled(source, rc, pt);
    const RECT rcSource = source.ToDevice(rc);
    const RECT rcTarget = ToDevice({pt.x, pt.y, pt.x + rc.right - rc.left, pt.y + rc.bottom - rc.top});
    const int nRows = std::min(rcSource.bottom - rcSource.top, rcTarget.bottom - rcTarget.top);
    const auto nBytes =
        static_cast<std::size_t>(std::min(rcSource.right - rcSource.left, rcTarget.right - rcTarget.left)) *
        sizeof(std::uint32_t);
    const bool bUpwards = this == &source && rcTarget.top > rcSource.top;
    for (int i = 0; i < nRows; ++i) {
        const int nRow = bUpwards ? nRows - 1 - i : i;
        std::memmove(Row(rcTarget.top + nRow) + rcTarget.left,
                     source.Row(rcSource.top + nRow) + rcSource.left, nBytes);
    }
}

// For surfaces of different scales, and for scales at which equal logical widths differ in device pixels by
// one.
void Surface::CopySampled(const Surface& source, const RECT& rcFrom, POINT ptTo)
{
    if (this == &source) {
        Surface part(rcFrom.right - rcFrom.left, rcFrom.bottom - rcFrom.top, m_dScale);
        part.CopySampled(source, rcFrom, {0, 0});
        return CopySampled(part, part.Bounds(), ptTo);
    }
    const RECT rcTarget =
        ToDevice({ptTo.x, ptTo.y, ptTo.x + rcFrom.right - rcFrom.left, ptTo.y + rcFrom.bottom - rcFrom.top});
    const double dFactor = source.m_dScale / m_dScale;
    const auto sourceOf = [&](int n, LONG nTo, LONG nFrom, int nLimit) {
        const double dPos = (n + 0.5 - nTo * m_dScale) * dFactor + nFrom * source.m_dScale;
        return std::clamp(static_cast<int>(dPos), 0, nLimit - 1);
    };
    for (int y = rcTarget.top; y < rcTarget.bottom; ++y) {
        const std::uint32_t* pFrom = source.Row(sourceOf(y, ptTo.y, rcFrom.top, source.m_cyDevice));
        std::uint32_t* pTo = Row(y);
        for (int x = rcTarget.left; x < rcTarget.right; ++x)
            pTo[x] = pFrom[sourceOf(x, ptTo.x, rcFrom.left, source.m_cxDevice)];
    }
}

} // namespace splitframe
