// Opening frames: by menu command and by name. Open frames are found by walking the windows below the active
// one. Host code runs between the steps; each step looks things up again.
#include "definition/FrameStyle.h"
#include "document/BaseFrameDoc.h"
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "platform/base/Diagnostics.h"
#include "platform/base/Unicode.h"
#include "platform/docview/DocTemplate.h"
#include "platform/window/CallScope.h"

#include <algorithm>

namespace {

CBaseFrameDoc* FrameDocOf(CFrameWnd* pFrame)
{
    return DynamicDownCast<CBaseFrameDoc>(pFrame->GetActiveDocument());
}

bool ShowsFrame(CFrameWnd* pFrame, const CString& strName)
{
    const CBaseFrameDoc* pDoc = FrameDocOf(pFrame);
    return pDoc && pDoc->m_strName == strName;
}

// The length to cut a text to, so that no half of a character is left at its end.
int CutLength(const CString& strText, int nMax)
{
    if (strText.GetLength() <= nMax)
        return strText.GetLength();
    const auto isHigh = [](wchar_t unit) { return unit >= 0xD800 && unit <= 0xDBFF; };
    const auto isLow = [](wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; };
    const bool bSplits = nMax > 0 && isHigh(strText[nMax - 1]) && isLow(strText[nMax]);
    return bSplits ? nMax - 1 : nMax;
}

// Notes a frame as being made, for as long as it is.
class OpeningMark
{
public:
    OpeningMark(std::vector<CString>& arrOpening, const CString& strName) : m_arrOpening(arrOpening)
    {
        m_arrOpening.push_back(strName);
    }
    OpeningMark(const OpeningMark&) = delete;
    OpeningMark& operator=(const OpeningMark&) = delete;
    ~OpeningMark() { m_arrOpening.pop_back(); }

private:
    std::vector<CString>& m_arrOpening;
};

} // namespace

void CBaseFrameWnd::OnBaseFrameOpen(UINT nID)
{
    const CCallScope scope;
    CBaseFrameDoc* pDefinition = nullptr;
    int nStyle = 0;
    if (!FindStyleCommand(nID, pDefinition, nStyle))
        return;
    pDefinition->m_nCurStyle = nStyle;
    const CString strName = pDefinition->m_strName;
    // A unit that opens its own frame while it is made would do so without end.
    if (std::find(m_arrOpening.begin(), m_arrOpening.end(), strName) != m_arrOpening.end())
        return;

    CFrameWnd* pActive = GetActiveFrame();
    CBaseFrameDoc* pActiveDoc = FrameDocOf(pActive);
    if (pActiveDoc && !ShowsFrame(pActive, strName))
        pActiveDoc->UnActive();
    if (!SwitchOpenFrame(strName, nStyle) && GetSafeHwnd())
        OpenNewFrame(pDefinition);
}

void CBaseFrameWnd::OnBaseFrameOpen(const wchar_t* pszName)
{
    const CCallScope scope;
    const CString strName(pszName);
    if (!OpenByStyleName(strName) && !SwitchOpenFrame(strName, std::nullopt))
        OpenByFrameName(strName);
    CBaseFrameChildWnd* pActive =
        GetSafeHwnd() ? DynamicDownCast<CBaseFrameChildWnd>(GetActiveFrame()) : nullptr;
    if (pActive)
        pActive->RecalcLayout(TRUE);
}

// The command identifiers count the styles of all frames.
bool CBaseFrameWnd::FindStyleCommand(UINT nID, CBaseFrameDoc*& pDefinition, int& nStyle)
{
    if (nID < ID_FRAME_FIRST)
        return false;
    UINT nLeft = nID - ID_FRAME_FIRST;
    for (CBaseFrameDoc* pDoc : m_arrBaseFrameDoc) {
        const UINT nStyles = static_cast<UINT>(pDoc->m_arrStyle.GetSize());
        if (nLeft < nStyles) {
            pDefinition = pDoc;
            nStyle = static_cast<int>(nLeft);
            return true;
        }
        nLeft -= nStyles;
    }
    return false;
}

bool CBaseFrameWnd::OpenByStyleName(const CString& strName)
{
    UINT nID = ID_FRAME_FIRST;
    for (const CBaseFrameDoc* pDoc : m_arrBaseFrameDoc) {
        for (const CBaseFrameStyle* pStyle : pDoc->m_arrStyle) {
            if (pStyle->m_strName == strName) {
                OnBaseFrameOpen(nID);
                return true;
            }
            ++nID;
        }
    }
    return false;
}

bool CBaseFrameWnd::OpenByFrameName(const CString& strName)
{
    UINT nID = ID_FRAME_FIRST;
    for (const CBaseFrameDoc* pDoc : m_arrBaseFrameDoc) {
        if (pDoc->m_strName == strName && !pDoc->m_arrStyle.IsEmpty()) {
            OnBaseFrameOpen(nID);
            return true;
        }
        nID += static_cast<UINT>(pDoc->m_arrStyle.GetSize());
    }
    return false;
}

// Without a style the frame's current one is applied again. A hook may close the frame.
bool CBaseFrameWnd::SwitchOpenFrame(const CString& strName, std::optional<int> nStyle)
{
    CFrameWnd* pFrame = FindOpenFrame(strName);
    if (!pFrame)
        return false;
    CBaseFrameDoc* pDoc = FrameDocOf(pFrame);
    pDoc->ChangeStyle(nStyle.value_or(pDoc->m_nCurStyle), false);
    if (pFrame->GetSafeHwnd())
        pFrame->ActivateFrame(-1);
    return true;
}

// The active frame first, then the frame windows below it.
CFrameWnd* CBaseFrameWnd::FindOpenFrame(const CString& strName)
{
    for (CWnd* pWnd = GetActiveFrame(); pWnd; pWnd = pWnd->GetWindow(GW_HWNDNEXT)) {
        auto* pFrame = DynamicDownCast<CFrameWnd>(pWnd);
        if (!pFrame)
            break;
        if (ShowsFrame(pFrame, strName))
            return pFrame;
    }
    return nullptr;
}

void CBaseFrameWnd::OpenNewFrame(CBaseFrameDoc* pDefinition)
{
    if (!m_pDocTemplate)
        return;
    const OpeningMark mark(m_arrOpening, pDefinition->m_strName);
    CDocument* pNew = m_pDocTemplate->CreateNewDocument();
    auto* pDoc = DynamicDownCast<CBaseFrameDoc>(pNew);
    CFrameWnd* pFrame = nullptr;
    try {
        if (pDoc) {
            pDoc->Init(pDefinition);
            pFrame = m_pDocTemplate->CreateNewFrame(pDoc, nullptr);
        }
    } catch (...) {
        pDoc->OnCloseDocument(); // with whatever there is of its frame
        throw;
    }
    if (!pFrame) {
        Diagnostic diagnostic;
        diagnostic.strMessage = L"the document template could not make the frame";
        diagnostic.strFrame = pDefinition->m_strName;
        ReportDiagnostic(diagnostic);
        DeleteLater(pNew);
        return;
    }
    try {
        m_pDocTemplate->InitialUpdateFrame(pFrame, pDoc, TRUE);
    } catch (...) {
        // What is half made was never shown: nobody could close it.
        pFrame->DestroyWindow();
        throw;
    }
}

void CBaseFrameWnd::GetCurrentBaseFrameName(wchar_t* pszName, int nSize)
{
    if (!pszName || nSize <= 0)
        return;
    std::fill_n(pszName, nSize, L'\0');
    CBaseFrameDoc* pDoc = FrameDocOf(GetActiveFrame());
    const CString strStyle = pDoc ? CString(pDoc->GetCurrentStyleName()) : CString();
    std::copy_n(strStyle.GetString(), CutLength(strStyle, nSize - 1), pszName);
}
