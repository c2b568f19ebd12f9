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
    COLORREF headerText;
};

PaneColors ColorsOf(const CString& strName);

/// The same hue for the pane that has the focus: a dark band with light text.
PaneColors Stronger(const PaneColors& colors);

} // namespace viewer
