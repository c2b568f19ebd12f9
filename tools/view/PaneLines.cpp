// Walks the trees of open frames.
#include "PaneLines.h"

#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "layout/SplitLine.h"

#include <algorithm>

namespace viewer {
namespace {

bool IsHidden(const CSplitLine* pSide)
{
    return pSide && !pSide->m_bShow;
}

// What lies on either side of the lines: all of a tree but its root.
std::vector<CSplitLine*> SidesOf(const CBaseFrameDoc& document)
{
    std::vector<CSplitLine*> sides;
    for (const CSplitLine* pLine : LinesOf(document))
        for (CSplitLine* pSide : {pLine->m_pFirst.Get(), pLine->m_pSecond.Get()})
            if (pSide)
                sides.push_back(pSide);
    return sides;
}

} // namespace

std::vector<CSplitLine*> LinesOf(const CBaseFrameDoc& document)
{
    std::vector<CSplitLine*> lines;
    std::vector<CSplitLine*> open{document.m_pRoot};
    while (!open.empty()) {
        CSplitLine* pLine = open.back();
        open.pop_back();
        if (!pLine || pLine->GetNodeType() == CSplitLine::NT_UNIT)
            continue;
        lines.push_back(pLine);
        for (CSplitLine* pSide : {pLine->m_pSecond.Get(), pLine->m_pFirst.Get()})
            if (pLine->Holds(pSide))
                open.push_back(pSide);
    }
    return lines;
}

// A style's lines have their names from its records; of several records with one name the tree has the first.
_SPLIT_INFO* FindRecord(const CBaseFrameDoc& document, const CSplitLine& line)
{
    if (document.m_nCurStyle < 0 || document.m_nCurStyle >= document.m_arrStyle.GetSize())
        return nullptr;
    for (_SPLIT_INFO* pRecord : document.m_arrStyle[document.m_nCurStyle]->m_arrSplitInfo)
        if (line.m_strName == pRecord->szName)
            return pRecord;
    return nullptr;
}

void LockLines(const CBaseFrameDoc& document, bool bLockAll)
{
    for (CSplitLine* pLine : LinesOf(document)) {
        const _SPLIT_INFO* pRecord = FindRecord(document, *pLine);
        const bool bMove = pRecord && pRecord->bMobile && !bLockAll && !IsHidden(pLine->m_pFirst) &&
                           !IsHidden(pLine->m_pSecond);
        pLine->EnableMove(pLine->m_strName, pLine->m_pFirst.Get() != nullptr, bMove);
    }
}

std::vector<CString> HiddenParts(const CBaseFrameDoc& document)
{
    std::vector<CString> names;
    for (const CSplitLine* pSide : SidesOf(document))
        if (IsHidden(pSide))
            names.push_back(pSide->m_strName);
    return names;
}

bool HideParts(const CBaseFrameDoc& document, const std::vector<CString>& names)
{
    bool bFound = false;
    for (CSplitLine* pSide : SidesOf(document)) {
        if (std::ranges::find(names, pSide->m_strName) == names.end())
            continue;
        pSide->m_bShow = false;
        bFound = true;
    }
    return bFound;
}

bool ShowAll(const CBaseFrameDoc& document)
{
    bool bHidden = false;
    for (CSplitLine* pSide : SidesOf(document))
        if (IsHidden(pSide))
            bHidden = pSide->m_bShow = true;
    return bHidden;
}

} // namespace viewer
