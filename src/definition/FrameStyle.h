// The record of one style of a frame: which units it shows, a parameter string for each, and the split lines
// that arrange them. Plain data; knows no window.
#pragma once

#include "definition/SplitInfo.h"
#include "platform/base/Array.h"
#include "platform/base/Export.h"
#include "platform/base/Object.h"
#include "platform/base/String.h"
#include "platform/base/StringArray.h"

class CBaseUnitInfo;

/// A named choice and arrangement of units. Owned by the definition document of its frame.
class SPLITFRAME_API CBaseFrameStyle : public CObject
{
public:
    CBaseFrameStyle();
    CBaseFrameStyle(const CBaseFrameStyle&) = delete;
    CBaseFrameStyle& operator=(const CBaseFrameStyle&) = delete;
    /// Frees the split records. The unit records it lists stay: they belong to their document or main frame.
    ~CBaseFrameStyle() override;

    CString m_strName;
    /// Not owned. The same record may stand more than once.
    CArray<CBaseUnitInfo*, CBaseUnitInfo*> m_arrBaseUnitInfo;
    /// Owned. The first one is the root of the style's tree.
    CArray<_SPLIT_INFO*, _SPLIT_INFO*> m_arrSplitInfo;
    /// One parameter string for each entry of m_arrBaseUnitInfo, at the same index.
    CStringArray m_arrParam;
};
