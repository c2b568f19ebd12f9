// The state of the frames as text. Whoever reads it looks for a fault: nothing here calls a host's hook, and
// lists that do not fit together are printed as they are.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameView.h"
#include "document/UnitID.h"
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "layout/SplitLine.h"
#include "layout/TreeDump.h"
#include "platform/window/WindowManager.h"
#include "unit/BaseUnitWnd.h"

#include <algorithm>
#include <sstream>

namespace {

using Units = CArray<CBaseUnitWnd*, CBaseUnitWnd*>;
using IDs = CArray<int, int>;

std::string Quoted(const CString& strText)
{
    return '"' + strText.ToUtf8() + '"';
}

// Lines of two columns under a heading.
class Block
{
public:
    explicit Block(std::string strHeading) : m_strHeading(std::move(strHeading)) {}

    void Add(std::string strLeft, std::string strRight = {})
    {
        m_nWidth = std::max(m_nWidth, strLeft.size());
        m_arrLine.emplace_back(std::move(strLeft), std::move(strRight));
    }
    std::string Text() const
    {
        std::string strText = m_strHeading + "\n";
        for (const auto& [strLeft, strRight] : m_arrLine) {
            strText += "  " + strLeft;
            if (!strRight.empty())
                strText += std::string(m_nWidth - strLeft.size() + 2, ' ') + strRight;
            strText += "\n";
        }
        return strText;
    }

private:
    std::string m_strHeading;
    std::vector<std::pair<std::string, std::string>> m_arrLine;
    std::size_t m_nWidth = 0;
};

std::string NameOf(const CBaseUnitWnd& unit)
{
    const CString& strName = unit.CSplitLine::m_strName;
    return strName.IsEmpty() ? "(unnamed)" : strName.ToUtf8();
}

std::string IDText(const IDs& arrID, int nIndex)
{
    if (nIndex >= arrID.GetSize())
        return "ID missing";
    return arrID[nIndex] == splitframe::NO_UNIT_ID ? "no ID" : "ID " + std::to_string(arrID[nIndex]);
}

std::string WindowText(const CBaseUnitWnd& unit)
{
    const HWND hUnit = unit.GetSafeHwnd();
    if (!hUnit)
        return "no window";
    std::string strText = ::IsWindowVisible(hUnit) ? "visible" : "hidden";
    if (unit.m_bActivated)
        strText += ", activated";
    if (!unit.m_pBaseUnitInfo)
        strText += ", no record";
    return strText;
}

std::string UnitsText(const std::string& strHeading, const Units& arrUnit, const IDs& arrID, int nCurrent)
{
    if (arrUnit.IsEmpty())
        return {};
    Block block(strHeading + " (" + std::to_string(arrUnit.GetSize()) + ")");
    for (int i = 0; i < arrUnit.GetSize(); ++i)
        block.Add(NameOf(*arrUnit[i]),
                  IDText(arrID, i) + ", " + WindowText(*arrUnit[i]) + (i == nCurrent ? ", current" : ""));
    return block.Text();
}

std::string StyleText(CBaseFrameDoc& doc)
{
    const wchar_t* pszStyle = doc.GetCurrentStyleName();
    return "style " + (pszStyle ? Quoted(pszStyle) : std::string("none")) + " (" +
           std::to_string(doc.m_nCurStyle + 1) + " of " + std::to_string(doc.m_arrStyle.GetSize()) + ")";
}

// The tree's own text, its rectangles in one column.
std::string TreeText(const CBaseFrameWnd& main, const CBaseFrameDoc& doc)
{
    if (!doc.m_pRoot)
        return "tree: none\n";
    const auto idOf = [&](const CSplitLine& node) -> std::string {
        const auto* pAt = std::find(doc.m_arrBaseUnitWnd.begin(), doc.m_arrBaseUnitWnd.end(), &node);
        if (node.GetNodeType() != CSplitLine::NT_UNIT)
            return {};
        if (pAt == doc.m_arrBaseUnitWnd.end())
            return main.ListsGlobalUnit(node.GetUnitWnd()) ? "global" : "not the frame's own";
        return IDText(doc.m_arrBaseUnitWndID, static_cast<int>(pAt - doc.m_arrBaseUnitWnd.begin()));
    };
    Block block("tree");
    std::istringstream lines(splitframe::DumpTree(*doc.m_pRoot, idOf));
    for (std::string strLine; std::getline(lines, strLine);) {
        const std::size_t nAt = strLine.rfind("  ");
        block.Add(strLine.substr(0, nAt), strLine.substr(nAt + 2));
    }
    return block.Text();
}

const CBaseFrameView* ViewAround(HWND hWnd)
{
    for (; hWnd; hWnd = ::GetParent(hWnd)) {
        if (const auto* pView = DynamicDownCast<CBaseFrameView>(CWnd::FromHandle(hWnd)))
            return pView;
    }
    return nullptr;
}

std::string FrameAround(HWND hWnd)
{
    const CBaseFrameView* pView = ViewAround(hWnd);
    const CBaseFrameDoc* pDoc = pView ? pView->GetFrameDoc() : nullptr;
    return pDoc ? "frame " + Quoted(pDoc->m_strName) : std::string();
}

std::string OwnerText(HWND hWnd)
{
    if (!hWnd)
        return "nobody";
    CWnd* pWnd = CWnd::FromHandle(hWnd);
    const auto* pUnit = DynamicDownCast<CBaseUnitWnd>(pWnd);
    const std::string strFrame = FrameAround(hWnd);
    if (pUnit)
        return "unit " + NameOf(*pUnit) + (strFrame.empty() ? ", at home" : " in " + strFrame);
    const std::string strClass = pWnd ? pWnd->GetRuntimeClass()->m_lpszClassName : "a window";
    return strClass + (strFrame.empty() ? "" : " in " + strFrame);
}

std::string GlobalsText(const CBaseFrameWnd& main)
{
    if (main.m_arrGlobalBaseUnitWnd.IsEmpty())
        return {};
    Block block("global units (" + std::to_string(main.m_arrGlobalBaseUnitWnd.GetSize()) + ")");
    for (const CBaseUnitWnd* pUnit : main.m_arrGlobalBaseUnitWnd) {
        const std::string strFrame = FrameAround(pUnit->GetSafeHwnd());
        block.Add(NameOf(*pUnit),
                  (strFrame.empty() ? "at home" : "in " + strFrame) + ", " + WindowText(*pUnit));
    }
    return block.Text();
}

std::string OpenFramesText(const CBaseFrameWnd& main, const CBaseFrameDoc* pActive)
{
    Block block("other open frames");
    bool bAny = false;
    for (CMDIChildWnd* pChild : main.GetChildFrames()) {
        auto* pFrame = DynamicDownCast<CBaseFrameChildWnd>(pChild);
        CBaseFrameDoc* pDoc = pFrame ? pFrame->GetFrameDoc() : nullptr;
        if (!pDoc || pDoc == pActive)
            continue;
        bAny = true;
        block.Add(Quoted(pDoc->m_strName), StyleText(*pDoc) + ", " +
                                               std::to_string(pDoc->m_arrBaseUnitWnd.GetSize()) + " units, " +
                                               std::to_string(pDoc->m_arrWndCache.GetSize()) + " cached");
    }
    return bAny ? block.Text() : std::string();
}

std::string ActiveFrameText(const CBaseFrameWnd& main, CBaseFrameDoc& doc)
{
    std::string strText = "frame " + Quoted(doc.m_strName) + ", " + StyleText(doc) + "\n";
    strText += TreeText(main, doc);
    if (doc.m_pRoot && CSplitLine::m_pRoot != doc.m_pRoot)
        strText += "  another tree is the active one\n";
    strText += UnitsText("units", doc.m_arrBaseUnitWnd, doc.m_arrBaseUnitWndID, doc.m_nCurBaseUnitWnd);
    return strText + UnitsText("cached units", doc.m_arrWndCache, doc.m_arrWndCacheID, -1);
}

} // namespace

CString CBaseFrameWnd::DumpState()
{
    auto* pFrame = GetSafeHwnd() ? DynamicDownCast<CBaseFrameChildWnd>(GetActiveFrame()) : nullptr;
    CBaseFrameDoc* pActive = pFrame ? pFrame->GetFrameDoc() : nullptr;
    std::string strText = pActive ? ActiveFrameText(*this, *pActive) : "no frame is active\n";
    strText += OpenFramesText(*this, pActive);
    for (const CBaseFrameDoc* pDoc : m_arrBaseFrameDoc)
        strText += UnitsText("made before frame " + Quoted(pDoc->m_strName) + " was opened",
                             pDoc->m_arrWndCache, pDoc->m_arrWndCacheID, -1);
    strText += GlobalsText(*this);
    strText += "focus: " + OwnerText(::GetFocus()) + "\n";
    strText += "mouse: " + OwnerText(::GetCapture()) + "\n";
    return CString::FromUtf8(strText);
}
