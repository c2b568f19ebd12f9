// The frame window: a window around one pane (usually a view), with the frame's title, layout, command
// routing and closing. Knows views, documents and the application; MDI frames and child frames derive from
// it.
//
// Order of creation: frame and view are made hidden, the view attached to its document and active in its
// frame; nothing is activated. InitialUpdateFrame then lets the view initialise itself and shows and
// activates the frame.
#pragma once

#include "platform/base/String.h"
#include "platform/docview/Accelerator.h"
#include "platform/window/Wnd.h"

class CDocTemplate;
class CDocument;
class CFrameWnd;
class CView;
struct CRuntimeClass;

/// What a new frame is to show; handed along while the frame and its view are created. Nothing is owned.
struct CCreateContext
{
    CRuntimeClass* m_pNewViewClass = nullptr;  // class of the view to make; null: no view
    CDocument* m_pCurrentDoc = nullptr;        // document that the view is attached to
    CDocTemplate* m_pNewDocTemplate = nullptr; // template that makes the frame
    CView* m_pLastView = nullptr;              // view of the frame that the new one is modelled on
    CFrameWnd* m_pCurrentFrame = nullptr;      // that frame
};

/// A frame style for templates and LoadFrame. Without effect: titles always show the document's.
inline constexpr DWORD FWS_ADDTOTITLE = 0x00008000;

/// Identifier of the pane that fills what the frame's bars leave free.
inline constexpr UINT AFX_IDW_PANE_FIRST = 0xE900;

class SPLITFRAME_PLATFORM_API CFrameWnd : public CWnd
{
    DECLARE_DYNCREATE(CFrameWnd)

public:
    CFrameWnd();
    ~CFrameWnd() override;

    /// Where a frame goes that is created without a place of its own.
    static const CRect rectDefault;

    /// TRUE: the object deletes itself after its window. Set so for an object made with new, also through its
    /// runtime class; an object on the stack or inside another one starts with FALSE. A host that made the
    /// frame with new and deletes it itself sets it to FALSE.
    BOOL m_bAutoDelete;

    /// Creates the window, hidden unless dwStyle has WS_VISIBLE, and its pane (OnCreateClient).
    /// @param pszClassName   window class; null: the frame's own
    /// @param pszWindowName  the frame's text and the part of its title that stays; null: none
    /// @param rect           screen coordinates, or the parent's client coordinates for a child
    /// @param pszMenuName    menus are built by code; not used
    /// @param pContext       what the frame shows; null: nothing. Needed during the call only
    /// @return FALSE when the window could not be created; then an object that deletes itself is gone
    virtual BOOL Create(const wchar_t* pszClassName, const wchar_t* pszWindowName,
                        DWORD dwStyle = WS_OVERLAPPEDWINDOW, const RECT& rect = rectDefault,
                        CWnd* pParentWnd = nullptr, const wchar_t* pszMenuName = nullptr, DWORD dwExStyle = 0,
                        CCreateContext* pContext = nullptr);

    /// Creates the window as a template does. nIDResource is only a name; the application's name becomes the
    /// title. Otherwise as Create.
    virtual BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                           CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr);

    /// The frame that the user works in: the frame itself, in an MDI main frame its active child frame. Never
    /// null.
    virtual CFrameWnd* GetActiveFrame();

    /// The document of the active view, in an MDI main frame that of its active child frame; null without
    /// one.
    virtual CDocument* GetActiveDocument();

    /// The frame's active view, or null. A view stays it until its object is deleted, so that it and its
    /// document can be read while the frame is being destroyed.
    CView* GetActiveView() const { return m_pViewActive; }

    /// Makes a view of this frame its active view (null: none). With bNotify the views are told
    /// (CView::OnActivateView), first the one that was active.
    void SetActiveView(CView* pViewNew, BOOL bNotify = TRUE);

    /// Shows the frame, brings it to the top and gives it the activation and the focus.
    /// @param nCmdShow  how to show it (SW_...); -1: as it was, or normally when it was hidden
    virtual void ActivateFrame(int nCmdShow = -1);

    /// Finishes a new frame: every view in it runs OnInitialUpdate, and the frame is activated if
    /// bMakeVisible is not 0; then its title is set. An exception of a hook goes to the caller: what was
    /// reached stays.
    virtual void InitialUpdateFrame(CDocument* pDoc, BOOL bMakeVisible);

    /// Lays the frame out: bars first, then CalcWindowRect of the view with the room left, then the view is
    /// moved there. A call from within a layout is not nested; the layout runs again if the room has changed.
    /// bNotify is passed on to derived classes and not used here.
    virtual void RecalcLayout(BOOL bNotify = TRUE);

    /// The part of the frame's title that does not depend on the document.
    const CString& GetTitle() const { return m_strTitle; }
    /// Sets it and renews the title. Null means empty.
    void SetTitle(const wchar_t* pszTitle);

    /// Sets the frame's text: "title - document title", or the one of the two that is not empty. Called when
    /// the document's title or the active view changes. Without bAddToTitle: the title alone.
    virtual void OnUpdateFrameTitle(BOOL bAddToTitle);

    /// Makes the frame's pane while the frame is created. The base's version makes a view from the context.
    /// @return FALSE to give up the creation
    virtual BOOL OnCreateClient(CREATESTRUCT* lpcs, CCreateContext* pContext);

    /// Makes a view from the context as a child of this frame, without a size, and attaches it to the
    /// document. @return null when there is no class, when it is no view class, or when the window failed
    CWnd* CreateView(CCreateContext* pContext, UINT nID = AFX_IDW_PANE_FIRST);

    /// Key accelerators that the frame translates. Not owned. Null: none.
    void SetAccelerators(HACCEL hAccel) { m_hAccel = hAccel; }

    BOOL IsFrameWnd() const override;
    /// Destroys the frame without asking. See CWnd.
    BOOL DestroyWindow() override;
    BOOL PreTranslateMessage(MSG* pMsg) override;

    /// Commands go to the active view, its document, the frame, the application; the first that takes it.
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    // Objects made with new know it (m_bAutoDelete).
    static void* operator new(std::size_t nSize);
    static void* operator new(std::size_t, void* pPlace) noexcept { return pPlace; }
    static void operator delete(void* pBlock) noexcept;
    static void operator delete(void*, void*) noexcept {}

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;
    void PostNcDestroy() override;

    /// Offers a command to the active view, its document and this frame, and to nobody else.
    BOOL OfferInside(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo);

    /// For destructors of classes whose members have windows inside the frame: destroys the window while
    /// these members still live. The object does not delete itself any more.
    void EndFromDestructor();

    /// Places the frame's bars in rcRoom (client coordinates) and takes their room away. The base's version
    /// has none.
    virtual void LayoutBars(CRect& rcRoom);

    /// Places the pane in the room that the bars left: the view, asked by CalcWindowRect.
    virtual void LayoutPane(const CRect& rcRoom);

    /// A menu is about to open: every item's look is asked for, where its command would go. An item whose
    /// command nobody handles is disabled.
    LRESULT OnInitMenuPopup(WPARAM wParam, LPARAM lParam);
    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    /// Asks the document (CDocument::CanCloseFrame), then destroys the frame and, with its last frame, the
    /// document. A refusal, and a call from within a closing of the same frame, do nothing.
    void OnClose();
    void OnSize(UINT nType, int cx, int cy);
    void OnSetFocus(CWnd* pOldWnd);
    void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);

    DECLARE_MESSAGE_MAP()

private:
    friend class CView;
    BOOL CreateFrameWindow(const wchar_t* pszClassName, DWORD dwStyle, DWORD dwExStyle, const CRect& rc,
                           HWND hWndParent, CCreateContext* pContext);
    void EndWithoutWindow();
    CWnd* FindPane() const;
    void InitialiseViews();
    void LinkActiveView(CView* pView);

    CString m_strTitle;
    CView* m_pViewActive = nullptr; // not owned; a view that is deleted takes itself out
    HACCEL m_hAccel = nullptr;      // not owned
    bool m_bInLayout = false;
    bool m_bClosing = false;

    friend class CMDIFrameWnd;
    friend class CMDIChildWnd;
};
