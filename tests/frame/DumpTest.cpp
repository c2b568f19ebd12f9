// The state as text.
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

using namespace test;

TEST(Dump, TellsWhatIsWhere)
{
    FrameHost host;
    host.Load(LayoutXml(
        GlobalXml(L"g h") +
        FrameXml(L"A", L"a bb c",
                 {{L"S", L"a=ID=1 c", L"m V a c"}, {L"T", L"a=ID=1 bb g", L"m V a r;r H bb g 0.25"}}) +
        FrameXml(L"B", L"e", {{L"B1", L"e", L""}})));
    EXPECT_EQ(host.m_pMain->DumpState().ToUtf8(), "no frame is active\n"
                                                  "global units (2)\n"
                                                  "  g  at home, hidden\n"
                                                  "  h  at home, hidden\n"
                                                  "focus: CBaseFrameWnd\n"
                                                  "mouse: nobody\n");
    host.m_pMain->FindBaseFrameDoc(L"A")->CreateBaseUnitWnd(L"c");
    host.Open(L"B1");
    CBaseFrameDoc* pDoc = host.Open(L"S");
    host.m_pMain->FindBaseFrameDoc(L"A")->CreateBaseUnitWnd(L"c");
    pDoc->ChangeStyle(1, false);
    pDoc->SetCurrentBaseUnitWnd(1);
    ::SetCapture(host.m_pMain->FindGlobalBaseUnitWnd(L"g")->m_hWnd);
    EXPECT_EQ(host.m_pMain->DumpState().ToUtf8(),
              R"(frame "A", style "T" (2 of 2)
tree
  VLINE m rate=0.5 movable     0,0 804x671
    UNIT a ID 1                0,0 402x671
    HLINE r rate=0.25 movable  402,0 402x671
      UNIT bb no ID            402,0 402x167
      UNIT g global            402,167 402x504
units (2)
  a   ID 1, visible, activated
  bb  no ID, visible, activated, current
cached units (1)
  c  no ID, hidden, activated
other open frames
  "B"  style "B1" (1 of 1), 1 units, 0 cached
made before frame "A" was opened (1)
  c  no ID, hidden
global units (2)
  g  in frame "A", visible, activated
  h  at home, hidden
focus: unit bb in frame "A"
mouse: unit g in frame "A"
)");
    ::ReleaseCapture();
}
