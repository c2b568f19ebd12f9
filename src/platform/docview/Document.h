// A document: a title, a changed flag, and the list of the views that show it. Documents and views know each
// other: a view is added to its document when its window is created and leaves the list when it is deleted.
// A document ends after its last view, so that a view can read it up to the end of its own destructor.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/String.h"
#include "platform/window/CmdTarget.h"

class CDocTemplate;
class CException;
class CFrameWnd;
class CView;

class SPLITFRAME_PLATFORM_API CDocument : public CCmdTarget
{
    DECLARE_DYNAMIC(CDocument)

public:
    CDocument();

    /// Leaves its template, and its views without a document.
    ~CDocument() override;
    CDocument(const CDocument&) = delete;
    CDocument& operator=(const CDocument&) = delete;

    /// TRUE: the document deletes itself once it is closed and the last view is gone. A host that owns the
    /// object sets it to FALSE.
    BOOL m_bAutoDelete = TRUE;

    const CString& GetTitle() const { return m_strTitle; }

    /// Sets the title and renews the titles of the frames that show the document. Null means empty.
    virtual void SetTitle(const wchar_t* pszTitle);

    BOOL IsModified() const { return m_bModified; }
    virtual void SetModifiedFlag(BOOL bModified = TRUE);

    /// The template that made the document, or null; not owned.
    CDocTemplate* GetDocTemplate() const { return m_pTemplate; }

    /// Adds a view. A view that another document lists moves over; null and a view already listed are
    /// ignored.
    void AddView(CView* pView);

    /// Removes a view. When that was the last one and the document deletes itself, it is closed.
    void RemoveView(CView* pView);

    int GetViewCount() const;
    /// The view at a position from 0; null outside.
    CView* GetView(int nIndex) const;

    /// Tells every view but pSender that the document has changed (CView::OnUpdate). pSender may be null:
    /// then every view is told. Views may be added and removed meanwhile.
    void UpdateAllViews(CView* pSender, LPARAM lHint = 0, CObject* pHint = nullptr);

    /// Starts the document anew: DeleteContents(), unchanged. @return TRUE, or FALSE when a derived class
    /// could not.
    virtual BOOL OnNewDocument();

    /// Frees what the document holds. The base's version does nothing.
    virtual void DeleteContents();

    /// The file that the document was opened from or saved to last; empty while there is none.
    const CString& GetPathName() const { return m_strPathName; }

    /// Notes the document's file and makes its name, without folders, the title.
    virtual void SetPathName(const wchar_t* pszPathName);

    /// Replaces what the document holds by what a file holds: DeleteContents(), then Serialize() from an
    /// archive over the file; unchanged afterwards. A platform exception is told to the user and leaves the
    /// document without contents; any other passes through, after DeleteContents().
    /// @return FALSE when the file could not be read
    virtual BOOL OnOpenDocument(const wchar_t* pszPathName);

    /// Saves the document: Serialize() to an archive over the file; unchanged afterwards. The file is
    /// replaced only once all of it is written: whatever fails, it stays as it was.
    /// @return FALSE, after telling the user, when the file could not be written
    virtual BOOL OnSaveDocument(const wchar_t* pszPathName);

    /// Tells the user, in a message box, why a file could not be read or written.
    virtual void ReportSaveLoadException(const wchar_t* pszPathName, const CException& exception,
                                         BOOL bSaving);

    /// Asked before a frame of this document closes. The base's version asks SaveModified() when the frame is
    /// the last one that shows it, and answers TRUE otherwise. @return FALSE to keep the frame
    virtual BOOL CanCloseFrame(CFrameWnd* pFrame);

    /// Asked before a document goes that may have unsaved changes. @return FALSE to keep it. The base's
    /// version has nothing to save and answers TRUE.
    virtual BOOL SaveModified();

    /// Told right before a frame that shows it is destroyed by being closed. The base's version does nothing.
    virtual void PreCloseFrame(CFrameWnd* pFrame);

    /// Closes the document: destroys every frame that shows it, without asking, and frees the document once
    /// its views are gone (see m_bAutoDelete).
    virtual void OnCloseDocument();

    /// Told after a view was added or removed. The base's version closes a document that deletes itself when
    /// its last view is gone.
    virtual void OnChangedViewList();

private:
    friend class CDocTemplate;
    friend class CFrameWnd;
    friend class CView;
    bool IsShownOutside(const CFrameWnd* pFrame) const;
    void DestroyFrames();

    CString m_strTitle;
    CString m_strPathName;
    CArray<CView*, CView*> m_arrView;    // not owned, they delete themselves
    CDocTemplate* m_pTemplate = nullptr; // not owned; clears the pointer when it goes
    BOOL m_bModified = FALSE;
    bool m_bClosed = false; // OnCloseDocument ran or runs: nobody closes it a second time
};
