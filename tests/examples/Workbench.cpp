// Start and end of the workbench in a test.
#include "Workbench.h"

#include "platform/window/Menu.h"
#include "platform/window/MessageLoop.h"

#include <functional>
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

void WorkbenchTest::Click(CWnd& wnd, CPoint pt, UINT nButton)
{
    wnd.ClientToScreen(&pt);
    Display().Click(pt.x, pt.y, nButton);
    splitframe::DrainMessages();
}

void WorkbenchTest::DoubleClick(CWnd& wnd, CPoint pt)
{
    Display().AdvanceClock(10'000); // no click before belongs to it
    Click(wnd, pt);
    Click(wnd, pt);
}

void WorkbenchTest::Drag(CWnd& wnd, CPoint ptFrom, CPoint ptTo)
{
    wnd.ClientToScreen(&ptFrom);
    wnd.ClientToScreen(&ptTo);
    Display().MoveMouse(ptFrom.x, ptFrom.y);
    splitframe::DrainMessages();
    Display().PressButton(VK_LBUTTON);
    Display().MoveMouse(ptTo.x, ptTo.y);
    Display().ReleaseButton(VK_LBUTTON);
    splitframe::DrainMessages();
}

void WorkbenchTest::Press(UINT nModifier, UINT nKey)
{
    Display().PressKey(nModifier);
    Press(nKey);
    Display().ReleaseKey(nModifier);
    splitframe::DrainMessages();
}

void WorkbenchTest::Type(const wchar_t* pszText)
{
    Display().TypeText(pszText);
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

UINT WorkbenchTest::MenuState(UINT nID)
{
    const std::function<void(HMENU)> ask = [&](HMENU hMenu) {
        if (!hMenu)
            return;
        Frame().SendMessage(WM_INITMENUPOPUP, reinterpret_cast<WPARAM>(hMenu));
        for (int n = 0; n < ::GetMenuItemCount(hMenu); ++n)
            ask(::GetSubMenu(hMenu, n));
    };
    ask(Frame().GetMenuBar());
    return ::GetMenuState(Frame().GetMenuBar(), nID, MF_BYCOMMAND);
}

CRect WorkbenchTest::Place(const CWnd& wnd)
{
    CRect rc;
    wnd.GetWindowRect(rc);
    return rc;
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
