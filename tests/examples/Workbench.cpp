// Start and end of the workbench in a test.
#include "Workbench.h"

#include "platform/window/MessageLoop.h"

#include <set>

WorkbenchTest::WorkbenchTest()
{
    m_oldHook = SetDiagnosticsHook([](const Diagnostic& diagnostic) {
        ADD_FAILURE() << diagnostic.strMessage.ToUtf8() << " " << diagnostic.strFrame.ToUtf8() << " "
                      << diagnostic.strName.ToUtf8();
    });
    auto pDisplay = std::make_unique<splitframe::HeadlessDisplay>(1280, 800);
    pDisplay->SetClock(0);
    splitframe::SetDisplay(std::move(pDisplay));
    m_pApp = std::make_unique<CWorkbenchApp>(StartOptions{WORKBENCH_LAYOUT, true});
    EXPECT_TRUE(m_pApp->InitInstance());
    m_pApp->GetFeed().WaitForBacklog();
    splitframe::DrainMessages();
}

WorkbenchTest::~WorkbenchTest()
{
    if (m_pApp->GetMainFrame())
        m_pApp->GetMainFrame()->SendMessage(WM_CLOSE);
    EXPECT_EQ(m_pApp->GetMainFrame(), nullptr);
    m_pApp->ExitInstance();
    m_pApp.reset();
    splitframe::SetDisplay(nullptr);
    SetDiagnosticsHook(m_oldHook);
}

void WorkbenchTest::Open(const wchar_t* pszName)
{
    Frame().OnBaseFrameOpen(pszName);
    splitframe::DrainMessages();
}

CBaseFrameDoc* WorkbenchTest::ActiveDoc()
{
    return dynamic_cast<CBaseFrameDoc*>(Frame().GetActiveDocument());
}

CString WorkbenchTest::ActiveName()
{
    return ActiveDoc() ? ActiveDoc()->m_strName : CString();
}

CBaseUnitWnd* WorkbenchTest::FindUnit(const wchar_t* pszName)
{
    CBaseUnitWnd* pUnit = ActiveDoc() ? ActiveDoc()->GetBaseUnitWnd(pszName) : nullptr;
    return pUnit ? pUnit : Frame().FindGlobalBaseUnitWnd(pszName);
}

void WorkbenchTest::Click(CWnd& wnd, CPoint pt)
{
    wnd.ClientToScreen(&pt);
    Display().Click(pt.x, pt.y);
    splitframe::DrainMessages();
}

void WorkbenchTest::Press(UINT nKey)
{
    Display().PressKey(nKey);
    Display().ReleaseKey(nKey);
    splitframe::DrainMessages();
}

void WorkbenchTest::Wheel(CWnd& wnd, int nNotches)
{
    CRect rc;
    wnd.GetWindowRect(rc);
    Display().MoveMouse(rc.CenterPoint().x, rc.CenterPoint().y);
    Display().TurnWheel(nNotches * WHEEL_DELTA);
    splitframe::DrainMessages();
}

void WorkbenchTest::Command(UINT nID)
{
    Frame().SendMessage(WM_COMMAND, nID);
    splitframe::DrainMessages();
}

COLORREF WorkbenchTest::Pixel(const CWnd& wnd, CPoint pt)
{
    wnd.ClientToScreen(&pt);
    return Display().Shown().GetPixel(pt.x, pt.y);
}

int WorkbenchTest::CountColors(const CWnd& wnd)
{
    CRect rc;
    wnd.GetWindowRect(rc);
    std::set<COLORREF> colors;
    for (int y = rc.top; y < rc.bottom; ++y) {
        for (int x = rc.left; x < rc.right; ++x)
            colors.insert(Display().Shown().GetPixel(x, y));
    }
    return static_cast<int>(colors.size());
}
