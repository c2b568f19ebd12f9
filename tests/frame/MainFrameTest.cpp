// The main frame as its host meets it: initialisation, names and their buffers, commands beyond the menu's
// range, and its own end.
#include "platform/window/WindowManager.h"
#include "support/FrameHost.h"

#include "definition/FrameStyle.h"
#include "definition/LayoutValues.h"

#include <cstdio>
#include <fstream>

using namespace test;

TEST(MainFrame, NamesAreDeliveredAsFarAsTheyFit)
{
    const std::wstring str18(18, L's');
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"A", L"", {{str18, L"", L""}}) +
                        FrameXml(L"B", L"", {{L"ab\U0001F600", L"", L""}})));
    const struct
    {
        const wchar_t* frame;
        int nSize;
        std::wstring strDelivered; // before the terminator
    } cases[] = {
        {L"A", 20, str18}, {L"A", 19, str18}, {L"A", 18, str18.substr(1)},
        {L"A", 2, L"s"},   {L"A", 1, L""},    {L"B", 5, L"ab\xD83D\xDE00"},
        {L"B", 4, L"ab"},  {L"B", 3, L"ab"},  {L"B", 2, L"a"},
    };
    for (const auto& c : cases) {
        host.Open(c.frame);
        std::vector<wchar_t> buffer(25, L'#');
        host.m_pMain->GetCurrentBaseFrameName(buffer.data(), c.nSize);
        std::wstring strExpected =
            c.strDelivered + std::wstring(static_cast<std::size_t>(c.nSize) - c.strDelivered.size(), L'\0');
        strExpected += std::wstring(25 - strExpected.size(), L'#');
        EXPECT_EQ(std::wstring(buffer.begin(), buffer.end()), strExpected) << c.nSize;
    }
    wchar_t chKeep = L'#';
    host.m_pMain->GetCurrentBaseFrameName(&chKeep, 0);
    host.m_pMain->GetCurrentBaseFrameName(&chKeep, -3);
    host.m_pMain->GetCurrentBaseFrameName(nullptr, 5);
    EXPECT_EQ(chKeep, L'#');
    host.CloseActive();
    host.CloseActive();
    host.m_pMain->GetCurrentBaseFrameName(&chKeep, 1);
    EXPECT_EQ(chKeep, L'\0');
}

TEST(MainFrame, AppSiteIsReadBelowTheRoot)
{
    const struct
    {
        const wchar_t* text;
        const wchar_t* site;
    } cases[] = {
        {L"<x><AppSite>http://here/</AppSite></x>", L"http://here/"},
        {L"<x><AppSite/></x>", L""},
        {L"<x><y><AppSite>deeper</AppSite></y></x>", L"http://localhost/"},
        {L"<AppSite>root</AppSite>", L"http://localhost/"},
        {L"no markup", L"http://localhost/"},
        {nullptr, L"http://localhost/"},
    };
    for (const auto& c : cases)
        EXPECT_EQ(CBaseFrameWnd::GetAppSite(c.text), CString(c.site));
}

TEST(MainFrame, CommandsBeyondTheRangeDoNothing)
{
    for (const int nFrames : {101, 150}) {
        FrameHost host;
        std::wstring strFrames;
        for (int i = 0; i < nFrames; ++i)
            strFrames += FrameXml(L"F" + std::to_wstring(i), L"", {{L"S" + std::to_wstring(i), L"", L""}});
        host.Load(LayoutXml(strFrames));
        EXPECT_EQ(::GetMenuItemCount(host.m_pMain->m_hBaseFrameMenu), nFrames);
        host.m_pMain->SendMessage(WM_COMMAND, 601);
        EXPECT_EQ(host.OpenFrames(), "");
        host.m_pMain->SendMessage(WM_COMMAND, 600);
        EXPECT_EQ(host.OpenFrames(), "F100");
        host.Open((L"S" + std::to_wstring(nFrames - 1)).c_str());
        EXPECT_EQ(host.ActiveDoc()->m_strName, CString((L"F" + std::to_wstring(nFrames - 1)).c_str()));
    }
}

TEST(MainFrame, AFileIsReadAsItsTextAndOneThatCanNotBeReadGivesNoFrames)
{
    const CString strPath((testing::TempDir() + "splitframe-main-frame-test.xml").c_str());
    FrameHost host;
    host.Load(L"<x/>"); // registers the classes
    const auto initialize = [&] {
        return host.m_pMain->InitializeByFile(host.m_pTemplate, strPath, nullptr, nullptr, 0, nullptr,
                                              nullptr, 0);
    };
    EXPECT_EQ(initialize(), 1);
    EXPECT_FALSE(host.m_pMain->GetLoadResult().bOpened);
    EXPECT_EQ(host.m_arrDiagnostic.size(), 1U);
    EXPECT_EQ(::GetMenuItemCount(host.m_pMain->m_hBaseFrameMenu), 0);
    host.m_pMain->OnBaseFrameOpen(500U);
    EXPECT_EQ(host.OpenFrames(), "");

    const std::wstring strXml = LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a", L""}}));
    std::ofstream(strPath.ToUtf8()) << CString(strXml.c_str()).ToUtf8();
    EXPECT_EQ(initialize(), 1);
    EXPECT_TRUE(host.m_pMain->GetLoadResult().bParsed);
    EXPECT_TRUE(host.Open(L"F"));
    std::remove(strPath.ToUtf8().c_str());
}

TEST(MainFrame, ATemplateOfOtherClassesMakesNoFrame)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a", L""}})));
    CMultiDocTemplate noFrame(2, RUNTIME_CLASS(CBaseFrameDoc), RUNTIME_CLASS(RecordingUnit),
                              RUNTIME_CLASS(CBaseFrameView));
    CMultiDocTemplate noDoc(3, RUNTIME_CLASS(RecordingUnit), RUNTIME_CLASS(CBaseFrameChildWnd),
                            RUNTIME_CLASS(CBaseFrameView));
    for (CMultiDocTemplate* pTemplate : {&noFrame, &noDoc, static_cast<CMultiDocTemplate*>(nullptr)}) {
        host.m_pMain->m_pDocTemplate = pTemplate;
        EXPECT_FALSE(host.Open(L"F"));
        EXPECT_TRUE(!pTemplate || pTemplate->GetDocumentCount() == 0);
    }
    host.m_pMain->m_pDocTemplate = host.m_pTemplate;
    EXPECT_TRUE(host.Open(L"F"));
}

// The library's view in a frame of another class, and the library's frame around another view.
TEST(MainFrame, MixedClassesFallBackToTheirBases)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"a b", L"m V a b"}})));
    CMultiDocTemplate plainFrame(2, RUNTIME_CLASS(CBaseFrameDoc), RUNTIME_CLASS(CMDIChildWnd),
                                 RUNTIME_CLASS(CBaseFrameView));
    host.m_pMain->m_pDocTemplate = &plainFrame;
    host.m_pMain->OnBaseFrameOpen(L"F");
    host.Settle();
    EXPECT_EQ(plainFrame.GetDocumentCount(), 1);
    EXPECT_EQ(host.ActiveFrame(), nullptr);
    host.m_pMain->GetActiveFrame()->SendMessage(WM_CLOSE);
    EXPECT_EQ(plainFrame.GetDocumentCount(), 0);
    host.m_pMain->m_pDocTemplate = host.m_pTemplate;
}

TEST(MainFrame, ActivationReachesTheUnits)
{
    FrameHost host;
    host.Load(LayoutXml(GlobalXml(L"g") + FrameXml(L"F", L"a", {{L"S", L"a", L"m V a -"}})));
    host.Open(L"F");
    Log().Take();
    host.m_pDisplay->Activate(false);
    host.Settle();
    EXPECT_EQ(Log().Take("Command10"), "a.Command10,0 g.Command10,0");
    host.m_pDisplay->Activate(true);
    host.Settle();
    EXPECT_EQ(Log().Take("Command10"), "a.Command10,1 g.Command10,1");
}

TEST(MainFrame, OneOnTheStackEndsWithItsFramesOpen)
{
    const auto old = splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(300, 200));
    Log() = EventLog();
    {
        CWinApp app(L"Host");
        auto* pTemplate =
            new CMultiDocTemplate(1, RUNTIME_CLASS(CBaseFrameDoc), RUNTIME_CLASS(CBaseFrameChildWnd),
                                  RUNTIME_CLASS(CBaseFrameView));
        app.AddDocTemplate(pTemplate);
        CBaseFrameWnd main;
        app.m_pMainWnd = &main;
        ASSERT_TRUE(main.LoadFrame(1));
        main.ActivateFrame(SW_SHOW);
        GUID guidUnit;
        splitframe::TextToGuid(UNIT_GUID.c_str(), guidUnit);
        CRuntimeClass* pUnitClass = RUNTIME_CLASS(RecordingUnit);
        main.InitializeByDoc(
            pTemplate,
            LayoutXml(GlobalXml(L"g") + FrameXml(L"F", L"a", {{L"S", L"a g", L"m V a g"}})).c_str(),
            &guidUnit, &pUnitClass, 1, nullptr, nullptr, 0);
        main.OnBaseFrameOpen(L"F");
        EXPECT_EQ(Log().nUnits, 2);
    }
    EXPECT_EQ(Log().nUnits, 0);
    splitframe::DrainMessages();
    splitframe::SetDisplay(nullptr);
}
