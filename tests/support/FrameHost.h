// A small host for tests of frames: application, main frame, template, and units and helpers that write down
// what they are told and do at any event what a test asks for. Events are "NAME.what"; a unit's name is that
// of its record.
#pragma once

#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "document/BaseFrameView.h"
#include "frame/BaseFrameChildWnd.h"
#include "frame/BaseFrameWnd.h"
#include "platform/base/Diagnostics.h"
#include "platform/display/Headless.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/WinApp.h"
#include "support/LayoutXml.h"
#include "unit/BaseUnitWnd.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <string>
#include <vector>

namespace test {

/// What the units and helpers of the running test are told.
struct EventLog
{
    std::vector<std::string> arrEvent;
    std::map<std::string, std::function<void(CBaseUnitWnd*)>> hooks; // run each time their event comes
    std::map<std::string, LRESULT> answers; // what hooks with a result answer; else 0
    int nUnits = 0;                         // unit objects that live
    int nHelpers = 0;

    LRESULT Note(const std::string& strEvent, CBaseUnitWnd* pUnit);
    /// The events so far, separated by blanks; the list starts anew.
    std::string Take();
    /// Those whose text contains a part, only.
    std::string Take(const std::string& strPart);
};

EventLog& Log();

class RecordingUnit : public CBaseUnitWnd
{
    DECLARE_DYNCREATE(RecordingUnit)
public:
    RecordingUnit();
    ~RecordingUnit() override;
    BOOL Create(CWnd* pParent, CBaseUnitInfo* pInfo) override;
    BOOL Init(const wchar_t* pszParam) override;
    BOOL ShowWindowEx(int nCmdShow) override;
    void ProcessActivate2(bool bActivate) override;
    void HandleStyle(CString strStyle) override;
    void OnStyleChange(bool b) override;
    LRESULT ProcessCommand(UINT nCmd, LPARAM lParam) override;
    void OnMDIActivate(BOOL bActivate, CWnd* pActivate, CWnd* pDeactivate) override;
    GUID GetGUID() override;
    using CBaseUnitWnd::Notify;

protected:
    void CustomDraw(CPaintDC* pDC) override;
    void OnSize(UINT nType, int cx, int cy);
    void OnShowWindow(BOOL bShow, UINT nStatus);
    void OnLButtonDown(UINT nFlags, CPoint pt);
    LRESULT OnDblClk(WPARAM wParam, LPARAM lParam);
    void OnRButtonDown(UINT nFlags, CPoint pt);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnKeyUp(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnSetFocus(CWnd* pOldWnd);
    void OnDestroy();
    DECLARE_MESSAGE_MAP()

private:
    LRESULT Note(const std::string& strWhat);
};

/// Its constructor throws an int.
class ThrowingUnit : public CBaseUnitWnd
{
    DECLARE_DYNCREATE(ThrowingUnit)
public:
    ThrowingUnit() { throw 7; }
};

class RecordingHelper : public CBaseFrameHelper
{
    DECLARE_DYNCREATE(RecordingHelper)
public:
    RecordingHelper();
    ~RecordingHelper() override;
    GUID GetGUID() override;
    void ProcessActivate2(bool bActivate) override;
    LRESULT ProcessMessage(DWORD nMsg, WPARAM wParam, LPARAM lParam) override;
    void OnStyleInitial() override;
    void OnCalcWindowRect(LPRECT lpRect) override;
    void OnBaseUnitNotify(UINT nCode, LPARAM lParam) override;
    using CBaseFrameHelper::CalcRectByRate;
};

/// One application with a main frame on a headless display of 804 by 703 pixels. At its end everything is
/// closed, and every unit and helper is gone.
class FrameHost
{
public:
    /// @param pDocClass  what the template makes: CBaseFrameDoc or a class derived from it
    explicit FrameHost(CRuntimeClass* pDocClass = RUNTIME_CLASS(CBaseFrameDoc));
    ~FrameHost();
    FrameHost(const FrameHost&) = delete;
    FrameHost& operator=(const FrameHost&) = delete;

    /// Reads a layout with the classes above under the GUIDs of LayoutXml.h.
    void Load(const std::wstring& strXml);
    /// Opens by name and lets everything settle.
    CBaseFrameDoc* Open(const wchar_t* pszName);
    void Settle();

    CBaseFrameChildWnd* ActiveFrame();
    CBaseFrameDoc* ActiveDoc();
    CBaseFrameView* ActiveView();
    /// A unit of the active document.
    CBaseUnitWnd* Unit(const wchar_t* pszName);
    /// "a 0,0 100x50; b 100,0 100x50": the visible children of the active view, by name.
    std::string Panes();
    /// "A B": the names of the frames that are open, in the order of their making.
    std::string OpenFrames();
    void CloseActive();
    /// Expects that trees, unit lists, caches and windows agree.
    void ExpectSound();

    CWinApp m_app;
    CBaseFrameWnd* m_pMain = nullptr;         // deletes itself with its window
    CMultiDocTemplate* m_pTemplate = nullptr; // owned by the application
    std::vector<Diagnostic> m_arrDiagnostic;
    splitframe::HeadlessDisplay* m_pDisplay = nullptr;
};

/// What went wrong, as "message [frame/style/name]", one a line.
std::string Told(const std::vector<Diagnostic>& arrDiagnostic);

} // namespace test
