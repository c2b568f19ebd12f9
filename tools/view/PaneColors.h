// The colours of a placeholder: each unit name has its own, the same in every frame, run and machine.
#pragma once

#include "platform/base/String.h"

namespace viewer {

/// Tones of one hue, from light to dark. Dark text is readable on the first two.
struct PaneColors
{
    COLORREF body;
    COLORREF header;
    COLORREF border;
    COLORREF faintText;
    COLORREF text;
};

PaneColors ColorsOf(const CString& strName);

} // namespace viewer
