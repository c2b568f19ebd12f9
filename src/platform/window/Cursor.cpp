// System cursors by number, and the one that is shown now.
#include "platform/display/Display.h"
#include "platform/window/WindowManager.h"

#include <utility>

namespace splitframe {

namespace {
HCURSOR g_hCursor = nullptr; // one pointer, one cursor

// Cursor handles are the numbers of the system cursors.
UINT NumberOf(HCURSOR hCursor)
{
    return static_cast<UINT>(reinterpret_cast<std::uintptr_t>(hCursor));
}
} // namespace
} // namespace splitframe

HCURSOR LoadCursor(HINSTANCE, LPCWSTR pszName)
{
    for (const LPCWSTR pszKnown : {IDC_ARROW, IDC_IBEAM, IDC_WAIT, IDC_SIZEWE, IDC_SIZENS, IDC_HAND}) {
        if (pszKnown == pszName)
            return reinterpret_cast<HCURSOR>(reinterpret_cast<std::uintptr_t>(pszName));
    }
    return nullptr;
}

HCURSOR SetCursor(HCURSOR hCursor)
{
    const HCURSOR hBefore = std::exchange(splitframe::g_hCursor, hCursor);
    splitframe::CurrentDisplay().ShowCursor(splitframe::NumberOf(hCursor));
    return hBefore;
}

HCURSOR GetCursor()
{
    return splitframe::g_hCursor;
}
