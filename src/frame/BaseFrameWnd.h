// The main frame: the application's main window. Reads the layout definition, owns the definition documents,
// the global units and the frames menu, and opens frames through the host's document template. It must be the
// application's main window: units and documents reach it there.
#pragma once

#include "platform/base/Array.h"
#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/docking/BCGPMDIFrameWnd.h"

#include <memory>
#include <optional>
#include <vector>

class CBaseFrameDoc;
class CBaseUnitInfo;
class CBaseUnitWnd;
class CMultiDocTemplate;
struct CRuntimeClass;
namespace splitframe {
class CUnitObserver;
} // namespace splitframe

/// What became of reading a layout definition.
struct CLayoutLoadResult
{
    bool bOpened = false; // the text could be read; always true for text in memory
    bool bParsed = false; // the markup reader found a root element
    CString strError;     // its message otherwise
    int nPosition =
        -1; // where the reader gave up, a character index into the text; -1: nowhere in particular
};

class SPLITFRAME_API CBaseFrameWnd : public CBCGPMDIFrameWnd
{
    DECLARE_DYNAMIC(CBaseFrameWnd)

public:
    CBaseFrameWnd();

    /// Destroys the frames menu; deletes the definition documents with all records, styles and helpers, the
    /// global unit records and the global unit windows.
    ~CBaseFrameWnd() override;

    // The menu commands that open frames.
    static constexpr UINT ID_FRAME_FIRST = 500;
    static constexpr UINT ID_FRAME_LAST = 600;

    /// Registers the host's unit and helper classes, reads a layout definition, makes the global units as
    /// hidden children of this window and builds the frames menu. Called once, after the window is created; a
    /// second call appends.
    /// @param pTemplate  makes the documents (CBaseFrameDoc), child frames and views of opened frames; not
    /// owned
    /// @param pszFile    path of the layout file; one that can't be read or parsed gives no frames (see
    ///                   GetLoadResult)
    /// @return 1, always. What a host's constructor or hook throws passes through.
    int InitializeByFile(CMultiDocTemplate* pTemplate, const wchar_t* pszFile, const GUID* pGuid,
                         CRuntimeClass* const* ppClass, int nCount, const GUID* pGuidHelper,
                         CRuntimeClass* const* ppClassHelper, int nCountHelper);

    /// The same with the layout text itself.
    int InitializeByDoc(CMultiDocTemplate* pTemplate, const wchar_t* pszText, const GUID* pGuid,
                        CRuntimeClass* const* ppClass, int nCount, const GUID* pGuidHelper,
                        CRuntimeClass* const* ppClassHelper, int nCountHelper);

    /// The same for a host that has registered its classes itself.
    int InitializeByDoc(CMultiDocTemplate* pTemplate, const wchar_t* pszText);

    /// Closes every open frame without asking its helper and deletes what Initialize... made: definitions
    /// with their records, styles and helpers, global units and the frames menu. Registered classes stay.
    /// Then Initialize... may be called again. Not from a hook of what it deletes.
    void ClearLayout();

    /// How the last Initialize... fared with its text.
    const CLayoutLoadResult& GetLoadResult() const { return m_loadResult; }

    /// Opens the frame and style of a frames-menu command; a frame that is open is switched to the style and
    /// activated. An identifier that stands for no style is ignored. What a host's hook throws while the
    /// frame is made passes through, and the half-made frame is destroyed.
    void OnBaseFrameOpen(UINT nID);

    /// Opens a frame by the name of a style or, when no style has that name, of a frame (its first style,
    /// unless it is open already: then the one that it shows). Names are compared exactly. Whatever came of
    /// it, the active frame is laid out. What hooks throw passes through, and the invalid-argument exception
    /// of an open frame whose current style is none of its styles.
    virtual void OnBaseFrameOpen(const wchar_t* pszName);

    /// The name of the current style of the active frame.
    /// @param pszName  receives the name, terminated; one that is too long is cut, but never between the two
    ///                 halves of a character. Without an active document or style all zeros
    /// @param nSize    its size in characters; 0 or less: nothing is written
    void GetCurrentBaseFrameName(wchar_t* pszName, int nSize);

    /// The first definition document of that name, or null. Owned by this frame.
    CBaseFrameDoc* FindBaseFrameDoc(CString strName);

    /// The first global unit window whose record has that name, or null. Owned by this frame.
    CBaseUnitWnd* FindGlobalBaseUnitWnd(CString strName);

    /// Passes a command to every global unit. @return 1 when the last one answered other than 0, else 0
    LRESULT ProcessCommand(UINT nCmd, LPARAM lParam);

    /// The text of the element AppSite below the root of an XML text, or "http://localhost/" without one.
    static CString GetAppSite(const wchar_t* pszText);

    /// The state of the frames as text for people who look for a fault in a layout: the active frame with its
    /// style, its tree of lines and panes (rates, limits, unit IDs, rectangles in the view) and its units;
    /// the units that wait in caches; the global units and where they stand; the other open frames; who has
    /// the focus and the mouse. Lines end with a line feed. Changes nothing, and may be called at any time,
    /// also from a debugger.
    CString DumpState();

    // What is loaded, for tools that show it. Owned by this frame, not to be changed.
    const CArray<CBaseFrameDoc*, CBaseFrameDoc*>& GetBaseFrameDocs() const { return m_arrBaseFrameDoc; }
    const CArray<CBaseUnitInfo*, CBaseUnitInfo*>& GetGlobalBaseUnitInfos() const
    {
        return m_arrGlobalBaseUnitInfo;
    }

    // For the library's documents.

    /// Whether a pointer still is one of the global unit windows.
    bool ListsGlobalUnit(const CBaseUnitWnd* pUnit) const;

    /// Gives the frame in front its tree and its global units again, and lays it out.
    void GiveFrontItsOwn();

    /// Makes a global unit a hidden child of this window again: in no tree, notifying nobody.
    void TakeHome(CBaseUnitWnd* pUnit);

    BOOL LoadFrame(UINT nIDResource, DWORD dwDefaultStyle = WS_OVERLAPPEDWINDOW | FWS_ADDTOTITLE,
                   CWnd* pParentWnd = nullptr, CCreateContext* pContext = nullptr) override;

    CMultiDocTemplate* m_pDocTemplate = nullptr;              // not owned
    CArray<CBaseFrameDoc*, CBaseFrameDoc*> m_arrBaseFrameDoc; // definition documents, owned
    HMENU m_hBaseFrameMenu = nullptr;                         // the frames menu, owned; for the host to show
    CArray<CBaseUnitInfo*, CBaseUnitInfo*> m_arrGlobalBaseUnitInfo; // owned
    CArray<CBaseUnitWnd*, CBaseUnitWnd*> m_arrGlobalBaseUnitWnd; // owned; a unit deleted elsewhere leaves it

protected:
    BOOL PreCreateWindow(CREATESTRUCT& cs) override;

    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    void OnActivate(UINT nState, CWnd* pWndOther, BOOL bMinimized);
    void OnSetFocus(CWnd* pOldWnd);

    DECLARE_MESSAGE_MAP()

private:
    using FrameDocs = CArray<CBaseFrameDoc*, CBaseFrameDoc*>;
    using UnitInfos = CArray<CBaseUnitInfo*, CBaseUnitInfo*>;

    static CLayoutLoadResult LoadFile(const wchar_t* pszFile, FrameDocs& arrDoc, UnitInfos& arrGlobal);
    static CLayoutLoadResult LoadDoc(const wchar_t* pszText, FrameDocs& arrDoc, UnitInfos& arrGlobal);
    int FinishInitialize(CMultiDocTemplate* pTemplate, int nFirstGlobal);
    void CreateGlobalUnits(int nFirst);
    void DeleteLayout();
    void BuildFramesMenu();
    bool FindStyleCommand(UINT nID, CBaseFrameDoc*& pDefinition, int& nStyle);
    bool OpenByStyleName(const CString& strName);
    bool SwitchOpenFrame(const CString& strName, std::optional<int> nStyle);
    bool OpenByFrameName(const CString& strName);
    CFrameWnd* FindOpenFrame(const CString& strName);
    void OpenNewFrame(CBaseFrameDoc* pDefinition);

    CLayoutLoadResult m_loadResult;
    std::vector<CString> m_arrOpening;                      // frames that are being made, outermost first
    std::unique_ptr<splitframe::CUnitObserver> m_pObserver; // takes deleted units out of the list
};
