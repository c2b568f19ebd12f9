// The base of every content pane: a window and a leaf of a split tree at once.
// Knows its record, its parent window and its leaf; reaches the frame around it only to pass commands and
// messages on (frames know their units and units call their frame: sources include, headers do not).
#pragma once

#include "layout/SplitLine.h"
#include "platform/base/Export.h"
#include "platform/base/String.h"
#include "platform/base/Types.h"
#include "platform/graphics/Pen.h"
#include "platform/window/CmdTarget.h"
#include "platform/window/Wnd.h"
#include "unit/UnitMessages.h"

class CBaseUnitInfo;
class CMenu;
class CPaintDC;

/// Derive unit classes from this, override GetGUID and the hooks that the unit needs, and register them by
/// GUID. The library creates units from their records as children of a frame's view (global ones of the main
/// frame) and deletes them with it. A unit that is deleted leaves every tree, list and cache by itself. All
/// calls on the user-interface thread; only UNIT_MSG_ENGINE_DATA may be posted from another one.
class SPLITFRAME_API CBaseUnitWnd : public CWnd, public CSplitLine
{
    DECLARE_DYNCREATE(CBaseUnitWnd)

public:
    CBaseUnitWnd();
    CBaseUnitWnd(const CBaseUnitWnd&) = delete;
    CBaseUnitWnd& operator=(const CBaseUnitWnd&) = delete;
    ~CBaseUnitWnd() override;

    // Hooks, in slot order.

    /// A global unit is taken into a frame at a change of style; the text is the frame's name.
    virtual void HandleStyle(CString strStyle);
    /// The unit comes into use (true) or goes out of use (false). Also called by the first layout that shows
    /// it.
    virtual void ProcessActivate2(bool bActivate);
    /// Records whether the unit is in use.
    virtual void ProcessActivate(bool bActivate);
    /// A command from the frame; the base answers 0.
    virtual LRESULT ProcessCommand(UINT nCmd, LPARAM lParam);
    virtual void OnStyleChange(bool b);
    /// The unit's frame was activated or deactivated.
    virtual void OnMDIActivate(BOOL bActivate, CWnd* pActivate, CWnd* pDeactivate);
    /// True: the unit keeps the key. False: it goes on to the main window. The base passes digits, letters,
    /// keypad digits, F1 to F6, F10, Tab and Escape on.
    virtual bool IsKeyFilted(UINT nChar);
    /// The class of the unit, by which the registry knows it.
    virtual GUID GetGUID();
    using CWnd::Create;
    /// Creates the window, hidden.
    /// @param pInfo  the record: name, rectangle, border, limits; not owned, outlives the unit. Null: no
    /// name, a
    ///               border, 100 by 100 pixels
    /// @return whether there is a window
    virtual BOOL Create(CWnd* pParent, CBaseUnitInfo* pInfo);
    /// Takes the unit's parameter string, kept in upper case; null counts as empty.
    virtual BOOL Init(const wchar_t* pszParam);
    virtual BOOL ProcessMouseWheel(short zDelta, CPoint pt);
    virtual BOOL ShowWindowEx(int nCmdShow);
    /// The pen of the border lines.
    virtual CPen* GetBorderPen();

protected:
    /// Tells the frame; the unit's parent window goes with it. Nothing happens without a callback.
    virtual void Notify(UINT nCode, LPARAM lParam);
    /// Paints the content; the base fills it dark grey. The border lines come on top.
    virtual void CustomDraw(CPaintDC* pDC);
    /// A menu to fill, sent with UNIT_MSG_UPDATE_MENU; the result answers the message.
    virtual LRESULT UpdateMenu(CMenu* pMenu, CString strText);

public:
    /// Data sent or posted with UNIT_MSG_ENGINE_DATA; the result answers the message.
    virtual LRESULT OnEngineData(WPARAM wParam, LPARAM lParam);

    // Calls into the unit.

    /// Acts on the commands of UnitMessages.h, then asks ProcessCommand.
    /// @return what ProcessCommand returned; 0 when the unit was deleted on the way
    LRESULT OnProcessCommand(UINT nCmd, LPARAM lParam);
    void StyleChange(bool b);
    void MDIActivate(BOOL bActivate, CWnd* pActivate, CWnd* pDeactivate);
    /// Where notifications go; the first argument is the unit's parent window. Null: nowhere.
    void SetNotifyFunc(void (*pfn)(void*, UINT, LPARAM));
    /// Fixes the width (height) at the record's largest one, or frees it down to 0. Lays nothing out.
    void SetWidthFixed(bool bFixed);
    void SetHeightFixed(bool bFixed);

    // Calls to the frame around the unit.

    /// Passes a command to every unit of the active frame; nothing happens when no frame is active.
    static void BroadcastCommand(UINT nCmd, LPARAM lParam);
    /// Opens (or activates) the frame of that name.
    void OpenBaseFrame(CString strName);
    /// Hands a message to the helper of the unit's frame.
    /// @return the helper's answer; -1 when the unit is in no frame
    LRESULT ProcessHelperMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam);

    // Editing the split tree around the unit. Hooks of any unit may run before a call returns.

    /// Asks the helper of the unit's frame to put one unit of the frame in the place of another, and to lay
    /// the frame out (HELPER_MSG_REPLACE_OR_MOVE).
    /// @return whether it did; false in no frame
    bool ReplaceBaseUnit(CString strNew, CString strOld);
    /// The same for the unit on one side of a line (HELPER_MSG_REPLACE_SIDE).
    bool ReplaceBaseUnit(CString strNew, CString strSplitName, bool bFirst);
    /// The same without the helper, for the pane that bears the name of pOld.
    bool ReplaceBaseUnit(CString strNew, CBaseUnitWnd* pOld);

    /// The unit on one side of a line of the active tree, or null.
    CBaseUnitWnd* FindBaseUnitWnd(CString strSplitName, bool bFirst);
    /// The unit of that name in the unit's frame, or null.
    CBaseUnitWnd* FindBaseUnitWnd(CString strName);
    /// A unit of any frame, open or not (CBaseFrameDoc::CreateBaseUnitWnd), or null. Owned by that frame.
    CBaseUnitWnd* FindBaseUnitWnd2(CString strFrame, CString strUnit);

    /// Collapses the part of the frame across the nearest line in a direction, and brings it back; the active
    /// tree is laid out again where it is. The line's share stays.
    /// @return whether the part is shown now; without a part in that direction, or an active tree, the
    /// opposite of what was asked for. False for what is no direction
    bool Hide(DIRECT_VALUE d);
    bool Show(DIRECT_VALUE d);
    bool ProcessModifyWindow(DIRECT_VALUE d, bool bShow);
    /// Turns the unit's flag for the direction (m_bShowSide) over, and hides or shows accordingly. @return
    /// 1.0 or 0.0: whether the part is shown
    double HideShow(DIRECT_VALUE d);
    /// Whether the part in that direction is collapsed; the unit's flag follows.
    bool GetHideShowState(DIRECT_VALUE d);
    /// Sets the share of the part across the nearest line in a direction and lays the line's sides out.
    /// @return the share before; without a line -1.0 to the left and top, 2.0 to the right and bottom;
    /// without an active tree dRate
    double ProcessModifyWindow(DIRECT_VALUE d, double dRate);

    LRESULT OnUpdateMenuUI(WPARAM wParam, LPARAM lParam);

    /// The activation hooks have told the unit that it is in use.
    bool m_bActivated;
    CPen m_penBorder;
    /// Not owned; null for a unit created without one.
    CBaseUnitInfo* m_pBaseUnitInfo;
    CString m_strParam;
    /// Draw the border lines.
    bool m_bBorder;
    /// Call CustomDraw when painting.
    bool m_bCustomDraw;
    /// For each DIRECT_VALUE: the part of the frame on that side is shown.
    bool m_bShowSide[4];
    void (*m_pfnNotify)(void*, UINT, LPARAM);

protected:
    void OnPaint();
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnClose();
    void OnDestroy();
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonUp(UINT nFlags, CPoint pt);
    void OnMouseMove(UINT nFlags, CPoint pt);

    DECLARE_MESSAGE_MAP()
};
