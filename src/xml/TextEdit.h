// One change of a text, told apart from making it.
#pragma once

#include "platform/base/String.h"

/// In a text, nCount characters from nPos on are to be replaced. Positions count UTF-16 units.
struct TextEdit
{
    int nPos = 0;
    int nCount = 0;
    CString strText;
};
