// Lines and columns: what a person needs to find a position in a text.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/String.h"

/// A place in a text, both counted from 1. A column is a whole character, also where that takes two units.
struct TextPlace
{
    int nLine;
    int nColumn;
};

/// The place of a character index, clamped to the text. Lines end with CR LF, LF or CR.
SPLITFRAME_API TextPlace FindTextPlace(const CString& strText, int nIndex);
