// The plain types that every room uses: integers of fixed width, handles, points and rectangles, GUIDs,
// colours. Parameters that may carry an address (WPARAM, LPARAM, LRESULT) are as wide as a pointer; all other
// integers have the same width on every machine.
#pragma once

#include <cstdint>
#include <cstring>

using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using DWORD = std::uint32_t;
using UINT = std::uint32_t;
using LONG = std::int32_t;
using ULONGLONG = std::uint64_t;
using BOOL = int;
using WPARAM = std::uintptr_t;
using LPARAM = std::intptr_t;
using LRESULT = std::intptr_t;
using UINT_PTR = std::uintptr_t;
using INT_PTR = std::intptr_t;
using ATOM = WORD;
using LPCWSTR = const wchar_t*;
using LPWSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
using LPVOID = void*;

inline constexpr BOOL TRUE = 1;
inline constexpr BOOL FALSE = 0;

// Handles are opaque numbers that look like pointers. They are checked at every use and never dereferenced: a
// handle whose object is gone is answered like a null handle.
using HWND = struct HWND__*;
using HMENU = struct HMENU__*;
using HDC = struct HDC__*;
using HCURSOR = struct HCURSOR__*;
using HICON = struct HICON__*;
using HBRUSH = struct HBRUSH__*;
using HGDIOBJ = void*;
using HINSTANCE = void*;

/// A colour: red in the low byte, then green, then blue; the high byte is 0.
using COLORREF = DWORD;

constexpr COLORREF RGB(int nRed, int nGreen, int nBlue)
{
    return static_cast<COLORREF>((nRed & 0xFF) | ((nGreen & 0xFF) << 8) | ((nBlue & 0xFF) << 16));
}
constexpr int GetRValue(COLORREF color)
{
    return static_cast<int>(color & 0xFF);
}
constexpr int GetGValue(COLORREF color)
{
    return static_cast<int>((color >> 8) & 0xFF);
}
constexpr int GetBValue(COLORREF color)
{
    return static_cast<int>((color >> 16) & 0xFF);
}

constexpr WORD LOWORD(std::uintptr_t value)
{
    return static_cast<WORD>(value & 0xFFFF);
}
constexpr WORD HIWORD(std::uintptr_t value)
{
    return static_cast<WORD>((value >> 16) & 0xFFFF);
}
constexpr WORD LOWORD(std::intptr_t value)
{
    return LOWORD(static_cast<std::uintptr_t>(value));
}
constexpr WORD HIWORD(std::intptr_t value)
{
    return HIWORD(static_cast<std::uintptr_t>(value));
}

/// Packs two 16-bit values: the low word first. Points are packed x low, y high, and read back with a sign.
constexpr LPARAM MAKELPARAM(int nLow, int nHigh)
{
    return static_cast<LPARAM>((static_cast<DWORD>(nLow) & 0xFFFF) |
                               ((static_cast<DWORD>(nHigh) & 0xFFFF) << 16));
}
constexpr int GET_X_LPARAM(LPARAM lParam)
{
    return static_cast<std::int16_t>(LOWORD(lParam));
}
constexpr int GET_Y_LPARAM(LPARAM lParam)
{
    return static_cast<std::int16_t>(HIWORD(lParam));
}

struct POINT
{
    LONG x;
    LONG y;
};

struct SIZE
{
    LONG cx;
    LONG cy;
};

/// Right and bottom lie just outside the rectangle.
struct RECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};

using LPRECT = RECT*;
using LPCRECT = const RECT*;

/// The name of a class: 16 bytes, compared whole.
struct GUID
{
    DWORD Data1;
    WORD Data2;
    WORD Data3;
    BYTE Data4[8];
};

inline bool operator==(const GUID& a, const GUID& b)
{
    return std::memcmp(&a, &b, sizeof(GUID)) == 0;
}

static_assert(sizeof(GUID) == 16, "GUIDs are compared as 16 bytes");
