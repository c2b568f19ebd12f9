// The output of --list: what a layout file defines, as tables, and each style's tree of split lines as it
// comes out when the frame is opened. Knows records and trees; opens nothing itself.
#pragma once

#include <string>

class CBaseFrameDoc;
class CBaseFrameStyle;
class CBaseFrameWnd;

namespace viewer {

/// The number of frames and the table of global units. Call before any frame is opened: layouts write the
/// panes' rectangles back into the records.
std::string ListGlobals(const CBaseFrameWnd& frame);

/// A frame's name and the table of its units. The same goes for the moment.
std::string ListFrame(const CBaseFrameDoc& definition);

/// A style's name, its units with their parameters, and its split lines.
std::string ListStyle(const CBaseFrameStyle& style);

/// The tree of an opened document: lines and panes with the rectangles that they have now, in the view's
/// coordinates. Units that no line places follow.
std::string ListTree(const CBaseFrameDoc& document);

} // namespace viewer
