// A small host for the tests of documents, frames and bars: it writes down what it is told, in order, and at
// any event can do what a test asks for. Event names are "LABEL.what"; the label is that of the frame that
// was being opened.
#pragma once

#include "platform/display/Headless.h"
#include "platform/docking/BCGPMDIChildWnd.h"
#include "platform/docking/BCGPMDIFrameWnd.h"
#include "platform/docview/DocTemplate.h"
#include "platform/docview/Document.h"
#include "platform/docview/MDIChildWnd.h"
#include "platform/docview/MDIFrameWnd.h"
#include "platform/docview/View.h"
#include "platform/docview/WinApp.h"

#include <gtest/gtest.h>

#include <functional>
#include <map>
#include <set>
#include <string>
#include <vector>

namespace host {

struct Recorder
{
    std::string strNextLabel;                           // of what is made next
    std::vector<std::string> arrEvent;                  // all events but those that are muted
    std::set<std::string> mutedEvents;                  // without label
    std::map<std::string, std::function<void()>> hooks; // run once, when their event comes
    std::vector<std::string> arrDiagnostic;
    int nDocuments = 0; // objects that are alive
    int nViews = 0;
    int nFrames = 0;
    int nMains = 0;
    std::map<std::string, int> paintCounts;

    void Note(const std::string& strLabel, const std::string& strWhat);
    /// The events so far, blank-separated; the list starts anew.
    std::string Take();
};

/// The recorder of the test that runs.
Recorder& Rec();

class Document : public CDocument
{
    DECLARE_DYNCREATE(Document)
public:
    Document();
    ~Document() override;
    BOOL CanCloseFrame(CFrameWnd* pFrame) override;
    BOOL SaveModified() override;
    void OnCloseDocument() override;
    void PreCloseFrame(CFrameWnd* pFrame) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    std::string m_strLabel;
    BOOL m_bMayClose = TRUE;
};

class View : public CView
{
    DECLARE_DYNCREATE(View)
public:
    View();
    ~View() override;
    void OnInitialUpdate() override;
    void OnDraw(CDC* pDC) override;
    void CalcWindowRect(LPRECT lpClientRect, UINT nAdjustType) override;
    void OnActivateView(BOOL bActivate, CView* pActivateView, CView* pDeactiveView) override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    std::string m_strLabel;
    CRect m_rcRoom{0, 0, 0, 0}; // what CalcWindowRect was asked last
    int m_nInset = 0;           // what it takes off at the right and at the bottom

protected:
    void OnSetFocus(CWnd* pOldWnd);
    void OnKeyDown(UINT nChar, UINT nRepCnt, UINT nFlags);
    void OnDestroy();
    DECLARE_MESSAGE_MAP()
};

class Child : public CBCGPMDIChildWnd
{
    DECLARE_DYNCREATE(Child)
public:
    Child();
    ~Child() override;
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;

    std::string m_strLabel;
    bool m_bCallBaseOnDestroy = true;

protected:
    int OnCreate(LPCREATESTRUCT lpCreateStruct);
    void OnMDIActivate(BOOL bActivate, CWnd* pActivateWnd, CWnd* pDeactivateWnd);
    void OnSetFocus(CWnd* pOldWnd);
    void OnClose();
    void OnDestroy();
    DECLARE_MESSAGE_MAP()
};

/// A main frame that writes down what it is told, above either kind of MDI main frame.
template <class Base> class Main : public Base
{
public:
    Main() { ++Rec().nMains; }
    ~Main() override
    {
        --Rec().nMains;
        this->EndFromDestructor(); // as a host's frame with members inside its window does
    }
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override
    {
        Rec().Note("main", "Command");
        return Base::OnCmdMsg(nID, nCode, pExtra, pHandlerInfo);
    }

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        if (nMessage == WM_ACTIVATE)
            Rec().Note("main", "Activate " + std::to_string(LOWORD(wParam)));
        if (nMessage == WM_CLOSE)
            Rec().Note("main", "Close");
        if (nMessage == WM_DESTROY)
            Rec().Note("main", "Destroy");
        return Base::WindowProc(nMessage, wParam, lParam);
    }
};

using MdiMain = Main<CMDIFrameWnd>;
using DockMain = Main<CBCGPMDIFrameWnd>;

class App : public CWinApp
{
public:
    App() : CWinApp(L"App") {}
    BOOL OnCmdMsg(UINT nID, int nCode, void* pExtra, AFX_CMDHANDLERINFO* pHandlerInfo) override;
};

/// An application with a main frame on a headless display of 800 by 600 pixels. Every test ends without
/// windows, objects or unexpected diagnostics.
template <class MainFrame> class Session : public testing::Test
{
protected:
    Session();
    ~Session() override;

    /// Makes document, frame and view and shows them.
    Child* Open(const std::string& strLabel);
    /// The same without the initial update.
    Child* Make(const std::string& strLabel);
    /// The shown child frames from the topmost down, as labels.
    std::string Stack() const;
    void CloseMain();

    Recorder m_recorder;
    App m_app;
    MainFrame* m_pMain = nullptr;
    CMultiDocTemplate* m_pTemplate = nullptr; // owned by the application
};

using MdiSession = Session<MdiMain>;
using DockSession = Session<DockMain>;

} // namespace host
