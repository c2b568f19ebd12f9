// What is painted and shown when one pane changes.
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

using namespace test;

TEST(Painting, TypingInOnePanePaintsAndShowsThatPaneOnly)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"A", L"a b c", {{L"S", L"a b c", L"m V a r;r H b c"}})));
    host.Open(L"S");
    CBaseUnitWnd* pUnit = host.Unit(L"b");
    pUnit->SetFocus();
    host.Settle();
    Log().Take();
    Log().hooks["b.Key70"] = [](CBaseUnitWnd* pTyped) { pTyped->Invalidate(FALSE); };
    for (int i = 0; i < 3; ++i) {
        const unsigned long nBefore = host.m_pDisplay->PresentCount();
        host.m_pDisplay->PressKey('F');
        host.Settle();
        EXPECT_EQ(Log().Take("Draw"), "b.Draw");
        EXPECT_EQ(host.m_pDisplay->PresentCount(), nBefore + 1);
        CRect rcPane;
        pUnit->GetWindowRect(&rcPane);
        EXPECT_EQ(CRect(host.m_pDisplay->LastPresented().Bounds()), rcPane);
    }
}
