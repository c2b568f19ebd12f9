// Lists of views and the end of a document. Host code runs in every loop over views and frames: the loops
// walk copies and ask again whether an entry is still listed.
#include "platform/docview/Document.h"

#include "platform/docview/DocTemplate.h"
#include "platform/docview/FrameWnd.h"
#include "platform/docview/View.h"
#include "platform/window/CallScope.h"

#include <algorithm>
#include <vector>

IMPLEMENT_DYNAMIC(CDocument, CCmdTarget)

namespace {

std::vector<CView*> CopyOf(const CArray<CView*, CView*>& arrView)
{
    return {arrView.begin(), arrView.end()};
}

bool IsListed(const CArray<CView*, CView*>& arrView, const CView* pView)
{
    return std::ranges::find(arrView, pView) != arrView.end();
}

} // namespace

CDocument::CDocument() = default;

CDocument::~CDocument()
{
    CancelDeleteLater(this); // a host that deletes a document which waits for its turn
    for (CView* pView : m_arrView)
        pView->m_pDocument = nullptr;
    if (m_pTemplate)
        m_pTemplate->RemoveDocument(this);
}

void CDocument::SetTitle(const wchar_t* pszTitle)
{
    const CCallScope scope;
    m_strTitle = pszTitle;
    for (CView* pView : CopyOf(m_arrView)) {
        CFrameWnd* pFrame = IsListed(m_arrView, pView) ? pView->GetParentFrame() : nullptr;
        if (pFrame)
            pFrame->OnUpdateFrameTitle(TRUE);
    }
}

void CDocument::SetModifiedFlag(BOOL bModified)
{
    m_bModified = bModified;
}

void CDocument::AddView(CView* pView)
{
    if (!pView || pView->m_pDocument == this)
        return;
    const CCallScope scope;
    if (pView->m_pDocument)
        pView->m_pDocument->RemoveView(pView);
    m_arrView.Add(pView);
    pView->m_pDocument = this;
    OnChangedViewList();
}

void CDocument::RemoveView(CView* pView)
{
    const auto* const pEntry = std::ranges::find(m_arrView, pView);
    if (!pView || pEntry == m_arrView.end())
        return;
    const CCallScope scope;
    m_arrView.RemoveAt(static_cast<int>(pEntry - m_arrView.begin()));
    pView->m_pDocument = nullptr;
    OnChangedViewList();
}

int CDocument::GetViewCount() const
{
    return m_arrView.GetSize();
}

CView* CDocument::GetView(int nIndex) const
{
    return nIndex >= 0 && nIndex < m_arrView.GetSize() ? m_arrView[nIndex] : nullptr;
}

void CDocument::UpdateAllViews(CView* pSender, LPARAM lHint, CObject* pHint)
{
    const CCallScope scope;
    for (CView* pView : CopyOf(m_arrView)) {
        if (pView != pSender && IsListed(m_arrView, pView))
            pView->OnUpdate(pSender, lHint, pHint);
    }
}

BOOL CDocument::OnNewDocument()
{
    DeleteContents();
    SetModifiedFlag(FALSE);
    return TRUE;
}

void CDocument::DeleteContents() {}

BOOL CDocument::CanCloseFrame(CFrameWnd* pFrame)
{
    return IsShownOutside(pFrame) || SaveModified();
}

bool CDocument::IsShownOutside(const CFrameWnd* pFrame) const
{
    return std::ranges::any_of(m_arrView, [pFrame](const CView* pView) {
        const CFrameWnd* pOther = pView->GetParentFrame();
        return pOther && pOther != pFrame;
    });
}

BOOL CDocument::SaveModified()
{
    return TRUE;
}

void CDocument::PreCloseFrame(CFrameWnd* /*pFrame*/) {}

void CDocument::OnCloseDocument()
{
    if (m_bClosed)
        return;
    const CCallScope scope;
    m_bClosed = true;
    try {
        DestroyFrames();
    } catch (...) {
        m_bClosed = false; // what is left can be closed again
        throw;
    }
    m_bClosed = m_bAutoDelete; // a document that its host keeps may be shown and closed again
    if (m_bAutoDelete && m_arrView.IsEmpty())
        DeleteLater(this); // else the end of the last view does it
    DeleteContents();
}

void CDocument::DestroyFrames()
{
    for (CView* pView : CopyOf(m_arrView)) {
        CFrameWnd* pFrame = IsListed(m_arrView, pView) ? pView->GetParentFrame() : nullptr;
        if (!pFrame)
            continue;
        PreCloseFrame(pFrame);
        if (::IsWindow(pFrame->GetSafeHwnd()))
            pFrame->DestroyWindow();
    }
}

void CDocument::OnChangedViewList()
{
    if (!m_bAutoDelete || !m_arrView.IsEmpty())
        return;
    if (m_bClosed)
        DeleteLater(this);
    else
        OnCloseDocument();
}
