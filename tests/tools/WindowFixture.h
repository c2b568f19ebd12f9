// The viewer's window in a test: the program's own application on a headless display whose clock the test
// sets. Input comes the way a user's does.
#pragma once

#include "Messages.h"
#include "RunViewer.h"
#include "ViewerApp.h"
#include "ViewerWindow.h"

#include "document/BaseFrameDoc.h"
#include "platform/base/Diagnostics.h"
#include "platform/display/Headless.h"

#include <gtest/gtest.h>

#include <memory>
#include <string>

class ViewerWindowTest : public testing::Test
{
protected:
    ViewerWindowTest();
    ~ViewerWindowTest() override;

    /// Writes the layout file and opens the window on it.
    void Start(const std::string& strBytes, viewer::Options options = {});
    /// Ends the program, without asking.
    void Stop();
    /// Puts another file in the layout file's place, as editors do.
    void Replace(const std::string& strBytes);
    std::string FileBytes() const { return ReadBytes(m_place.Path("f.xml")); }
    /// Lets time pass until the window has looked at the file often enough to take it.
    void LetFileSettle();

    CViewerWindow& Window() { return *static_cast<CViewerWindow*>(m_pApp->m_pMainWnd); }
    splitframe::HeadlessDisplay& Display() { return *splitframe::CurrentHeadless(); }
    CBaseFrameDoc& Front();
    /// "frame/style" of each open frame in the order of the tabs, the one in front in brackets.
    std::string OpenFrames();
    std::string Status() { return Window().GetStatusLine().GetText().ToUtf8(); }

    CRect RectOf(const char* pszUnit);
    /// "name left,top,right,bottom" of each pane of the frame in front, in the view's coordinates.
    std::string Panes();
    /// Drags the line at the right (or lower) edge of a unit to a point of the view.
    void DragEdge(const char* pszUnit, bool bRight, CPoint ptTo);

    void Press(UINT nKey, bool bControl = false);
    void Command(UINT nID);

    Workplace m_place;
    std::unique_ptr<viewer::Messages> m_pMessages;
    std::unique_ptr<CViewerApp> m_pApp;

private:
    DiagnosticsHook m_oldHook;
};
