// Hosts' hooks that do what they should not: close their frame, open others, delete units, throw. Every test
// ends with nothing left and with frames that open and close as before.
#include "platform/window/Menu.h"
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

using namespace test;

namespace {

// Frame A: a and b are carried from S to T by ID, c and d are not; g stands in S and T, h in T only.
std::wstring Frames()
{
    return LayoutXml(GlobalXml(L"g h") +
                     FrameXml(L"A", L"a b c d",
                              {{L"S", L"a=ID=1 b=ID=2 c g", L"m V a r;r H b q 0.25;q V c g"},
                               {L"T", L"b=ID=2 d g h a=ID=1", L"m H b r 0.25;r V d q;q H g s;s V h a"},
                               {L"U", L"d=ID=2 c h", L""}}) +
                     FrameXml(L"B", L"e", {{L"B1", L"e g", L"m V e g"}}));
}

CFrameWnd* FrameA(FrameHost& host)
{
    for (int i = 0; i < host.m_pTemplate->GetDocumentCount(); ++i) {
        auto* pDoc = DynamicDownCast<CBaseFrameDoc>(host.m_pTemplate->GetDocument(i));
        if (pDoc && pDoc->m_strName == L"A" && pDoc->m_pView)
            return pDoc->m_pView->GetParentFrame();
    }
    return nullptr;
}

void CloseA(FrameHost& host)
{
    if (CFrameWnd* pFrame = FrameA(host))
        pFrame->SendMessage(WM_CLOSE);
}

void DestroyA(FrameHost& host)
{
    if (CFrameWnd* pFrame = FrameA(host))
        pFrame->DestroyWindow();
}

// What is done at some moment of a frame, and when: from its making to its end, or in a switch only.
struct Life
{
    const char* what;
    std::vector<const char*> arrMoment;
    std::function<void(FrameHost&)> before;
    std::function<void(FrameHost&)> live;
};

const Life LIVES[] = {
    {"open, work, close",
     {"a.Create", "a.InitID=1", "a.Focus", "a.Active1", "a.Use1", "a.Size", "a.Draw", "a.Click", "a.Active0",
      "a.Key70", "a.Destroy", "a.Use0", "b.Create", "b.InitID=2", "b.Size", "b.Use1"},
     [](FrameHost&) {},
     [](FrameHost& host) {
         host.Open(L"S");
         for (const UINT nMsg : {WM_LBUTTONDOWN, WM_KEYDOWN}) {
             if (CBaseUnitWnd* pUnit = host.Unit(L"a"))
                 pUnit->SendMessage(nMsg, 'F');
             host.Settle();
         }
         host.Open(L"B1");
         host.Open(L"S");
         host.CloseActive();
     }},
    {"switch",
     {"g.HandleA", "c.Show0", "c.Style0", "b.Style0", "d.Create", "d.Init", "d.Size", "h.Size", "b.Style1",
      "b.Focus", "b.Command16,0", "a.Style1", "a.Size", "d.Use1", "helper.StyleInitial",
      "helper.CalcWindowRect"},
     [](FrameHost& host) { host.Open(L"S"); },
     [](FrameHost& host) { host.ActiveDoc()->ChangeStyle(1, true); }},
};

struct Deed
{
    const char* what;
    std::function<void(FrameHost&, const CBaseUnitWnd* pCaller)> run;
    bool bFrameStays = true; // A can be opened with all its units again
};

const Deed DEEDS[] = {
    {"close the frame", [](FrameHost& host, const CBaseUnitWnd*) { CloseA(host); }},
    {"destroy the frame", [](FrameHost& host, const CBaseUnitWnd*) { DestroyA(host); }},
    {"open another frame",
     [](FrameHost& host, const CBaseUnitWnd*) { host.m_pMain->OnBaseFrameOpen(L"B1"); }},
    {"open its own frame", [](FrameHost& host, const CBaseUnitWnd*) { host.m_pMain->OnBaseFrameOpen(L"S"); }},
    {"close and open again",
     [](FrameHost& host, const CBaseUnitWnd*) {
         CloseA(host);
         host.m_pMain->OnBaseFrameOpen(L"T");
     }},
    {"switch on",
     [](FrameHost& host, const CBaseUnitWnd*) {
         if (host.ActiveDoc() && host.ActiveDoc()->m_strName == L"A")
             host.ActiveDoc()->ChangeStyle(2, true);
     }},
    {"switch back",
     [](FrameHost& host, const CBaseUnitWnd*) {
         if (host.ActiveDoc())
             host.ActiveDoc()->ChangeStyle(L"S");
     }},
    {"delete the other units",
     [](FrameHost& host, const CBaseUnitWnd* pCaller) {
         for (const wchar_t* pszName : {L"a", L"b", L"c", L"d"}) {
             CBaseUnitWnd* pUnit = host.Unit(pszName);
             if (pUnit != pCaller)
                 delete pUnit;
         }
     }},
    {"destroy the units' windows",
     [](FrameHost& host, const CBaseUnitWnd*) {
         for (const wchar_t* pszName : {L"a", L"b", L"c", L"d"}) {
             if (CBaseUnitWnd* pUnit = host.Unit(pszName))
                 pUnit->DestroyWindow();
         }
     }},
    {"delete a global unit",
     [](FrameHost& host, const CBaseUnitWnd* pCaller) {
         CBaseUnitWnd* pUnit = host.m_pMain->FindGlobalBaseUnitWnd(L"g");
         if (pUnit != pCaller)
             delete pUnit;
     },
     false},
    {"clear the definition",
     [](FrameHost& host, const CBaseUnitWnd*) { host.m_pMain->FindBaseFrameDoc(L"A")->Clear(); }, false},
    {"lay the frame out",
     [](FrameHost& host, const CBaseUnitWnd*) {
         if (host.ActiveFrame())
             host.ActiveFrame()->RecalcLayout();
         if (host.ActiveDoc() && host.ActiveDoc()->m_pRoot)
             host.ActiveDoc()->m_pRoot->ModifyWindow();
     }},
    {"throw an int", [](FrameHost&, const CBaseUnitWnd*) { throw 1; }},
    {"throw an exception object", [](FrameHost&, const CBaseUnitWnd*) { AfxThrowInvalidArgException(); }},
    {"close the main window",
     [](FrameHost& host, const CBaseUnitWnd*) { host.m_pMain->SendMessage(WM_CLOSE); }, false},
    {"destroy the main window", [](FrameHost& host, const CBaseUnitWnd*) { host.m_pMain->DestroyWindow(); },
     false},
};

// Frames open and close as before, nothing is left of them, and the global units are there.
void ExpectUsable(FrameHost& host)
{
    host.Open(L"B1");
    CBaseFrameDoc* pDoc = host.Open(L"S");
    ASSERT_TRUE(pDoc);
    EXPECT_EQ(pDoc->m_strName, CString(L"A"));
    host.ExpectSound();
    host.CloseActive();
    host.Open(L"S");
    for (const wchar_t* pszName : {L"a", L"b", L"c"})
        EXPECT_TRUE(host.Unit(pszName));
    EXPECT_EQ(host.m_pMain->FindGlobalBaseUnitWnd(L"g")->GetParent(), host.ActiveView());
    host.ExpectSound();
    host.CloseActive();
    host.CloseActive();
    EXPECT_EQ(Log().nUnits, 2);
}

void TryOut(const Life& life, const char* pszMoment, const Deed& deed)
{
    FrameHost host;
    host.Load(Frames());
    life.before(host);
    int nRuns = 0;
    Log().hooks[pszMoment] = [&](const CBaseUnitWnd* pCaller) {
        // A frame that reopens itself each time it is made or activated would do so for ever.
        if (++nRuns <= 2 && host.m_app.m_pMainWnd)
            deed.run(host, pCaller);
    };
    try {
        life.live(host);
    } catch (int) {
        EXPECT_STREQ(deed.what, "throw an int");
    } catch (CException* pException) {
        pException->Delete();
        EXPECT_STREQ(deed.what, "throw an exception object");
    }
    EXPECT_GT(nRuns, 0);
    host.Settle();
    Log().hooks.clear();
    if (!host.m_app.m_pMainWnd)
        return;
    host.ExpectSound();
    if (deed.bFrameStays)
        ExpectUsable(host);
}

} // namespace

TEST(Hooks, MayDoAnythingAtAnyMoment)
{
    for (const Life& life : LIVES) {
        for (const Deed& deed : DEEDS) {
            for (const char* pszMoment : life.arrMoment) {
                SCOPED_TRACE(std::string(life.what) + ": " + deed.what + " in " + pszMoment);
                TryOut(life, pszMoment, deed);
            }
        }
    }
}

TEST(Hooks, AGlobalUnitWhoseHidingClosesTheAdoptingFrameStaysWhereItWas)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pB = host.Open(L"B1");
    const std::string strPanes = host.Panes();
    Log().hooks["g.Hidden"] = [&](CBaseUnitWnd*) { DestroyA(host); };
    host.Open(L"S");
    EXPECT_EQ(host.OpenFrames(), "B");
    EXPECT_EQ(host.ActiveDoc(), pB);
    EXPECT_EQ(host.m_pMain->FindGlobalBaseUnitWnd(L"g")->GetParent(), pB->m_pView);
    EXPECT_EQ(host.Panes(), strPanes);
    host.ExpectSound();
}

// A unit of one frame asks the user; meanwhile a unit of the other frame ends everything.
TEST(Hooks, TheMainFrameMayGoWhileAnAnswerIsAwaited)
{
    const std::function<void(HWND)> questions[] = {
        [](HWND hMain) { ::MessageBoxW(hMain, L"Sure?", L"", MB_YESNO); },
        [](HWND) { AfxMessageBox(L"Sure?", MB_YESNO); },
        [](HWND hMain) {
            CMenu menu;
            menu.CreatePopupMenu();
            menu.AppendMenu(MF_STRING, 7, L"seven");
            ::TrackPopupMenu(menu.GetSafeHmenu(), TPM_RETURNCMD, 5, 5, hMain);
        },
    };
    for (const char* pszMoment :
         {"a.Click", "a.Focus", "a.Active0", "a.Size", "a.Draw", "a.Destroy", "a.Use1"}) {
        for (const auto& question : questions) {
            for (const bool bAsked : {false, true}) {
                SCOPED_TRACE(testing::Message()
                             << pszMoment << ' ' << &question - questions << ' ' << bAsked);
                FrameHost host;
                host.m_pDisplay->SetClock(0);
                host.m_pDisplay->SetMessageBoxAnswer([](const auto&) { return 0; });
                host.Load(Frames());
                host.Open(L"B1");
                const HWND hOther = host.Unit(L"e")->GetSafeHwnd();
                const HWND hMain = host.m_pMain->GetSafeHwnd();
                int nAsked = 0;
                Log().hooks[pszMoment] = [&](CBaseUnitWnd*) {
                    if (++nAsked > 1)
                        return;
                    ::PostMessage(hOther, WM_SETFOCUS, 0, 0); // no input: a menu would take that
                    question(hMain);
                };
                Log().hooks["e.Focus"] = [&](CBaseUnitWnd*) {
                    if (nAsked > 0)
                        bAsked ? ::SendMessage(hMain, WM_CLOSE) : ::DestroyWindow(hMain);
                };
                LIVES[0].live(host);
                EXPECT_GT(nAsked, 0);
                // A frame in the middle of its end is not closed yet, and keeps the main frame.
                const bool bStays = bAsked && std::string(pszMoment) == "a.Destroy";
                EXPECT_EQ(::GetTopWindow(nullptr), bStays ? hMain : nullptr);
            }
        }
    }
}

TEST(Hooks, AClassThatThrowsWhenItIsMade)
{
    FrameHost host;
    host.Load(LayoutXml(
        FrameXml(L"A", L"a", {{L"S", L"a x b", L"m V a b"}}, UnitXml(L"x", OTHER_UNIT_GUID) + UnitXml(L"b")) +
        FrameXml(L"B", L"c", {{L"T", L"c", L""}})));
    for (int i = 0; i < 3; ++i) {
        EXPECT_THROW(host.Open(L"A"), int);
        EXPECT_EQ(host.OpenFrames(), "");
        EXPECT_EQ(Log().nUnits, 0);
    }
    EXPECT_TRUE(host.Open(L"B"));
    // As a command it is caught at dispatch and told.
    host.m_arrDiagnostic.clear();
    host.m_pMain->SendMessage(WM_COMMAND, 500);
    EXPECT_EQ(host.m_arrDiagnostic.size(), 1U);
    EXPECT_EQ(host.OpenFrames(), "B");
}

namespace {

class ThrowingTemplate : public CMultiDocTemplate
{
public:
    using CMultiDocTemplate::CMultiDocTemplate;
    CFrameWnd* CreateNewFrame(CDocument* pDoc, CFrameWnd* pOther) override
    {
        if (m_bAfterwards)
            CMultiDocTemplate::CreateNewFrame(pDoc, pOther);
        throw 5;
    }
    bool m_bAfterwards = false;
};

} // namespace

TEST(Hooks, ATemplateThatThrowsLeavesNothing)
{
    FrameHost host;
    host.Load(Frames());
    auto* pTemplate = new ThrowingTemplate(2, RUNTIME_CLASS(CBaseFrameDoc), RUNTIME_CLASS(CBaseFrameChildWnd),
                                           RUNTIME_CLASS(CBaseFrameView));
    host.m_app.AddDocTemplate(pTemplate);
    host.m_pMain->m_pDocTemplate = pTemplate;
    for (const bool bAfterwards : {false, true}) {
        pTemplate->m_bAfterwards = bAfterwards;
        EXPECT_THROW(host.Open(L"S"), int);
        EXPECT_EQ(pTemplate->GetDocumentCount(), 0);
        EXPECT_TRUE(host.m_pMain->GetChildFrames().empty());
    }
    host.m_pMain->m_pDocTemplate = host.m_pTemplate;
    ExpectUsable(host);
}

TEST(Hooks, ACachedUnitThatLostItsWindowGetsANewOne)
{
    FrameHost host;
    host.Load(Frames());
    CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"A");
    CBaseUnitWnd* pUnit = pDefinition->CreateBaseUnitWnd(L"a");
    pUnit->DestroyWindow();
    EXPECT_EQ(pDefinition->CreateBaseUnitWnd(L"a"), pUnit);
    EXPECT_EQ(pUnit->GetParent(), host.m_pMain);
    pUnit->DestroyWindow();
    CBaseFrameDoc* pDoc = host.Open(L"S");
    EXPECT_EQ(host.Unit(L"a"), pUnit);
    EXPECT_EQ(pUnit->GetParent(), pDoc->m_pView);
    EXPECT_EQ(pDefinition->GetWndCacheCount(), 0);
    EXPECT_NE(host.Panes().find("a "), std::string::npos);
}

TEST(Hooks, AGlobalClassThatThrowsReachesTheCaller)
{
    FrameHost host;
    EXPECT_THROW(
        host.Load(LayoutXml(L"<GLOBAL>" + UnitXml(L"g") + UnitXml(L"x", OTHER_UNIT_GUID) + L"</GLOBAL>")),
        int);
    EXPECT_TRUE(host.m_pMain->FindGlobalBaseUnitWnd(L"g"));
}
