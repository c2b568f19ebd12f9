// What the tests of windows share: a fresh memory display with a clock that stands still, and a window that
// writes down what it is told.
#pragma once

#include "platform/base/Diagnostics.h"
#include "platform/display/Headless.h"
#include "platform/window/PaintDC.h"
#include "platform/window/Wnd.h"

#include <deque>
#include <functional>
#include <gtest/gtest.h>
#include <map>
#include <memory>
#include <string>
#include <vector>

std::string Narrow(const CString& str);

/// Writes down the messages that it handles as words, and runs what a test hangs on a message.
class CLogWnd : public CWnd
{
    DECLARE_DYNAMIC(CLogWnd)
public:
    explicit CLogWnd(std::string strName = {}, std::vector<std::string>* pLog = nullptr)
        : m_strName(std::move(strName)), m_pLog(pLog)
    {
    }

    /// Creates a visible child (without parent: a top-level window).
    bool Open(CWnd* pParent, const RECT& rc, DWORD dwStyle = WS_VISIBLE, LPCWSTR pszClass = nullptr);
    void Log(const std::string& strWhat);

    std::string m_strName;
    std::vector<std::string>* m_pLog;           // not owned
    std::map<UINT, std::function<void()>> m_on; // what a test does when a message comes
    std::function<void()> m_onBeginDestroy;
    int m_nPaints = 0;
    int m_nErases = 0;
    CRect m_rcPainted;
    bool m_bRefuse = false;
    COLORREF m_color = RGB(255, 255, 255);

protected:
    void OnBeginDestroy() override;
    void PostNcDestroy() override;
    void Do(UINT nMessage);
    int OnCreate(LPCREATESTRUCT pcs);
    void OnDestroy();
    void OnNcDestroy();
    void OnSize(UINT nType, int cx, int cy);
    void OnMove(int x, int y);
    void OnShowWindow(BOOL bShow, UINT nStatus);
    void OnSetFocus(CWnd* pOther);
    void OnKillFocus(CWnd* pOther);
    void OnCaptureChanged(CWnd* pOther);
    void OnActivate(UINT nState, CWnd* pOther, BOOL bMinimized);
    void OnPaint();
    BOOL OnEraseBkgnd(CDC* pDC);
    void OnTimer(UINT_PTR nID);
    void OnKeyDown(UINT nChar, UINT nRepeat, UINT nFlags);
    void OnSysKeyDown(UINT nChar, UINT nRepeat, UINT nFlags);
    void OnChar(UINT nChar, UINT nRepeat, UINT nFlags);
    void OnMouseMove(UINT nFlags, CPoint pt);
    void OnLButtonDown(UINT nFlags, CPoint pt);
    void OnLButtonUp(UINT nFlags, CPoint pt);
    void OnLButtonDblClk(UINT nFlags, CPoint pt);
    BOOL OnMouseWheel(UINT nFlags, short zDelta, CPoint pt);
    LRESULT OnUser(WPARAM wParam, LPARAM lParam);
    DECLARE_MESSAGE_MAP()
};

/// A window of no class of its own: handles nothing.
class CPlainWnd : public CWnd
{
public:
    bool Open(CWnd* pParent, const RECT& rc, DWORD dwStyle = WS_VISIBLE);
};

/// Runs the next step of a script whenever the program waits for the user. That is how tests look into the
/// loops of context menus, which come back only when the menu is closed.
class ScriptedDisplay : public splitframe::HeadlessDisplay
{
public:
    ScriptedDisplay() : HeadlessDisplay(400, 300) { SetClock(1000); }
    bool Wait(DWORD nMilliseconds) override
    {
        if (script.empty())
            return HeadlessDisplay::Wait(nMilliseconds);
        const std::function<void()> step = std::move(script.front());
        script.pop_front();
        step();
        return true;
    }
    std::deque<std::function<void()>> script;
};

/// A fresh display of 400 by 300 pixels, a set clock, a log; unexpected diagnostics fail the test.
class WindowTest : public testing::Test
{
protected:
    WindowTest();
    ~WindowTest() override;

    /// Everything that happened since the last call, words with blanks between.
    std::string Told();
    void Drain() { splitframe::DrainMessages(); }
    splitframe::HeadlessDisplay& Screen() { return *splitframe::CurrentHeadless(); }
    COLORREF Pixel(int x, int y) { return Screen().Shown().GetPixel(x, y); }
    /// Makes diagnostics expected; answers those so far.
    std::vector<std::string> TakeDiagnostics();

    std::vector<std::string> m_log;

private:
    std::unique_ptr<splitframe::Display> m_pDisplayBefore;
    std::vector<std::string> m_diagnostics;
    DiagnosticsHook m_hookBefore;
};
