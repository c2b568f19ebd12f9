// The frame document: one frame's unit records, styles and helper and, once the frame is shown, the unit
// windows of its current style arranged in a split tree inside one view. Holds the process-wide registry of
// the host's unit and helper classes, too.
//
// A document plays one of two roles. A definition document is made by the layout loader, owns the frame's
// records, styles and helper, and is never shown. An opened document is made by the host's template, is
// initialised from a definition document and shares what that one owns.
//
// Document, view, helper and frames know each other: a unit's hook reaches the document through any of them.
#pragma once

#include "layout/SplitLineLink.h"
#include "platform/base/Array.h"
#include "platform/base/Export.h"
#include "platform/base/Geometry.h"
#include "platform/base/Map.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "platform/docview/Document.h"

#include <functional>
#include <memory>
#include <optional>
#include <vector>

class CBaseFrameHelper;
class CBaseFrameStyle;
class CBaseFrameView;
class CBaseUnitInfo;
class CBaseUnitWnd;
class CSplitLine;
struct CRuntimeClass;
struct _SPLIT_INFO;

namespace splitframe {
class CUnitObserver;
class DocumentList;
class LineNames;
class NewUnit;
class RecordNames;
class SideNumbers;
class UnitNames;
struct SplitSides;
} // namespace splitframe

/// A frame in one piece, for hosts that make frames by code. Nothing is owned.
struct CBaseFrame
{
    CString strName;
    GUID guidHelper = {};
    CArray<CBaseUnitInfo*, CBaseUnitInfo*> arrBaseUnitInfo;
    CArray<CBaseFrameStyle*, CBaseFrameStyle*> arrStyle;
};

class SPLITFRAME_API CBaseFrameDoc : public CDocument
{
    DECLARE_DYNCREATE(CBaseFrameDoc)

public:
    CBaseFrameDoc();

    /// Deletes the helper if this document made it, the split tree, and the windows of the cache that no
    /// other document lists. Records and styles go with Clear(), never here.
    ~CBaseFrameDoc() override;

    // The registry of the host's classes, one for the whole process: the library never names a host's class,
    // and a layout definition knows it by GUID only. It starts empty and only grows. Positions are the order
    // of registration; of two entries with one GUID the first wins.

    /// Registers unit classes and helper classes, the i-th GUID with the i-th class. A count of 0 or less
    /// registers nothing; a null class makes its GUID unknown.
    /// @return 1, always
    static int Initialize(const GUID* pGuid, CRuntimeClass* const* ppClass, int nCount,
                          const GUID* pGuidHelper, CRuntimeClass* const* ppClassHelper, int nCountHelper);

    /// Registers the class of one object under the GUID that the object answers. Null registers nothing.
    /// @return the object, which is neither kept nor owned
    static CBaseUnitWnd* RegisterBaseWnd(CBaseUnitWnd* pUnit);
    static CBaseFrameHelper* RegisterBaseHelper(CBaseFrameHelper* pHelper);

    /// The class registered for a GUID, or null.
    static CRuntimeClass* GetRCBaseUnit(GUID guid);
    static CRuntimeClass* GetRCHelper(GUID guid);

    /// The unit GUID at a position; outside the list the invalid-argument exception.
    static GUID GetGuid(int nPos);

    static CArray<GUID, const GUID&> m_arrGuid;
    static CMap<int, int, CRuntimeClass*, CRuntimeClass*> m_mapGuidIndex2RCBaseUnit;
    static CArray<GUID, const GUID&> m_arrGuidHelper;
    static CMap<int, int, CRuntimeClass*, CRuntimeClass*> m_mapGuidIndex2RCHelper;

    // Initialisation. Every Init appends to the lists that the document already has. Passing one of the
    // document's own lists, or the document itself, raises the invalid-argument exception.

    /// Sets the name and appends records and styles; a count of 0 or less appends nothing. Ownership of
    /// records and styles passes to the document in the sense of Clear().
    void Init(const wchar_t* pszName, CBaseUnitInfo** ppInfo, int nInfo, CBaseFrameStyle** ppStyle,
              int nStyle);
    void Init(const wchar_t* pszName, CArray<CBaseUnitInfo*, CBaseUnitInfo*>& arrInfo,
              CArray<CBaseFrameStyle*, CBaseFrameStyle*>& arrStyle);

    /// As above, and makes the frame's helper, which the document owns. A GUID that stands for no usable
    /// helper class gets a CBaseFrameHelper.
    void Init(const wchar_t* pszName, CArray<CBaseUnitInfo*, CBaseUnitInfo*>& arrInfo,
              CArray<CBaseFrameStyle*, CBaseFrameStyle*>& arrStyle, GUID guidHelper);
    void Init(CBaseFrame* pFrame);

    /// Makes this an opened document of a definition document: takes its name, current style and helper, and
    /// appends its records, styles and cached windows, all of them shared. The definition document must
    /// outlive it; when it goes first, this document gives up what it shares.
    void Init(CBaseFrameDoc* pDefinition);

    // Archives. A frame's archive holds its name, its unit records, its styles as lists of unit names, and
    // the current style; no split lines, parameters, size limits or helper.

    /// Writes the frame to an archive, or reads one and appends its records and styles to those that are
    /// there. A style entry that names none of the document's records places the global unit of that name;
    /// without one it is dropped. What is read belongs to this document: Clear() frees it, and so does the
    /// closing of the document.
    /// @throw CArchiveException for an archive that ends too early; what was read so far stays
    void Serialize(CArchive& ar) override;

    /// Completes what was read from an archive, so that it can be shown: split lines, parameters and size
    /// limits come from the main frame's definition of the same frame name, for styles and units of the same
    /// name, and stay as they are for others; a unit without a parameter gets the empty one. A current style
    /// outside the list becomes the first, and a document without a helper gets one of its own, of the class
    /// that the definition's has. What is complete already stays as it is.
    /// @return whether the main frame has a definition of that name
    bool TakeFromDefinition();

    /// Opens a frame that was saved (Serialize, then TakeFromDefinition). The document is then shown like any
    /// other: CDocTemplate::OpenDocumentFile does both.
    /// @return FALSE, after telling the user, when the file can not be read or holds no style
    BOOL OnOpenDocument(const wchar_t* pszPathName) override;

    /// Frees what was read from archives.
    void DeleteContents() override;

    virtual int GetBaseUnitInfoCount();
    /// The record at a position; outside the list the invalid-argument exception.
    virtual CBaseUnitInfo* GetBaseUnitInfo(int nIndex);
    /// The first record of that name, compared exactly, or null.
    virtual CBaseUnitInfo* GetBaseUnitInfo(const wchar_t* pszName);

    /// Makes the frame's name the document's title.
    virtual void SetTitle();
    using CDocument::SetTitle;

    /// Makes or adopts the unit windows of the current style and builds its split tree; lays nothing out. The
    /// view calls it once, from its initial update. Units' hooks run; when one of them destroys the view, the
    /// rest is left undone. A record whose class is unknown or unfit is skipped.
    /// @param pView  parent of the windows; may be null, then they get no parent
    /// A current style outside the list, or a style with fewer parameters than units, raises the
    /// invalid-argument exception. What a unit's hook throws passes through; that unit is deleted.
    virtual void Create(CBaseFrameView* pView);

    /// ChangeStyle(int, bool) by name, case ignored; the first style of that name is taken, and nothing
    /// happens when it is the current one.
    /// @return false when the frame has no style of that name; then nothing has changed
    virtual bool ChangeStyle(const wchar_t* pszStyle);

    /// Switches the open frame to another of its styles. A unit that the new style names by the unit ID that
    /// it has now stays the same window, visible all along; the others are hidden and kept in the cache, and
    /// missing ones are taken from there or made. In this order: OnStyleChange(false) of the old units,
    /// OnStyleInitial and OnCalcWindowRect of the helper, OnStyleChange(true) of the new units, the focus to
    /// the first one, which becomes the current unit, and the layout of the new tree in the whole client area
    /// of the view; the frame's next layout leaves the view's edge free again
    /// (CBaseFrameView::CalcWindowRect), at once when the main frame made the switch. A switch to the current
    /// style only takes the style's global units into the view again. A switch that a hook asks for while
    /// units are being made or exchanged is carried out when that is done: the last one asked for counts. A
    /// hook that closes the frame ends the switch.
    /// @param bHandleStyle  tells the global units of the style the frame's name (CBaseUnitWnd::HandleStyle)
    /// An index outside the list raises the invalid-argument exception, and nothing changes; so does a style
    /// with fewer parameters than units, after the old units have left. What a hook throws passes through.
    /// Both leave the frame with the new style and without its tree, until the next switch.
    virtual void ChangeStyle(int nStyle, bool bHandleStyle);

    virtual int GetBaseUnitWndCount();
    /// The first of the document's own windows whose record has that name, compared exactly, or null.
    virtual CBaseUnitWnd* GetBaseUnitWnd(const wchar_t* pszName);
    /// The document's own window at a position; outside the list the invalid-argument exception.
    virtual CBaseUnitWnd* GetBaseUnitWnd(int nIndex);
    /// The first of the document's own windows whose record's rectangle holds the point strictly inside; view
    /// client coordinates. Null if none. A current style outside the list raises the invalid-argument
    /// exception.
    virtual CBaseUnitWnd* GetBaseUnitWnd(CPoint pt);

    virtual int GetCurrentBaseUnitWnd();
    /// Makes a unit current and gives it the focus. A position outside the list is stored and then raises the
    /// invalid-argument exception.
    virtual void SetCurrentBaseUnitWnd(int nIndex);

    virtual int GetWndCacheCount();
    /// The cached window at a position; outside the list the invalid-argument exception.
    virtual CBaseUnitWnd* GetWndCache(int nIndex);

    BOOL OnNewDocument() override;

    /// Makes this document's split tree the active one (CSplitLine::m_pRoot).
    void SetRoot();

    /// The current style's name, or null when the current style lies outside the list. Valid until the style
    /// is renamed or deleted.
    const wchar_t* GetCurrentStyleName();

    /// Whether a text is the name of the frame or of one of its styles, compared exactly.
    bool FindCaption(CString strCaption);

    /// Tells every unit window, then the helper, that the frame is no longer the one in front
    /// (ProcessActivate2).
    void UnActive();

    /// Asks the frame that shows the document to close (WM_CLOSE, sent). Nothing happens without a view.
    void Close();

    /// Deletes the styles and unit records. Only for definition documents and for what was read from an
    /// archive; documents opened from this one give up the records and styles they share.
    void Clear();

    /// Deletes the split tree and the cached windows. The view calls it at its end.
    void DestroyBaseFrameView();

    /// A unit window of this frame by name, also while the frame is not open: one of the cache, or a new one,
    /// made as a hidden child of the main window and kept in the cache until a frame takes it over.
    /// @return null when no style lists a unit of that name that is not global (case ignored), or when its
    /// class is unknown. The document keeps the window.
    CBaseUnitWnd* CreateBaseUnitWnd(const wchar_t* pszName);

    // For the library's own loader, view and frames.

    /// Faults in the records and styles were told when their text was read; opening a frame tells them no
    /// more.
    void FaultsAreTold() { m_bFaultsTold = true; }

    /// Calls a function for every own unit window of now, first to last, less those that leave the list
    /// meanwhile.
    void ForEachUnit(const std::function<void(CBaseUnitWnd*)>& fn);

    /// Whether a layout of the view would place anything: own units, or global units that stand in it now.
    bool HasUnitsToLayOut();

    /// Takes the current style's global units into the view again, from wherever another frame has them, and
    /// back into their panes. The activation of the child frame calls it.
    void AdoptGlobalUnits();

    /// Gives every global unit that stands in the view back to the main frame, before the view's window dies.
    /// @return whether there was one
    bool SendGlobalUnitsHome();

    /// The view's window is about to die: nothing of this document is active any more.
    /// @return whether it held a global unit or the active split tree, which the frame in front may miss
    bool ViewIsDying();

    // The fields are open to hosts' derived classes and to the library's view, helper and frames. Whoever
    // takes a window out of a list takes its unit ID out of the list beside it.

    CString m_strName;                                        // the frame's name, and its document's title
    bool m_bAutoDeleteHelper = false;                         // this document made the helper and deletes it
    CBaseFrameHelper* m_pHelper = nullptr;                    // owned only with m_bAutoDeleteHelper
    CArray<CBaseUnitInfo*, CBaseUnitInfo*> m_arrBaseUnitInfo; // freed by Clear()
    CArray<CBaseFrameStyle*, CBaseFrameStyle*> m_arrStyle;    // freed by Clear()
    int m_nCurStyle = 0;
    bool m_bActive = false;                                // the frame's child window is the active one
    CArray<CBaseUnitWnd*, CBaseUnitWnd*> m_arrBaseUnitWnd; // of the current style; deleted by the view's end
    CSplitLine* m_pRoot = nullptr;                         // owned, with the lines below it
    CBaseFrameView* m_pView = nullptr;                     // not owned
    int m_nCurBaseUnitWnd = 0;
    CArray<CBaseUnitWnd*, CBaseUnitWnd*> m_arrWndCache; // deleted by DestroyBaseFrameView or the destructor
    CArray<int, int> m_arrWndCacheID;                   // unit ID of each cached window
    CArray<int, int> m_arrBaseUnitWndID;                // unit ID of each window of m_arrBaseUnitWnd

protected:
    /// What a split line's side names: a split line of the style (its node), a window of this document, a
    /// global unit, which is then adopted, or the window that came from another style in place of the unit of
    /// that name. Null if nothing has that name.
    /// @param arrNode  the nodes being linked, one for each of the style's split lines
    CSplitLine* GetObjFromName(CArray<CSplitLine*, CSplitLine*>& arrNode, CBaseFrameStyle* pStyle,
                               const wchar_t* pszName);

    // Unit IDs and caches. A unit ID is the number behind "ID" and one more character in a unit's parameter
    // string; it carries a window from one style to another. -1: no ID, never found by ID.

    /// Reads the unit ID that the current style gives a window (same class GUID and name).
    /// @param nID  left alone when the style gives none
    void GetCurrentBaseUnitWndID(CBaseUnitWnd* pUnit, int& nID);

    /// @return 1 when a style names that unit ID, else 0
    int IsSameWnd(int nStyle, int nID);

    /// Appends all windows of the current style, with their IDs, to the cache, but for those that are in it.
    void UpdateBaseUnitWndCache();

    /// Takes the first cached window of that name (exact) out of the cache. Null if none.
    CBaseUnitWnd* GetBaseUnitWndCache(CString strName);

    /// Takes the first cached window of that ID into the view, shows it, and takes it out of the cache.
    /// @return 1 when found, else 0; then *ppUnit is left alone
    int GetBaseUnitWndCache(int nID, CBaseUnitWnd** ppUnit);

    /// Adopts the main frame's global unit of that name into this document's view.
    /// @param ppUnit         set to the unit, or null
    /// @param bHandleStyle   tells the unit the frame's name (CBaseUnitWnd::HandleStyle)
    /// @return 1 when the main frame has the unit, else 0
    int GetBaseUnitWndGlobalCache(CString strName, CBaseUnitWnd** ppUnit, bool bHandleStyle);

    DECLARE_MESSAGE_MAP()

private:
    friend class splitframe::DocumentList;

    // Where a global unit belongs in the tree. The pane counts as empty while another frame has the unit.
    struct GlobalPane
    {
        CString strName;
        splitframe::CSplitLineLink line;
        bool bFirst;
    };

    // A unit that a switch carried over into the place of another one.
    struct CarriedUnit
    {
        CString strEntry; // the unit that the style lists there
        splitframe::CSplitLineLink unit;
    };

    struct StyleRequest
    {
        int nStyle;
        bool bHandleStyle;
    };

    CBaseFrameStyle* FindStyle(int nStyle);
    CBaseFrameStyle* FindCurrentStyle();
    bool IsViewGone() const;

    void CreateStyle();
    CBaseUnitWnd* CreateOwnUnit(CBaseUnitInfo* pInfo, const CString& strParam);
    CBaseUnitWnd* MakeOwnUnit(CBaseUnitInfo* pInfo, const CString& strParam);
    CBaseUnitWnd* ListOwnUnit(splitframe::NewUnit& unit, const CString& strParam);
    void AppendUnit(CBaseUnitWnd* pUnit, int nID);
    void FocusFirstUnit();
    void ShowStyleWithoutLines();

    void RunStyleRequests();
    void SwitchTo(const StyleRequest& request);
    void ExchangeUnits(int nStyle);
    void BreakOff(int nStyle);
    void AdoptListedGlobals(const StyleRequest& request);
    void RetireUnits(int nStyle);
    void HideCachedUnits();
    void GatherUnits();
    void GatherUnit(int nEntry);
    void CarryUnit(CBaseUnitWnd* pUnit, int nID, const CString& strEntry, const CString& strParam);
    CBaseUnitWnd* FindCarried(const CString& strEntry) const;
    void TellHelperOfStyle();
    void TellUnitsOfStyle();
    void ShowNewStyle();

    CBaseUnitWnd* AdoptGlobalUnit(const CString& strName, bool bHandleStyle);
    CBaseUnitWnd* FindGlobalInView(const CString& strName);
    std::vector<CString> GlobalNames();
    std::vector<CBaseUnitWnd*> GlobalsInView();
    void ReturnGlobals();
    bool IsLentElsewhere(const CSplitLine* pLeaf) const;
    bool SendHome(CBaseUnitWnd* pUnit);
    void GiveFrontItsOwn();
    void MoveIntoView(CBaseUnitWnd* pUnit);
    void PutIntoPane(const CString& strName, CBaseUnitWnd* pUnit);

    void BuildTree(CBaseFrameStyle& style);
    void DeleteTree();
    CSplitLine* ResolveSide(const splitframe::LineNames& names, CArray<CSplitLine*, CSplitLine*>& arrNode,
                            const wchar_t* pszName);
    std::vector<splitframe::SplitSides> ResolveSides(const std::vector<_SPLIT_INFO>& arrInfo,
                                                     const splitframe::LineNames& names,
                                                     CArray<CSplitLine*, CSplitLine*>& arrNode,
                                                     splitframe::SideNumbers& numbers);

    int CurrentUnitID(CBaseUnitWnd* pUnit);
    void SetUnitID(const CBaseUnitWnd* pUnit, int nID);
    void RemoveUnit(const CBaseUnitWnd* pUnit);
    void RemoveCachedAt(int nIndex);
    CBaseUnitInfo* FindOwnRecord(const CString& strName);
    CBaseUnitWnd* CreateCachedUnit(CBaseUnitInfo* pInfo);
    CBaseUnitWnd* PutIntoCache(CBaseUnitWnd* pUnit, int nID);

    void StoreFrame(CArchive& ar);
    void LoadFrame(CArchive& ar);
    void LoadUnit(CArchive& ar);
    void LoadStyle(CArchive& ar, const splitframe::RecordNames& global);

    void MakeHelper(const GUID& guid);
    void OwnHelper(std::unique_ptr<CBaseFrameHelper> pHelper);
    void ReleaseHelper();
    void ForgetUnit(const CBaseUnitWnd* pUnit);
    void ForgetCached(const CBaseUnitWnd* pUnit);
    void ForgetDefinition();
    void Report(const wchar_t* pszMessage, const CString& strName);

    CBaseFrameDoc* m_pDefinition = nullptr;       // not owned; what this document was opened from
    std::vector<CBaseUnitInfo*> m_arrReadUnit;    // those of m_arrBaseUnitInfo that came from an archive
    std::vector<CBaseFrameStyle*> m_arrReadStyle; // those of m_arrStyle
    const splitframe::RecordNames* m_pRecordNames = nullptr; // only while an archive is read
    std::vector<GlobalPane> m_arrGlobalPane;
    std::vector<CString> m_arrGlobalStandIn; // global units that a switch adopted for the style's own ones
    std::vector<CarriedUnit> m_arrCarried;
    std::optional<StyleRequest> m_styleRequest;          // of a hook, while units are exchanged
    bool m_bExchanging = false;                          // units are being made or exchanged
    const splitframe::UnitNames* m_pUnitNames = nullptr; // only while names are resolved
    HWND m_hView = nullptr;                              // the view's window, alive or dead
    bool m_bViewDying = false;                           // that window is being destroyed
    bool m_bFaultsTold = false;
    std::unique_ptr<splitframe::CUnitObserver> m_pObserver; // takes deleted units out of the lists
};
