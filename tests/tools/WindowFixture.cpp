// Start and end of the viewer in a test.
#include "WindowFixture.h"

#include "OpenFrames.h"
#include "document/BaseFrameView.h"
#include "platform/window/MessageLoop.h"
#include "unit/BaseUnitWnd.h"

#include <filesystem>

ViewerWindowTest::ViewerWindowTest()
{
    m_oldHook = SetDiagnosticsHook([this](const Diagnostic& diagnostic) { m_pMessages->Report(diagnostic); });
    auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(800, 600);
    pDisplay->SetClock(0);
    splitframe::SetDisplay(std::move(pDisplay));
}

ViewerWindowTest::~ViewerWindowTest()
{
    Stop();
    splitframe::SetDisplay(nullptr);
    SetDiagnosticsHook(m_oldHook);
}

void ViewerWindowTest::Stop()
{
    if (m_pApp)
        m_pApp->ExitInstance();
    m_pApp.reset();
}

void ViewerWindowTest::Start(const std::string& strBytes, viewer::Options options)
{
    m_place.Write("f.xml", strBytes);
    options.strFile = m_place.Path("f.xml").string();
    m_pMessages = std::make_unique<viewer::Messages>("f.xml");
    m_pApp = std::make_unique<CViewerApp>(options, *m_pMessages);
    ASSERT_TRUE(m_pApp->ReadLayout() && m_pApp->OpenWindow());
    splitframe::DrainMessages();
}

void ViewerWindowTest::Replace(const std::string& strBytes)
{
    m_place.Write("new", strBytes);
    std::filesystem::rename(m_place.Path("new"), m_place.Path("f.xml"));
}

void ViewerWindowTest::LetFileSettle()
{
    for (int nTick = 0; nTick < 4; ++nTick) {
        Display().AdvanceClock(250);
        splitframe::DrainMessages();
    }
}

CBaseFrameDoc& ViewerWindowTest::Front()
{
    return dynamic_cast<CBaseFrameDoc&>(*Window().GetActiveDocument());
}

std::string ViewerWindowTest::OpenFrames()
{
    std::string strText;
    for (const viewer::OpenFrame& frame : viewer::ListOpenFrames(Window())) {
        const std::string strName = frame.strFrame.ToUtf8() + "/" + frame.strStyle.ToUtf8();
        strText += (strText.empty() ? "" : " ") + (frame.bFront ? "[" + strName + "]" : strName);
    }
    return strText;
}

CRect ViewerWindowTest::RectOf(const char* pszUnit)
{
    CRect rc;
    const CBaseUnitWnd* pUnit = Front().GetBaseUnitWnd(CString(pszUnit));
    pUnit->GetWindowRect(rc);
    Front().m_pView->ScreenToClient(rc);
    return rc;
}

std::string ViewerWindowTest::Panes()
{
    std::string strText;
    for (const CBaseUnitWnd* pUnit : Front().m_arrBaseUnitWnd) {
        const std::string strName = pUnit->m_strName.ToUtf8();
        const CRect rc = RectOf(strName.c_str());
        strText += strName + " " + std::to_string(rc.left) + "," + std::to_string(rc.top) + "," +
                   std::to_string(rc.right) + "," + std::to_string(rc.bottom) + "\n";
    }
    return strText;
}

void ViewerWindowTest::DragEdge(const char* pszUnit, bool bRight, CPoint ptTo)
{
    const CRect rc = RectOf(pszUnit);
    CPoint ptFrom = bRight ? CPoint(rc.right, rc.CenterPoint().y) : CPoint(rc.CenterPoint().x, rc.bottom);
    Front().m_pView->ClientToScreen(&ptFrom);
    Front().m_pView->ClientToScreen(&ptTo);
    const auto step = [&](const auto& fn) {
        fn();
        splitframe::DrainMessages();
    };
    step([&] { Display().MoveMouse(ptFrom.x, ptFrom.y); });
    step([&] { Display().PressButton(VK_LBUTTON); });
    step([&] { Display().MoveMouse(ptTo.x, ptTo.y); });
    step([&] { Display().ReleaseButton(VK_LBUTTON); });
}

void ViewerWindowTest::Press(UINT nKey, bool bControl)
{
    if (bControl)
        Display().PressKey(VK_CONTROL);
    Display().PressKey(nKey);
    Display().ReleaseKey(nKey);
    if (bControl)
        Display().ReleaseKey(VK_CONTROL);
    splitframe::DrainMessages();
}

void ViewerWindowTest::Command(UINT nID)
{
    Window().SendMessage(WM_COMMAND, nID);
    splitframe::DrainMessages();
}
