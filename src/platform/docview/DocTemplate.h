// Document templates: which classes of document, frame and view belong together, and the making of all three.
// Resource numbers are only names.
#pragma once

#include "platform/base/Array.h"
#include "platform/window/CmdTarget.h"

class CDocument;
class CFrameWnd;
struct CRuntimeClass;

class SPLITFRAME_PLATFORM_API CDocTemplate : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocTemplate)

public:
    /// Deletes the documents that delete themselves and have no view; the others go on without a template.
    ~CDocTemplate() override;
    CDocTemplate(const CDocTemplate&) = delete;
    CDocTemplate& operator=(const CDocTemplate&) = delete;

    UINT GetResourceID() const { return m_nIDResource; }

    /// Makes a document and lists it. It deletes itself with its last view; until it has one, the caller may
    /// delete it. @return null when the document class is missing or makes no document
    virtual CDocument* CreateNewDocument();

    /// Makes a frame with a view for a document, hidden and not activated.
    /// @param pDoc    may be null: then the view has no document
    /// @param pOther  a frame of the same document that the new one is modelled on, or null
    /// @return null when a class is missing or unfit, or the window failed; the document stays the caller's
    virtual CFrameWnd* CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther);

    /// Finishes and shows a new frame: CFrameWnd::InitialUpdateFrame.
    virtual void InitialUpdateFrame(CFrameWnd* pFrame, CDocument* pDoc, BOOL bMakeVisible = TRUE);

    /// Opens a file as a new document in a new frame, or starts an empty document when the path is null or
    /// empty: CreateNewDocument, CDocument::OnOpenDocument (OnNewDocument), CreateNewFrame,
    /// InitialUpdateFrame.
    /// @return the document; null when it could not be opened or shown, or was closed meanwhile. What a hook
    /// throws passes through; then nothing is left of document and frame
    virtual CDocument* OpenDocumentFile(const wchar_t* pszPathName, BOOL bMakeVisible = TRUE);

    int GetDocumentCount() const;
    /// The document at a position from 0, in the order of their making; null outside.
    CDocument* GetDocument(int nIndex) const;

    virtual void AddDocument(CDocument* pDoc);
    virtual void RemoveDocument(CDocument* pDoc);

protected:
    /// The classes are those of a document, a frame and a view; none is owned.
    CDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                 CRuntimeClass* pViewClass);

private:
    CFrameWnd* OpenFrame(CDocument* pDoc, const CString& strPathName);

    UINT m_nIDResource;
    CRuntimeClass* m_pDocClass;
    CRuntimeClass* m_pFrameClass;
    CRuntimeClass* m_pViewClass;
    CArray<CDocument*, CDocument*> m_arrDoc; // not owned; a document that is deleted takes itself out
};

/// The template of applications with several documents open at once.
class SPLITFRAME_PLATFORM_API CMultiDocTemplate : public CDocTemplate
{
    DECLARE_DYNAMIC(CMultiDocTemplate)

public:
    CMultiDocTemplate(UINT nIDResource, CRuntimeClass* pDocClass, CRuntimeClass* pFrameClass,
                      CRuntimeClass* pViewClass);
    ~CMultiDocTemplate() override;
};
