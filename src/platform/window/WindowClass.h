// Window classes: what windows of a kind share. Registered once, kept for the process.
#pragma once

#include "platform/base/String.h"
#include "platform/base/Types.h"

namespace splitframe {

struct WindowClass
{
    CString strName;
    UINT nStyle = 0;
    HCURSOR hCursor = nullptr;
    HBRUSH hBrush = nullptr;
};

/// The class of that name; the plain class (double clicks, arrow cursor, no brush) for null, the empty name
/// and a name that nobody registered.
const WindowClass& FindWindowClass(LPCWSTR pszName);

} // namespace splitframe
