// The split lines of an open frame: which can be dragged, and what is hidden beside them.
#pragma once

#include "platform/base/String.h"

#include <vector>

class CBaseFrameDoc;
class CSplitLine;
struct _SPLIT_INFO;

namespace viewer {

/// The lines of a frame's tree, each before those on its sides. Units are left out.
std::vector<CSplitLine*> LinesOf(const CBaseFrameDoc& document);

/// The record that a line of a frame's tree was made from, or null.
_SPLIT_INFO* FindRecord(const CBaseFrameDoc& document, const CSplitLine& line);

/// Lets the lines of a frame be dragged that the layout makes movable, or none with bLockAll. A line with a
/// hidden side stays locked: the empty side leaves no edge to grab, and beside it the grab band would reach
/// over the neighbouring pane.
void LockLines(const CBaseFrameDoc& document, bool bLockAll);

/// The names of the parts of a frame's tree that are hidden, panes and lines.
std::vector<CString> HiddenParts(const CBaseFrameDoc& document);

/// Hides the parts of a frame's tree that have one of the names. Lays nothing out. @return whether there was
/// one
bool HideParts(const CBaseFrameDoc& document, const std::vector<CString>& names);

/// Shows every part of a frame's tree that is hidden. Lays nothing out. @return whether there was one
bool ShowAll(const CBaseFrameDoc& document);

} // namespace viewer
