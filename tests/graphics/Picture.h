// A small surface with a device context, and its pixels as text: one letter a pixel, rows joined by '/'.
#pragma once

#include "platform/graphics/DC.h"

#include <map>
#include <string>

inline constexpr COLORREF kWhite = RGB(255, 255, 255);
inline constexpr COLORREF kRed = RGB(255, 0, 0);
inline constexpr COLORREF kBlue = RGB(0, 0, 255);

struct Picture
{
    splitframe::Surface surface;
    CDC dc;

    explicit Picture(int cx = 40, int cy = 30, double dScale = 1.0) : surface(cx, cy, dScale, kWhite)
    {
        Attach({{0, 0}, splitframe::Region(surface.Bounds())});
    }

    struct Place
    {
        POINT ptOrigin;
        splitframe::Region clip;
    };
    void Attach(const Place& place)
    {
        splitframe::Canvas canvas;
        canvas.pSurface = &surface;
        canvas.ptOrigin = place.ptOrigin;
        canvas.clip = place.clip;
        dc.AttachCanvas(canvas);
    }

    // '.' white, '#' black, 'r' red, 'b' blue, '?' anything else
    std::string Text(const RECT& rc) const
    {
        const std::map<COLORREF, char> letters = {{kWhite, '.'}, {0, '#'}, {kRed, 'r'}, {kBlue, 'b'}};
        std::string str;
        for (int y = rc.top; y < rc.bottom; ++y) {
            if (y > rc.top)
                str += '/';
            for (int x = rc.left; x < rc.right; ++x) {
                const auto found = letters.find(surface.GetPixel(x, y));
                str += found == letters.end() ? '?' : found->second;
            }
        }
        return str;
    }

    // The smallest rectangle around everything that is not white.
    CRect Inked() const
    {
        CRect rc;
        for (int y = 0; y < surface.Height(); ++y)
            for (int x = 0; x < surface.Width(); ++x)
                if (surface.GetPixel(x, y) != kWhite)
                    rc.UnionRect(rc, CRect(x, y, x + 1, y + 1));
        return rc;
    }

    std::uint64_t Hash() const
    {
        std::uint64_t n = 1469598103934665603U;
        for (int y = 0; y < surface.DeviceHeight(); ++y)
            for (int x = 0; x < surface.DeviceWidth(); ++x)
                n = (n ^ (surface.Row(y)[x] & 0xFFFFFF)) * 1099511628211U;
        return n;
    }
};
