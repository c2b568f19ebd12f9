// Which frames are open, in which styles, and how the user has arranged them, by names: what is opened again
// after the layout was read anew.
#pragma once

#include "platform/base/String.h"

#include <vector>

class CViewerFrame;

namespace viewer {

struct OpenFrame
{
    CString strFrame;
    CString strStyle;
    bool bFront;                 // the one that the user works in
    CString strPane;             // its pane in use; empty: none
    std::vector<CString> hidden; // parts of its tree that the user has hidden
};

/// The open frames in the order of their opening.
std::vector<OpenFrame> ListOpenFrames(const CViewerFrame& main);

/// Opens what is still defined: a style that is gone gives way to the frame's first one, with all its parts
/// shown. Without any, the layout's first frame that can be opened.
void Reopen(CViewerFrame& main, const std::vector<OpenFrame>& frames);

} // namespace viewer
