// The running workbench for tests: fixed data, a clock that stands still, and an input that comes the way a
// user's does. Any diagnostic fails the test.
#pragma once

#include "Application.h"
#include "MainFrame.h"

#include "document/BaseFrameDoc.h"
#include "platform/base/Diagnostics.h"
#include "platform/display/Headless.h"
#include "unit/BaseUnitWnd.h"

#include <gtest/gtest.h>

#include <memory>

class WorkbenchTest : public testing::Test
{
protected:
    WorkbenchTest();
    ~WorkbenchTest() override;

    CMainFrame& Frame() { return *m_pApp->GetMainFrame(); }
    splitframe::HeadlessDisplay& Display() { return *splitframe::CurrentHeadless(); }
    CPlantRecord& Record() { return m_pApp->GetRecord(); }

    /// Opens a frame or style by name and lets it be painted.
    void Open(const wchar_t* pszName);
    /// The name of the frame in front; empty without one.
    CString ActiveName();
    CBaseFrameDoc* ActiveDoc();
    /// A unit of the frame in front, or a global one.
    template <class T> T& Unit(const wchar_t* pszName)
    {
        T* pUnit = dynamic_cast<T*>(FindUnit(pszName));
        if (!pUnit)
            throw std::runtime_error("no such unit: " + CString(pszName).ToUtf8());
        return *pUnit;
    }
    CBaseUnitWnd* FindUnit(const wchar_t* pszName);

    void Click(CWnd& wnd, CPoint pt, UINT nButton = VK_LBUTTON);
    void DoubleClick(CWnd& wnd, CPoint pt);
    /// With the left button held, from one point of the window to another.
    void Drag(CWnd& wnd, CPoint ptFrom, CPoint ptTo);
    void Press(UINT nKey);
    /// With another key held.
    void Press(UINT nModifier, UINT nKey);
    void Type(const wchar_t* pszText);
    void Wheel(CWnd& wnd, int nNotches);
    void Command(UINT nID);
    /// What the menu shows for a command, once it has been asked how it looks.
    UINT MenuState(UINT nID);
    /// Where a unit stands, screen coordinates.
    static CRect Place(const CWnd& wnd);
    /// A pixel of the screen at a point of the window.
    COLORREF Pixel(const CWnd& wnd, CPoint pt);
    /// Whether anything but one colour is to be seen in the window.
    int CountColors(const CWnd& wnd);
    const JournalEntry& Newest() { return Record().GetJournal().GetByAge(0); }

    std::unique_ptr<CWorkbenchApp> m_pApp;

private:
    DiagnosticsHook m_oldHook;
};
