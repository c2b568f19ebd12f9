// The helper's answers to the requests of units to rearrange the split tree.
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "layout/SplitLine.h"
#include "platform/window/CallScope.h"

namespace {

const CString& TextAt(std::intptr_t nAddress)
{
    return *reinterpret_cast<const CString*>(nAddress);
}

bool IsFlag(LPARAM lParam)
{
    return lParam == 0 || lParam == 1;
}

// "NAME,1": the first side of the line NAME; "NAME,0": the second.
struct LineSide
{
    explicit LineSide(const CString& str)
        : strLine(str.Left(str.GetLength() - 2)), bFirst(str.Right(1) != L"0"), bGood(str.GetLength() >= 2)
    {
    }

    CString strLine;
    bool bFirst;
    bool bGood;
};

void EnableMoveOnSide(CSplitLine& root, const LineSide& side, bool bEnable)
{
    if (side.bGood)
        root.EnableMove(side.strLine, side.bFirst, bEnable);
}

// Hooks have run: the tree may be another one, or none.
LRESULT LayOutWhen(bool bReplaced, const CBaseFrameDoc& doc)
{
    if (bReplaced && doc.m_pRoot)
        doc.m_pRoot->ModifyWindow();
    return bReplaced ? 1 : 0;
}

} // namespace

// A request whose second parameter should be a flag and is none changes nothing: it may be anything.
LRESULT CBaseFrameHelper::ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam)
{
    const bool bRequest = nMsg >= HELPER_MSG_REPLACE_OR_MOVE && nMsg <= HELPER_MSG_ENABLE_MOVE_SIDE;
    CBaseFrameDoc* pDoc = m_pDoc;
    if (!bRequest || !wParam || !pDoc || !pDoc->m_pRoot)
        return 0;
    const CCallScope scope;
    CSplitLine& root = *pDoc->m_pRoot;
    const CString strName = TextAt(static_cast<std::intptr_t>(wParam)); // hooks may free the text
    switch (nMsg) {
    case HELPER_MSG_REPLACE_OR_MOVE:
        if (!IsFlag(lParam))
            return LayOutWhen(root.Replace(strName, GetBaseUnitWnd(TextAt(lParam))), *pDoc);
        [[fallthrough]];
    case HELPER_MSG_ENABLE_MOVE:
        if (IsFlag(lParam))
            root.EnableMove(strName, lParam == 1);
        return 0;
    case HELPER_MSG_REPLACE_SIDE: {
        const LineSide side(strName);
        return side.bGood && !IsFlag(lParam)
                   ? LayOutWhen(root.Replace(side.strLine, side.bFirst, GetBaseUnitWnd(TextAt(lParam))),
                                *pDoc)
                   : 0;
    }
    default:
        if (IsFlag(lParam))
            EnableMoveOnSide(root, LineSide(strName), lParam == 1);
        return 0;
    }
}
