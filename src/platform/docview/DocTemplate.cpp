// Making documents, frames and views from their classes. A class that makes something else is unfit: what it
// made is deleted again.
#include "platform/docview/DocTemplate.h"

#include "platform/docview/Document.h"
#include "platform/docview/FrameWnd.h"
#include "platform/window/CallScope.h"

#include <algorithm>

IMPLEMENT_DYNAMIC(CDocTemplate, CCmdTarget)
IMPLEMENT_DYNAMIC(CMultiDocTemplate, CDocTemplate)

namespace {

template <class TYPE> TYPE* CreateObjectOf(const CRuntimeClass* pClass)
{
    CObject* pObject = pClass ? pClass->CreateObject() : nullptr;
    if (auto* pTyped = DynamicDownCast<TYPE>(pObject))
        return pTyped;
    delete pObject;
    return nullptr;
}

} // namespace

CDocTemplate::CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                           CRuntimeClass* pViewClass)
    : m_nIDResource(nIDResource), m_pDocClass(pDocClass), m_pFrameClass(pFrameClass), m_pViewClass(pViewClass)
{
}

CDocTemplate::~CDocTemplate()
{
    while (!m_arrDoc.IsEmpty()) {
        CDocument* pDoc = m_arrDoc[0];
        CDocTemplate::RemoveDocument(pDoc);
        if (pDoc->m_bAutoDelete && pDoc->GetViewCount() == 0)
            delete pDoc;
    }
}

CDocument* CDocTemplate::CreateNewDocument()
{
    const CCallScope scope;
    auto* pDoc = CreateObjectOf<CDocument>(m_pDocClass);
    if (pDoc)
        AddDocument(pDoc);
    return pDoc;
}

CFrameWnd* CDocTemplate::CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther)
{
    const CCallScope scope;
    auto* pFrame = CreateObjectOf<CFrameWnd>(m_pFrameClass);
    if (!pFrame)
        return nullptr;
    CCreateContext context;
    context.m_pNewViewClass = m_pViewClass;
    context.m_pCurrentDoc = pDoc;
    context.m_pNewDocTemplate = this;
    context.m_pCurrentFrame = pOther;
    context.m_pLastView = pOther ? pOther->GetActiveView() : nullptr;
    const BOOL bLoaded =
        pFrame->LoadFrame(m_nIDResource, WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE, nullptr, &context);
    return bLoaded && pFrame->GetSafeHwnd() ? pFrame : nullptr;
}

void CDocTemplate::InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible)
{
    if (pFrame)
        pFrame->InitialUpdateFrame(pDoc, bMakeVisible);
}

CDocument* CDocTemplate::OpenDocumentFile(const wchar_t* pszPathName, BOOL bMakeVisible)
{
    const CCallScope scope;
    const CString strPathName(pszPathName);
    CDocument* pDoc = CreateNewDocument();
    if (!pDoc)
        return nullptr;
    HWND hFrame = nullptr;
    try {
        CFrameWnd* pFrame = OpenFrame(pDoc, strPathName);
        hFrame = pFrame ? pFrame->GetSafeHwnd() : nullptr;
        if (pFrame)
            InitialUpdateFrame(pFrame, pDoc, bMakeVisible);
    } catch (...) {
        pDoc->OnCloseDocument(); // with whatever there is of its frame
        throw;
    }
    if (!hFrame)
        pDoc->OnCloseDocument();
    return ::IsWindow(hFrame) ? pDoc : nullptr;
}

CFrameWnd* CDocTemplate::OpenFrame(CDocument* pDoc, const CString& strPathName)
{
    if (strPathName.IsEmpty())
        return pDoc->OnNewDocument() ? CreateNewFrame(pDoc, nullptr) : nullptr;
    if (!pDoc->OnOpenDocument(strPathName))
        return nullptr;
    pDoc->SetPathName(strPathName);
    return CreateNewFrame(pDoc, nullptr);
}

int CDocTemplate::GetDocumentCount() const
{
    return m_arrDoc.GetSize();
}

CDocument* CDocTemplate::GetDocument(int nIndex) const
{
    return nIndex >= 0 && nIndex < m_arrDoc.GetSize() ? m_arrDoc[nIndex] : nullptr;
}

void CDocTemplate::AddDocument(CDocument* pDoc)
{
    if (!pDoc || pDoc->m_pTemplate == this)
        return;
    if (pDoc->m_pTemplate)
        pDoc->m_pTemplate->RemoveDocument(pDoc);
    m_arrDoc.Add(pDoc);
    pDoc->m_pTemplate = this;
}

void CDocTemplate::RemoveDocument(CDocument* pDoc)
{
    const auto* const pEntry = std::ranges::find(m_arrDoc, pDoc);
    if (pEntry == m_arrDoc.end())
        return;
    m_arrDoc.RemoveAt(static_cast<int>(pEntry - m_arrDoc.begin()));
    pDoc->m_pTemplate = nullptr;
}

CMultiDocTemplate::CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                                     CRuntimeClass* pViewClass)
    : CDocTemplate(nIDResource, pDocClass, pFrameClass, pViewClass)
{
}

CMultiDocTemplate::~CMultiDocTemplate() = default;
