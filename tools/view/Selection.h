// Which frames and styles of a layout the command line means.
#pragma once

#include "Messages.h"
#include "Options.h"

#include <vector>

class CBaseFrameWnd;

namespace viewer {

/// A style by its frame's position in the layout and its own in the frame.
struct StyleChoice
{
    int nFrame;
    int nStyle;
};

/// The frames that --frame leaves, by position. Unknown names are told as errors.
/// @return none when something is wrong
std::vector<int> ChooseFrames(const CBaseFrameWnd& frame, const Options& options, Messages& messages);

/// The styles that --style leaves of those frames; frames without any are told as warnings.
/// @return none when something is wrong
std::vector<StyleChoice> ChooseStyles(const CBaseFrameWnd& frame, const std::vector<int>& frames,
                                      const Options& options, Messages& messages);

} // namespace viewer
