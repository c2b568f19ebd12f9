// The list of window classes.
#include "platform/window/WindowClass.h"
#include "platform/window/WindowManager.h"

#include <deque>

namespace splitframe {

namespace {

// Grows by distinct classes only, of which a program has a handful; names and records stay where they are.
std::deque<WindowClass>& Classes()
{
    static std::deque<WindowClass> classes;
    return classes;
}

const WindowClass& PlainClass()
{
    static const WindowClass plain{CString(L"Wnd"), CS_DBLCLKS, LoadCursor(nullptr, IDC_ARROW), nullptr};
    return plain;
}

CString ClassName(UINT nStyle, HCURSOR hCursor, HBRUSH hBrush)
{
    CString strName;
    strName.Format(L"Wnd:%x:%x:%x", nStyle, static_cast<UINT>(reinterpret_cast<std::uintptr_t>(hCursor)),
                   static_cast<UINT>(reinterpret_cast<std::uintptr_t>(hBrush)));
    return strName;
}

} // namespace

const WindowClass& FindWindowClass(LPCWSTR pszName)
{
    if (pszName && *pszName) {
        for (const WindowClass& each : Classes()) {
            if (each.strName == pszName)
                return each;
        }
    }
    return PlainClass();
}

} // namespace splitframe

LPCWSTR AfxRegisterWndClass(UINT nClassStyle, HCURSOR hCursor, HBRUSH hbrBackground, HICON)
{
    auto& classes = splitframe::Classes();
    for (const splitframe::WindowClass& each : classes) {
        if (each.nStyle == nClassStyle && each.hCursor == hCursor && each.hBrush == hbrBackground)
            return each.strName;
    }
    classes.push_back(
        {splitframe::ClassName(nClassStyle, hCursor, hbrBackground), nClassStyle, hCursor, hbrBackground});
    return classes.back().strName;
}
