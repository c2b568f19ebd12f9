// Hosts' hooks that do what they should not: close their frame, open others, delete units, throw. Every test
// ends with nothing left and with frames that open and close as before.
#include "layout/CheckTree.h"
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

using namespace test;

namespace {

std::wstring Frames()
{
    return LayoutXml(GlobalXml(L"g") + FrameXml(L"A", L"a b", {{L"A1", L"a b g", L"m V a r;r H b g"}}) +
                     FrameXml(L"B", L"c d", {{L"B1", L"c d", L"m V c d"}}));
}

// The moments at which a unit of frame A is called.
const char* const MOMENTS[] = {"a.Create", "a.Init",  "a.Focus",   "a.Active1", "a.Use1",    "a.Size",
                               "a.Draw",   "a.Click", "a.Active0", "a.Key70",   "a.Destroy", "a.Use0",
                               "b.Create", "b.Init",  "b.Size",    "b.Use1"};

// Goes through all moments.
void LiveThrough(FrameHost& host)
{
    host.Open(L"A1");
    if (CBaseUnitWnd* pUnit = host.Unit(L"a")) {
        pUnit->SendMessage(WM_LBUTTONDOWN);
        host.Settle();
    }
    if (CBaseUnitWnd* pUnit = host.Unit(L"a"))
        pUnit->SendMessage(WM_KEYDOWN, 'F');
    host.Settle();
    host.Open(L"B1");
    host.Open(L"A1");
    host.CloseActive();
}

void ExpectUsable(FrameHost& host)
{
    Log().hooks.clear();
    if (!host.m_app.m_pMainWnd)
        return;
    CBaseFrameDoc* pDoc = host.Open(L"A1");
    ASSERT_TRUE(pDoc);
    EXPECT_EQ(pDoc->m_strName, CString(L"A"));
    if (pDoc->m_pRoot) {
        EXPECT_EQ(splitframe::CheckTree(*pDoc->m_pRoot), "");
    }
    host.CloseActive();
    host.Open(L"A1");
    EXPECT_TRUE(host.Unit(L"a"));
    EXPECT_TRUE(host.Unit(L"b"));
    EXPECT_EQ(host.m_pMain->FindGlobalBaseUnitWnd(L"g")->GetParent(), host.ActiveView());
    EXPECT_EQ(splitframe::CheckWindowTree(), CString());
}

struct Deed
{
    const char* what;
    std::function<void(FrameHost&, CBaseUnitWnd*)> run;
};

const Deed DEEDS[] = {
    {"close the frame",
     [](FrameHost&, CBaseUnitWnd* pUnit) {
         if (CFrameWnd* pFrame = pUnit->GetParentFrame())
             pFrame->SendMessage(WM_CLOSE);
     }},
    {"destroy the frame",
     [](FrameHost& host, CBaseUnitWnd* pUnit) {
         CFrameWnd* pFrame = pUnit->GetParentFrame();
         if (pFrame && pFrame != host.m_pMain)
             pFrame->DestroyWindow();
     }},
    {"open another frame", [](FrameHost&, CBaseUnitWnd* pUnit) { pUnit->OpenBaseFrame(L"B1"); }},
    {"open its own frame", [](FrameHost&, CBaseUnitWnd* pUnit) { pUnit->OpenBaseFrame(L"A1"); }},
    {"close its frame and open it again",
     [](FrameHost& host, CBaseUnitWnd* pUnit) {
         CFrameWnd* pFrame = pUnit->GetParentFrame();
         if (pFrame && pFrame != host.m_pMain)
             pFrame->SendMessage(WM_CLOSE);
         host.m_pMain->OnBaseFrameOpen(L"A1");
     }},
    {"destroy its window", [](FrameHost&, CBaseUnitWnd* pUnit) { pUnit->DestroyWindow(); }},
    {"delete the other unit",
     [](FrameHost& host, CBaseUnitWnd* pUnit) {
         CBaseUnitWnd* pOther = host.Unit(pUnit->m_strName == L"a" ? L"b" : L"a");
         if (pOther != pUnit)
             delete pOther;
     }},
    {"delete the global unit",
     [](FrameHost& host, CBaseUnitWnd*) { delete host.m_pMain->FindGlobalBaseUnitWnd(L"g"); }},
    {"lay the frame out again",
     [](FrameHost& host, CBaseUnitWnd*) {
         if (CBaseFrameChildWnd* pFrame = host.ActiveFrame())
             pFrame->RecalcLayout();
     }},
    {"throw an int", [](FrameHost&, CBaseUnitWnd*) { throw 1; }},
    {"throw an exception object", [](FrameHost&, CBaseUnitWnd*) { AfxThrowInvalidArgException(); }},
    {"close the main window", [](FrameHost& host, CBaseUnitWnd*) { host.m_pMain->SendMessage(WM_CLOSE); }},
    {"destroy the main window", [](FrameHost& host, CBaseUnitWnd*) { host.m_pMain->DestroyWindow(); }},
};

} // namespace

TEST(Hooks, MayDoAnythingAtAnyMoment)
{
    for (const Deed& deed : DEEDS) {
        for (const char* pszMoment : MOMENTS) {
            SCOPED_TRACE(std::string(deed.what) + " in " + pszMoment);
            FrameHost host;
            host.Load(Frames());
            int nRuns = 0;
            Log().hooks[pszMoment] = [&](CBaseUnitWnd* pUnit) {
                // A frame that reopens itself each time it is made or activated would do so for ever.
                if (++nRuns <= 2 && host.m_app.m_pMainWnd)
                    deed.run(host, pUnit);
            };
            try {
                LiveThrough(host);
            } catch (int) {
                EXPECT_STREQ(deed.what, "throw an int");
            } catch (CException* pException) {
                pException->Delete();
                EXPECT_STREQ(deed.what, "throw an exception object");
            }
            if (std::string(deed.what) != "delete the global unit")
                ExpectUsable(host);
        }
    }
}

TEST(Hooks, AUnitDeletesItselfInAHandler)
{
    // Only where the library does not call into the unit itself afterwards: messages of its own.
    FrameHost host;
    host.Load(Frames());
    host.Open(L"A1");
    delete host.Unit(L"a");
    EXPECT_EQ(host.ActiveDoc()->GetBaseUnitWndCount(), 1);
    EXPECT_EQ(host.ActiveDoc()->m_arrBaseUnitWndID.GetSize(), 1);
    EXPECT_EQ(splitframe::CheckTree(*host.ActiveDoc()->m_pRoot), "");
    host.ActiveFrame()->RecalcLayout();
    EXPECT_EQ(host.Panes().find("a "), std::string::npos);
    ExpectUsable(host);
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
        EXPECT_THROW(host.Open(L"A1"), int);
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
    CBaseFrameDoc* pDoc = host.Open(L"A1");
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

TEST(Hooks, AThrowInPaintingIsToldAndTheFrameLives)
{
    FrameHost host;
    host.Load(Frames());
    Log().hooks["a.Draw"] = [](CBaseUnitWnd*) { throw 3; };
    host.Open(L"A1");
    EXPECT_FALSE(host.m_arrDiagnostic.empty());
    EXPECT_EQ(host.OpenFrames(), "A");
    ExpectUsable(host);
}
