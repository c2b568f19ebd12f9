// The layout definition loader: reads the XML text once and makes the definition documents, one for each
// frame, and the global unit records from it. It never fails half way and always ends, whatever the text:
// what is missing or contradictory is tolerated and told to the diagnostics hook, with its position in the
// text.
#pragma once

#include "frame/BaseFrameWnd.h"
#include "platform/base/Array.h"

namespace splitframe {

using FrameDocs = CArray<CBaseFrameDoc*, CBaseFrameDoc*>;
using UnitInfos = CArray<CBaseUnitInfo*, CBaseUnitInfo*>;

/// Reads a layout file (UTF-16 with a mark, or UTF-8). Appends to both lists; what is appended is the
/// caller's: the documents with their records, styles and helpers (CBaseFrameDoc::Clear, then delete) and the
/// records. What a helper's constructor throws passes through; the frames read before stay appended.
SPLITFRAME_API CLayoutLoadResult LoadLayoutFile(const wchar_t* pszFile, FrameDocs& arrDoc,
                                                UnitInfos& arrGlobal);

/// The same for text in memory; null is empty text.
SPLITFRAME_API CLayoutLoadResult LoadLayoutText(const wchar_t* pszText, FrameDocs& arrDoc,
                                                UnitInfos& arrGlobal);

} // namespace splitframe
