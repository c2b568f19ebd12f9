// Global units: one window for the whole application, in the frame that is in front, and at home when none
// places it.
#include "layout/CheckTree.h"
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

using namespace test;

namespace {

std::wstring Frames()
{
    return LayoutXml(GlobalXml(L"g h") + FrameXml(L"A", L"a", {{L"A1", L"a g", L"m V a g"}}) +
                     FrameXml(L"B", L"b", {{L"B1", L"g b", L"m H g b"}}) +
                     FrameXml(L"C", L"c", {{L"C1", L"c", L""}}) + FrameXml(L"D", L"", {{L"D1", L"g", L""}}) +
                     FrameXml(L"E", L"e", {{L"E1", L"e", L"m V e h"}}));
}

bool IsHome(FrameHost& host, const wchar_t* pszName)
{
    const CBaseUnitWnd* pUnit = host.m_pMain->FindGlobalBaseUnitWnd(pszName);
    return pUnit->GetParent() == host.m_pMain && !pUnit->IsWindowVisible() && !pUnit->CSplitLine::m_pParent &&
           !pUnit->m_pfnNotify;
}

bool StandsIn(FrameHost& host, const CBaseFrameDoc* pDoc)
{
    const CBaseUnitWnd* pUnit = host.m_pMain->FindGlobalBaseUnitWnd(L"g");
    return pUnit->GetParent() == pDoc->m_pView && pUnit->IsWindowVisible() && pUnit->m_pfnNotify &&
           pUnit->m_pHostWnd == pDoc->m_pView;
}

} // namespace

TEST(GlobalUnits, AreMadeAtHome)
{
    FrameHost host;
    host.Load(Frames());
    EXPECT_EQ(Log().Take(), "g.Size g.Create g.Init h.Size h.Create h.Init");
    EXPECT_TRUE(IsHome(host, L"g"));
    EXPECT_EQ(host.m_pMain->FindGlobalBaseUnitWnd(L"x"), nullptr);
}

TEST(GlobalUnits, FollowTheFrameInFront)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pA = host.Open(L"A1");
    const std::string strA = host.Panes();
    EXPECT_TRUE(StandsIn(host, pA));
    EXPECT_EQ(pA->GetBaseUnitWndCount(), 1);
    CBaseFrameDoc* pB = host.Open(L"B1");
    EXPECT_TRUE(StandsIn(host, pB));
    EXPECT_EQ(splitframe::CheckTree(*pA->m_pRoot), "");
    EXPECT_EQ(splitframe::CheckTree(*pB->m_pRoot), "");

    host.Open(L"A"); // by name
    EXPECT_TRUE(StandsIn(host, pA));
    EXPECT_EQ(host.Panes(), strA);
    EXPECT_TRUE(pA->m_pRoot->Holds(pA->m_pRoot->m_pSecond));
    host.m_pMain->SendMessage(WM_COMMAND, 501); // by command
    EXPECT_TRUE(StandsIn(host, pB));
    host.m_pMain->MDINext(); // as a tab does
    host.Settle();
    EXPECT_TRUE(StandsIn(host, pA));
    EXPECT_EQ(host.Panes(), strA);
}

TEST(GlobalUnits, GoHomeWithTheirViewAndComeBack)
{
    FrameHost host;
    host.Load(Frames());
    for (int i = 0; i < 3; ++i) {
        CBaseFrameDoc* pA = host.Open(L"A1");
        EXPECT_TRUE(StandsIn(host, pA));
        host.CloseActive();
        EXPECT_TRUE(IsHome(host, L"g"));
    }
    host.Open(L"A1");
    host.Open(L"B1");
    host.CloseActive(); // A is in front again
    EXPECT_TRUE(StandsIn(host, host.ActiveDoc()));
    host.Open(L"C1");
    EXPECT_EQ(host.m_pMain->FindGlobalBaseUnitWnd(L"g")->GetParentFrame()->GetWindowText(), CString(L"A"));
}

TEST(GlobalUnits, CountAsUnitsToLayOut)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pD = host.Open(L"D1"); // no own units and no lines: shown where the record says
    EXPECT_TRUE(pD->HasUnitsToLayOut());
    EXPECT_EQ(host.Panes(), "g 1,2 30x40");
    EXPECT_TRUE(host.m_pMain->FindGlobalBaseUnitWnd(L"g")->m_bActivated);
    CBaseFrameDoc* pE = host.Open(L"E1"); // named by a line only
    EXPECT_NE(host.Panes().find("h "), std::string::npos);
    EXPECT_EQ(splitframe::CheckTree(*pE->m_pRoot), "");
    host.Open(L"D");
    EXPECT_EQ(host.Panes(), "g 1,2 30x40");
}

TEST(GlobalUnits, NotifyTheHelperOfTheirFrame)
{
    FrameHost host;
    host.Load(Frames());
    auto* pUnit = DynamicDownCast<RecordingUnit>(host.m_pMain->FindGlobalBaseUnitWnd(L"g"));
    pUnit->Notify(7, 8);
    host.Open(L"A1");
    Log().Take();
    pUnit->Notify(9, 10);
    EXPECT_EQ(Log().Take("Notify"), "helper.Notify9,10");
    host.CloseActive();
    pUnit->Notify(11, 12);
    EXPECT_EQ(Log().Take("Notify"), "");
}

TEST(GlobalUnits, StayWithTheFrameInFrontWhenAnotherNeverGetsThere)
{
    for (const bool bThrow : {true, false}) {
        for (const wchar_t* pszFront : {L"A1", L"D1"}) {
            FrameHost host;
            host.Load(Frames());
            CBaseFrameDoc* pFront = host.Open(pszFront);
            const std::string strPanes = host.Panes();
            Log().hooks["b.Init"] = [&](CBaseUnitWnd* pUnit) {
                EXPECT_NE(host.m_pMain->FindGlobalBaseUnitWnd(L"g")->GetParent(), pFront->m_pView);
                if (bThrow)
                    throw 1;
                pUnit->GetParentFrame()->SendMessage(WM_CLOSE);
            };
            try {
                host.Open(L"B1");
            } catch (int) {
                EXPECT_TRUE(bThrow);
            }
            host.Settle();
            EXPECT_EQ(host.ActiveDoc(), pFront);
            EXPECT_TRUE(StandsIn(host, pFront));
            EXPECT_EQ(host.Panes(), strPanes);
            EXPECT_EQ(CSplitLine::m_pRoot, pFront->m_pRoot);
        }
    }
}

TEST(GlobalUnits, CommandsReachAllAndTheLastAnswers)
{
    FrameHost host;
    host.Load(Frames());
    const struct
    {
        LRESULT nFirst;
        LRESULT nSecond;
        LRESULT nResult;
    } cases[] = {{0, 0, 0}, {5, 0, 0}, {0, 5, 1}};
    for (const auto& c : cases) {
        Log().answers = {{"g.Command40,1", c.nFirst}, {"h.Command40,1", c.nSecond}};
        EXPECT_EQ(host.m_pMain->ProcessCommand(40, 1), c.nResult);
    }
    host.Open(L"A1");
    Log().answers = {{"a.Command40,1", 1}};
    EXPECT_EQ(host.ActiveFrame()->ProcessCommand(40, 1), 1);
    Log().answers = {{"h.Command40,1", 1}};
    EXPECT_EQ(host.ActiveFrame()->ProcessCommand(40, 1), 1);
    Log().answers.clear();
    EXPECT_EQ(host.ActiveFrame()->ProcessCommand(40, 1), 0);
}

// Units change places, and the global one is lent meanwhile: it comes back to where it stood last.
TEST(GlobalUnits, ComeBackToThePaneTheyWereMovedTo)
{
    const struct
    {
        const char* what;
        std::function<bool(FrameHost&, CBaseUnitWnd* pGlobal)> move;
    } moves[] = {
        {"with a pane",
         [](FrameHost& host, CBaseUnitWnd*) { return host.Unit(L"a")->ReplaceBaseUnit(L"a", L"g"); }},
        {"out of its pane",
         [](FrameHost& host, CBaseUnitWnd*) { return host.Unit(L"a")->ReplaceBaseUnit(L"u", L"g"); }},
        {"into a pane of another unit",
         [](FrameHost& host, CBaseUnitWnd* pGlobal) {
             return host.Unit(L"a")->ReplaceBaseUnit(L"u", L"g") &&
                    host.ActiveDoc()->m_pRoot->Replace(L"a", pGlobal);
         }},
    };
    for (const auto& move : moves) {
        SCOPED_TRACE(move.what);
        FrameHost host;
        host.Load(LayoutXml(GlobalXml(L"g") +
                            FrameXml(L"A", L"a b u", {{L"A1", L"a b u g", L"m V a r 0.3;r H g b 0.2"}}) +
                            FrameXml(L"B", L"b", {{L"B1", L"g b", L"m H g b"}})));
        CBaseFrameDoc* pA = host.Open(L"A1");
        host.Unit(L"u")->ShowWindow(SW_HIDE);
        ASSERT_TRUE(move.move(host, host.m_pMain->FindGlobalBaseUnitWnd(L"g")));
        host.ActiveFrame()->RecalcLayout();
        const std::string strPanes = host.Panes();
        for (int i = 0; i < 2; ++i) {
            host.Open(L"B1");
            host.m_pMain->MDINext();
            host.Settle();
            EXPECT_EQ(host.Panes(), strPanes);
            EXPECT_EQ(splitframe::CheckTree(*pA->m_pRoot), "");
        }
    }
}
