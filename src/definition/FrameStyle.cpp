// What a style owns: its split records.
#include "definition/FrameStyle.h"

CBaseFrameStyle::CBaseFrameStyle() = default;

CBaseFrameStyle::~CBaseFrameStyle()
{
    for (const _SPLIT_INFO* pInfo : m_arrSplitInfo)
        delete pInfo;
}
