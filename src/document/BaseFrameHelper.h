// The frame helper: the host's hooks for one frame as a whole. A host derives from it and registers the class
// under a GUID; a frame without a usable helper class gets this one. It lives as long as the frame's
// definition, across any number of openings, and serves the frame's opened document while there is one.
#pragma once

#include "platform/base/Export.h"
#include "platform/base/Geometry.h"
#include "platform/base/Object.h"
#include "platform/base/Types.h"

class CBaseFrameDoc;
class CBaseUnitInfo;
class CBaseUnitWnd;

// Requests to the helper to rearrange the frame's split tree. The first parameter is the address of a
// CString, good for the duration of the call: a name or, for the sides, "NAME,1" (first side of that line) or
// "NAME,0" (second). The second is a flag (0 or 1) or the address of a CString with the name of a unit.

/// With a unit's name: that unit takes the place of the named one. With a flag: as HELPER_MSG_ENABLE_MOVE.
inline constexpr DWORD HELPER_MSG_REPLACE_OR_MOVE = 1177;
/// Makes the line directly above the named unit or line movable (1), or fixes it (0).
inline constexpr DWORD HELPER_MSG_ENABLE_MOVE = 1178;
/// The unit takes the place of the one on that side of the line.
inline constexpr DWORD HELPER_MSG_REPLACE_SIDE = 1179;
/// Makes the line movable (1), or fixes it (0); it must have that side.
inline constexpr DWORD HELPER_MSG_ENABLE_MOVE_SIDE = 1180;

class SPLITFRAME_API CBaseFrameHelper : public CObject
{
    DECLARE_DYNCREATE(CBaseFrameHelper)

public:
    CBaseFrameHelper();
    ~CBaseFrameHelper() override;

    /// The frame stops being the one in front because another one is opened (always false). Does nothing.
    virtual void ProcessActivate2(bool bActivate);

    /// The GUID under which RegisterBaseHelper registers the class.
    virtual GUID GetGUID();

    /// Messages of the frame and of its units: WM_CLOSE (not 0: the frame stays open), WM_DESTROY,
    /// WM_KEYDOWN, WM_KEYUP, WM_LBUTTONDBLCLK (not 0: used up), and whatever the host's units send. The
    /// base's version handles HELPER_MSG_...: a replacement lays the tree out again and answers 1. Names that
    /// are null, too short or unknown change nothing.
    /// @return not 0 when handled
    virtual LRESULT ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam);

    /// The units of a style are in place; nothing is laid out yet. Does nothing.
    virtual void OnStyleInitial();

    /// The view is about to lay its units out in this rectangle (view client coordinates), which may be
    /// changed. The base's version places every unit of border style 1 by its edge rates and size limits and
    /// writes the rectangle back into the unit's record; cached units, too.
    virtual void OnCalcWindowRect(LPRECT lpRect);

    /// A unit of the frame notifies. Does nothing.
    virtual void OnBaseUnitNotify(UINT nCode, LPARAM lParam);

    /// The first unit window of the document whose record has that name, compared exactly, or null.
    CBaseUnitWnd* GetBaseUnitWnd(const wchar_t* pszName);

    /// The document that the helper serves: the frame's opened document while it is open, else its definition
    /// document. Not owned.
    CBaseFrameDoc* m_pDoc = nullptr;

protected:
    /// Where the record's edge rates put the unit in a rectangle; fractions of a pixel are dropped, size
    /// limits are not applied.
    void CalcRectByRate(CBaseUnitInfo* pInfo, LPRECT lpSource, CRect& rcDest);
};
