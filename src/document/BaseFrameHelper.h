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
    /// WM_KEYDOWN, WM_KEYUP, WM_LBUTTONDBLCLK (not 0: used up), and whatever the host's units send.
    /// @return not 0 when handled; the base's version handles nothing
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
