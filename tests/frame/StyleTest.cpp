// Switching the style of an open frame: which windows stay, who is told what, where global units go, and what
// hooks may do in between.
#include "platform/base/Exception.h"
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"

using namespace test;

namespace {

// Frame A: a and b are carried by ID, c and d are not; g stands in S and T, h in T only; U has no lines.
std::wstring Frames()
{
    return LayoutXml(GlobalXml(L"g h") +
                     FrameXml(L"A", L"a b c d",
                              {{L"S", L"a=ID=1 b=ID=2 c g", L"m V a r;r H b q 0.25;q V c g"},
                               {L"T", L"b=ID=2 d g h a=ID=1", L"m H b r 0.25;r V d q;q H g s;s V h a"},
                               {L"U", L"d=ID=2 c h", L""}}) +
                     FrameXml(L"B", L"e", {{L"B1", L"e g", L"m V e g"}}));
}

CWnd* ParentOfGlobal(FrameHost& host, const wchar_t* pszName)
{
    return host.m_pMain->FindGlobalBaseUnitWnd(pszName)->GetParent();
}

} // namespace

TEST(Style, TellsUnitsAndHelperInOrder)
{
    FrameHost host;
    host.Load(LayoutXml(
        FrameXml(L"A", L"a b c", {{L"S", L"a=ID=1 b", L"m V a b"}, {L"T", L"c a=ID=1", L"m H c a"}})));
    CBaseFrameDoc* pDoc = host.Open(L"A");
    Log().Take();
    pDoc->ChangeStyle(1, true);
    host.Settle();
    // The layout's first pass keeps the old width of what is there; each pane is painted once.
    EXPECT_EQ(
        Log().Take(),
        "a.Style0 b.Hidden b.Show0 b.Style0 c.Size c.Create c.Init helper.StyleInitial helper.CalcWindowRect "
        "c.Style1 c.Focus c.Command16,0 a.Style1 a.Size c.Use1 c.Size a.Size c.Size c.Draw a.Draw");
    EXPECT_EQ(CWnd::GetFocus(), pDoc->GetBaseUnitWnd(L"c"));
    EXPECT_EQ(Told(host.m_arrDiagnostic), "");
}

TEST(Style, ASwitchBackBringsTheSameWindowsToTheSamePlaces)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(
        L"A", L"a b c",
        {{L"S", L"a=ID=1 b=ID=2", L"m V a b"}, {L"T", L"b=ID=2 c=ID=3 a=ID=1", L"m H r a;r V b c"}})));
    CBaseFrameDoc* pDoc = host.Open(L"S");
    const CBaseUnitWnd* pA = host.Unit(L"a");
    const CBaseUnitWnd* pB = host.Unit(L"b");
    pDoc->ChangeStyle(1, false);
    host.Settle();
    const std::string strT = host.Panes();
    const CBaseUnitWnd* pC = host.Unit(L"c");
    pDoc->SetCurrentBaseUnitWnd(2);
    pDoc->ChangeStyle(0, false);
    const std::string strS = host.Panes();
    EXPECT_EQ(pDoc->GetCurrentBaseUnitWnd(), 0);
    EXPECT_EQ(CWnd::GetFocus(), pA);
    EXPECT_FALSE(pC->IsWindowVisible());
    Log().Take();
    host.Unit(L"a")->SetNotifyFunc(nullptr);
    pDoc->ChangeStyle(1, false);
    EXPECT_EQ(pA->m_pfnNotify, nullptr) << "stays as its host left it";
    EXPECT_EQ(Log().Take("Create"), "");
    EXPECT_EQ(host.Panes(), strT);
    EXPECT_EQ(host.Unit(L"c"), pC);
    pDoc->ChangeStyle(0, false);
    EXPECT_EQ(host.Panes(), strS);
    EXPECT_EQ(host.Unit(L"a"), pA);
    EXPECT_EQ(host.Unit(L"b"), pB);
    EXPECT_EQ(Log().nUnits, 3);
    host.ExpectSound();
}

TEST(Style, ByNameIgnoresCaseAndByIndexChecksIt)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pDoc = host.Open(L"S");
    const std::string strPanes = host.Panes();
    Log().Take();
    EXPECT_TRUE(pDoc->ChangeStyle(L"s"));
    EXPECT_FALSE(pDoc->ChangeStyle(L"x"));
    EXPECT_FALSE(pDoc->ChangeStyle(nullptr));
    EXPECT_THROW(pDoc->ChangeStyle(3, false), CInvalidArgException*);
    EXPECT_THROW(pDoc->ChangeStyle(-1, false), CInvalidArgException*);
    EXPECT_EQ(Log().Take(), "");
    pDoc->ChangeStyle(0, true); // only takes the global units again
    EXPECT_EQ(Log().Take(), "g.HandleA");
    EXPECT_EQ(host.Panes(), strPanes);
    EXPECT_TRUE(pDoc->ChangeStyle(L"t"));
    EXPECT_STREQ(pDoc->GetCurrentStyleName(), L"T");
}

TEST(Style, AUnitWithoutIDIsMadeAnewAndTheOldOneWaitsHidden)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pDoc = host.Open(L"S");
    const CBaseUnitWnd* pFirst = host.Unit(L"c");
    for (int i = 0; i < 3; ++i) {
        pDoc->ChangeStyle(1, false);
        pDoc->ChangeStyle(0, false);
    }
    EXPECT_NE(host.Unit(L"c"), pFirst);
    EXPECT_EQ(pDoc->GetWndCacheCount(), 6); // three c, three d
    host.ExpectSound();
    host.CloseActive();
    EXPECT_EQ(Log().nUnits, 2); // g, h
}

TEST(Style, WithoutLinesShowsItsWindows)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pDoc = host.Open(L"S");
    pDoc->ChangeStyle(2, false);
    EXPECT_EQ(pDoc->m_pRoot, nullptr);
    EXPECT_EQ(CSplitLine::m_pRoot, nullptr);
    // b came with the ID that the style gives to d.
    EXPECT_EQ(pDoc->GetBaseUnitWnd(0)->m_pBaseUnitInfo->m_strName, CString(L"b"));
    EXPECT_EQ(pDoc->GetBaseUnitWndCount(), 2);
    for (const wchar_t* pszName : {L"b", L"c"}) {
        EXPECT_TRUE(host.Unit(pszName)->IsWindowVisible());
        EXPECT_TRUE(host.Unit(pszName)->m_bActivated);
    }
    EXPECT_TRUE(host.m_pMain->FindGlobalBaseUnitWnd(L"h")->IsWindowVisible());
    host.ExpectSound();
}

TEST(Style, GlobalUnitsComeAndGoHome)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pDoc = host.Open(L"S");
    const CBaseUnitWnd* pH = host.m_pMain->FindGlobalBaseUnitWnd(L"h");
    pDoc->ChangeStyle(1, false);
    EXPECT_EQ(pH->GetParent(), pDoc->m_pView);
    EXPECT_TRUE(pH->IsWindowVisible());
    ::SetFocus(pH->m_hWnd);
    pDoc->ChangeStyle(0, false);
    EXPECT_EQ(pH->GetParent(), host.m_pMain);
    EXPECT_FALSE(pH->IsWindowVisible());
    EXPECT_EQ(CWnd::GetFocus(), host.Unit(L"a"));
    EXPECT_EQ(ParentOfGlobal(host, L"g"), pDoc->m_pView);
    host.ExpectSound();
}

TEST(Style, AGlobalUnitStandsInForAUnitOfItsName)
{
    FrameHost host;
    // The frame has a unit of its own with the global unit's name; only the switch takes the global one.
    host.Load(LayoutXml(GlobalXml(L"x") +
                        FrameXml(L"A", L"a", {{L"S", L"a=ID=1", L""}, {L"T", L"x a=ID=1", L""}}) +
                        FrameXml(L"B", L"e", {{L"B1", L"e x", L"m V e x"}})));
    CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"A");
    auto* pOwn = new CBaseUnitInfo;
    pOwn->m_strName = L"x";
    pOwn->m_guid = pDefinition->m_arrBaseUnitInfo[0]->m_guid;
    pDefinition->m_arrBaseUnitInfo.Add(pOwn);
    pDefinition->m_arrStyle[1]->m_arrBaseUnitInfo.SetAt(0, pOwn);
    CBaseFrameDoc* pDoc = host.Open(L"S");
    pDoc->ChangeStyle(1, false);
    EXPECT_EQ(pDoc->GetBaseUnitWndCount(), 1);
    EXPECT_EQ(ParentOfGlobal(host, L"x"), pDoc->m_pView);
    EXPECT_TRUE(host.m_pMain->FindGlobalBaseUnitWnd(L"x")->IsWindowVisible());
    host.Open(L"B1");
    EXPECT_NE(ParentOfGlobal(host, L"x"), pDoc->m_pView);
    host.m_pMain->MDINext();
    EXPECT_EQ(ParentOfGlobal(host, L"x"), pDoc->m_pView);
}

TEST(Style, ASideFindsTheWindowThatCameInTheUnitsPlace)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(
        L"A", L"a b c", {{L"S", L"a=ID=1 b=ID=2", L"m V a b"}, {L"T", L"c=ID=1 b=ID=2", L"m V c b"}})));
    CBaseFrameDoc* pDoc = host.Open(L"S");
    const std::string strPanes = host.Panes();
    const CBaseUnitWnd* pA = host.Unit(L"a");
    pDoc->ChangeStyle(1, false);
    EXPECT_EQ(host.Unit(L"a"), pA); // with its own record
    EXPECT_EQ(host.Unit(L"c"), nullptr);
    EXPECT_EQ(pDoc->m_pRoot->m_pFirst->GetUnitWnd(), pA);
    host.ActiveFrame()->RecalcLayout();
    EXPECT_EQ(host.Panes(), strPanes);
    EXPECT_EQ(Told(host.m_arrDiagnostic), "");
}

TEST(Style, AWindowMadeBeforeTheFrameWasOpenedIsTakenByItsID)
{
    for (const bool bDestroyed : {false, true}) {
        FrameHost host;
        host.Load(LayoutXml(FrameXml(L"A", L"a b", {{L"T", L"a b=ID=5", L"m V a b"}, {L"S", L"a", L""}})));
        CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"A");
        CBaseUnitWnd* pB = pDefinition->CreateBaseUnitWnd(L"b");
        CBaseFrameDoc* pDoc = host.Open(L"S");
        if (bDestroyed)
            pB->DestroyWindow();
        pDoc->ChangeStyle(0, false);
        EXPECT_EQ(host.Unit(L"b"), pB);
        EXPECT_EQ(pB->GetParent(), pDoc->m_pView);
        EXPECT_TRUE(pB->IsWindowVisible());
        EXPECT_EQ(pB->m_strParam, CString(L"ID=5"));
        EXPECT_TRUE(pB->m_pfnNotify);
        EXPECT_EQ(pDefinition->GetWndCacheCount(), 0);
        host.ExpectSound();
    }
}

TEST(Style, TooFewParametersAreFoundAfterTheOldUnitsHaveLeft)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pDoc = host.Open(L"S");
    host.m_pMain->FindBaseFrameDoc(L"A")->m_arrStyle[1]->m_arrParam.RemoveAt(4);
    EXPECT_THROW(pDoc->ChangeStyle(1, false), CInvalidArgException*);
    EXPECT_EQ(pDoc->m_nCurStyle, 1);
    EXPECT_EQ(host.Unit(L"c"), nullptr);
    pDoc->ChangeStyle(0, false);
    EXPECT_TRUE(host.Unit(L"a")->IsWindowVisible());
    host.ExpectSound();
}

TEST(Style, OpeningAnOpenFrameSwitchesIt)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pA = host.Open(L"S");
    host.m_pMain->SendMessage(WM_COMMAND, 501);
    host.Settle();
    EXPECT_EQ(host.ActiveDoc(), pA);
    EXPECT_STREQ(pA->GetCurrentStyleName(), L"T");
    const std::string strPanes = host.Panes();
    host.ActiveFrame()->RecalcLayout();
    EXPECT_EQ(host.Panes(), strPanes) << "a switch ends with the pixels of any other layout";
    host.Open(L"B1");
    Log().Take();
    host.Open(L"U"); // from behind another frame
    EXPECT_EQ(host.ActiveDoc(), pA);
    EXPECT_STREQ(pA->GetCurrentStyleName(), L"U");
    EXPECT_EQ(Log().Take("Use0"), "e.Use0 helper.Use0");
    host.Open(L"B");
    host.Open(L"A"); // by its name: with the style that it has
    EXPECT_STREQ(pA->GetCurrentStyleName(), L"U");
    EXPECT_EQ(host.OpenFrames(), "A B");
    host.m_pMain->FindBaseFrameDoc(L"A")->Clear();
    EXPECT_THROW(host.m_pMain->OnBaseFrameOpen(L"A"), CInvalidArgException*) << "nothing to switch to";
}

TEST(Style, AHundredOpeningsLeaveNothingBehind)
{
    FrameHost host;
    host.Load(Frames());
    std::string strPanes;
    for (int i = 0; i < 100; ++i) {
        CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"A");
        pDefinition->CreateBaseUnitWnd(i % 2 == 0 ? L"a" : L"d");
        host.Open(L"S");
        host.Open(L"T");
        host.Open(L"S");
        if (i == 0)
            strPanes = host.Panes();
        ASSERT_EQ(host.Panes(), strPanes) << i;
        host.CloseActive();
        ASSERT_EQ(Log().nUnits, 2) << i;
        ASSERT_EQ(pDefinition->GetWndCacheCount(), 0);
    }
}

TEST(Style, TheLastSwitchThatHooksAskForCountsAndTheyEnd)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pDoc = host.Open(L"S");
    // In the middle of S to T: the switch is finished, then the last one asked for is made.
    Log().hooks["helper.StyleInitial"] = [&](CBaseUnitWnd*) {
        Log().hooks.clear();
        EXPECT_TRUE(pDoc->ChangeStyle(L"S"));
        EXPECT_TRUE(pDoc->ChangeStyle(L"U"));
        EXPECT_STREQ(pDoc->GetCurrentStyleName(), L"T");
    };
    Log().Take();
    pDoc->ChangeStyle(1, false);
    EXPECT_STREQ(pDoc->GetCurrentStyleName(), L"U");
    EXPECT_EQ(Log().Take("b.Style"), "b.Style0 b.Style1 b.Style0 b.Style1");
    host.ExpectSound();

    Log().hooks["helper.StyleInitial"] = [&](CBaseUnitWnd*) {
        pDoc->ChangeStyle(1 - pDoc->m_nCurStyle % 2, false);
    };
    pDoc->ChangeStyle(0, false);
    Log().hooks.clear();
    EXPECT_EQ(host.m_arrDiagnostic.size(), 1U);
    host.ExpectSound();

    // While the frame is being made, too.
    host.CloseActive();
    Log().hooks["a.Init"
                "ID=1"] = [&](CBaseUnitWnd*) {
        auto* pNew = DynamicDownCast<CBaseFrameDoc>(host.m_pTemplate->GetDocument(0));
        pNew->ChangeStyle(1, false);
        EXPECT_STREQ(pNew->GetCurrentStyleName(), L"S");
    };
    EXPECT_STREQ(host.Open(L"S")->GetCurrentStyleName(), L"T");
    host.ExpectSound();
}

// The record of a unit that is in no list yet.
TEST(Style, ADefinitionClearedWhileAUnitIsMadeLeavesItNoRecord)
{
    for (const wchar_t* pszStyle : {L"S", L"T"}) { // by Create, and by a switch
        FrameHost host;
        host.Load(Frames());
        host.Open(L"S");
        const std::string strUnit = *pszStyle == L'S' ? "c" : "d";
        if (*pszStyle == L'S')
            host.CloseActive();
        Log().hooks[strUnit + ".Create"] = [&](CBaseUnitWnd*) {
            host.m_pMain->FindBaseFrameDoc(L"A")->Clear();
        };
        int nInits = 0;
        Log().hooks[strUnit + ".Init"] = [&](CBaseUnitWnd* pUnit) {
            ++nInits;
            EXPECT_EQ(pUnit->m_pBaseUnitInfo, nullptr);
        };
        host.Open(pszStyle);
        EXPECT_EQ(nInits, 1);
    }
}
