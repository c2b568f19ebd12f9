// The unit window in a headless display: making, painting, input handed on, commands, notifications, and
// units that are deleted by their own hooks.
#include "definition/UnitInfo.h"
#include "platform/base/Diagnostics.h"
#include "platform/display/Headless.h"
#include "platform/docview/WinApp.h"
#include "platform/graphics/Surface.h"
#include "platform/window/Menu.h"
#include "platform/window/PaintDC.h"
#include "platform/window/WindowManager.h"
#include "support/HostWindow.h"
#include "unit/BaseUnitWnd.h"
#include "unit/UnitObserver.h"

#include <gtest/gtest.h>

#include <functional>
#include <memory>
#include <string>
#include <vector>

namespace {

using testing_support::HostWindow;

constexpr COLORREF BORDER = RGB(132, 0, 0);
constexpr COLORREF CONTENT = RGB(10, 200, 30);

// A parent that notes the input it gets.
class NotingWindow : public HostWindow
{
public:
    NotingWindow() : HostWindow(CRect(20, 30, 420, 330)) {}

    std::vector<std::string> m_notes;

protected:
    LRESULT WindowProc(UINT nMessage, WPARAM wParam, LPARAM lParam) override
    {
        if (nMessage == WM_MOUSEMOVE || nMessage == WM_LBUTTONDOWN || nMessage == WM_LBUTTONUP)
            m_notes.push_back(std::to_string(nMessage) + " flags " + std::to_string(wParam) + " at " +
                              std::to_string(GET_X_LPARAM(lParam)) + "," +
                              std::to_string(GET_Y_LPARAM(lParam)));
        if (nMessage == WM_KEYDOWN)
            m_notes.push_back("key " + std::to_string(wParam) + " " + std::to_string(lParam));
        return HostWindow::WindowProc(nMessage, wParam, lParam);
    }
};

// A unit that notes its hooks, and runs at each what the test gives it.
class NotingUnit : public CBaseUnitWnd
{
public:
    void ProcessActivate2(bool b) override { Note(b ? "activate2" : "deactivate2"); }
    LRESULT ProcessCommand(UINT nCmd, LPARAM lParam) override
    {
        Note("command " + std::to_string(nCmd) + " " + std::to_string(lParam));
        return 77;
    }
    void OnStyleChange(bool b) override
    {
        Note("style " + std::to_string(b) + std::to_string(m_bCustomDraw));
    }
    void OnMDIActivate(BOOL b, CWnd*, CWnd*) override
    {
        Note("mdi " + std::to_string(b) + std::to_string(m_bCustomDraw));
    }
    LRESULT OnEngineData(WPARAM wParam, LPARAM lParam) override
    {
        Note("data " + std::to_string(wParam) + " " + std::to_string(lParam));
        return 5;
    }
    bool IsKeyFilted(UINT nChar) override
    {
        const bool bKept = CBaseUnitWnd::IsKeyFilted(nChar);
        Note("filter"); // may delete the unit, here and below
        return bKept;
    }
    CPen* GetBorderPen() override
    {
        CPen* pPen = CBaseUnitWnd::GetBorderPen();
        Note("pen");
        return pPen;
    }
    using CBaseUnitWnd::Notify;

    std::string m_strNotes;
    std::function<void(const std::string&)> m_onNote;

protected:
    void CustomDraw(CPaintDC* pDC) override
    {
        CRect rc;
        GetClientRect(rc);
        pDC->FillSolidRect(rc, CONTENT);
        Note("draw");
    }
    LRESULT UpdateMenu(CMenu* pMenu, CString strText) override
    {
        Note("menu " + strText.ToUtf8() + (pMenu ? " m" : " 0"));
        return 6;
    }

private:
    void Note(const std::string& strWhat)
    {
        m_strNotes += strWhat + ";";
        if (const auto onNote = m_onNote)
            onNote(strWhat);
    }
};

class UnitWindow : public testing::Test
{
protected:
    UnitWindow()
    {
        m_pOldDisplay = splitframe::SetDisplay(std::make_unique<splitframe::HeadlessDisplay>(640, 480));
        m_app = std::make_unique<CWinApp>(L"test");
        m_host = std::make_unique<NotingWindow>();
        m_app->m_pMainWnd = m_host.get();
        m_info.m_strName = L"chart";
        m_info.m_x = 50;
        m_info.m_y = 40;
        m_info.m_cx = 60;
        m_info.m_cy = 30;
        m_oldHook =
            SetDiagnosticsHook([this](const Diagnostic& d) { m_strReports += d.strMessage.ToUtf8() + ";"; });
    }
    ~UnitWindow() override
    {
        SetDiagnosticsHook(m_oldHook);
        delete m_pUnit;
        m_app->m_pMainWnd = nullptr;
        m_host.reset();
        m_app.reset();
        splitframe::SetDisplay(std::move(m_pOldDisplay));
    }

    NotingUnit& Make()
    {
        m_pUnit = new NotingUnit;
        EXPECT_TRUE(m_pUnit->Create(m_host.get(), &m_info));
        m_pUnit->ShowWindow(SW_SHOW);
        return *m_pUnit;
    }
    void DeleteUnit() { delete std::exchange(m_pUnit, nullptr); }
    // A pixel in the unit's client coordinates, after all painting.
    COLORREF Pixel(int x, int y)
    {
        splitframe::DrainMessages();
        return splitframe::CurrentHeadless()->Shown().GetPixel(20 + 50 + x, 30 + 40 + y);
    }

    std::unique_ptr<splitframe::Display> m_pOldDisplay;
    std::unique_ptr<CWinApp> m_app;
    std::unique_ptr<NotingWindow> m_host;
    CBaseUnitInfo m_info;
    NotingUnit* m_pUnit = nullptr;
    DiagnosticsHook m_oldHook;
    std::string m_strReports;
};

TEST_F(UnitWindow, IsCreatedHiddenFromItsRecord)
{
    NotingUnit unit;
    unit.m_bActivated = true;
    ASSERT_TRUE(unit.Create(m_host.get(), &m_info));
    CRect rc;
    unit.GetWindowRect(rc);
    EXPECT_EQ(rc, CRect(70, 70, 130, 100));
    EXPECT_FALSE(unit.IsWindowVisible());
    EXPECT_FALSE(unit.m_bActivated);
    EXPECT_EQ(unit.GetWindowText(), CString(L"chart"));
    EXPECT_EQ(unit.m_strName, CString(L"chart"));
    EXPECT_EQ(unit.m_pHostWnd, m_host.get());
    EXPECT_EQ(unit.GetStyle() & (WS_CHILD | WS_CLIPSIBLINGS), WS_CHILD | WS_CLIPSIBLINGS);
    EXPECT_TRUE(unit.m_bBorder);
    for (const bool bShown : unit.m_bShowSide)
        EXPECT_TRUE(bShown);
}

TEST_F(UnitWindow, WithoutARecordItIsPlain)
{
    CBaseUnitWnd unit;
    ASSERT_TRUE(unit.Create(m_host.get(), nullptr));
    CRect rc;
    unit.GetWindowRect(rc);
    EXPECT_EQ(rc, CRect(20, 30, 120, 130));
    EXPECT_TRUE(unit.m_bBorder);
    EXPECT_TRUE(unit.m_strName.IsEmpty());
    EXPECT_EQ(unit.GetWindowText().ToUtf8().rfind("BaseUnit-1751320394-59798-19735-", 0), 0U);
    unit.SetWidthFixed(true); // nothing to fix
    EXPECT_EQ(unit.GetMaxWidth(), 10000);
}

TEST_F(UnitWindow, IsMadeFromItsRuntimeClass)
{
    const std::unique_ptr<CObject> object(RUNTIME_CLASS(CBaseUnitWnd)->CreateObject());
    EXPECT_TRUE(object->IsKindOf(RUNTIME_CLASS(CWnd)));
    EXPECT_TRUE(DynamicDownCast<CBaseUnitWnd>(object.get()));
    const GUID guid = {0x6863074A, 0xE996, 0x4D17, {0xA3, 0xAF, 0x7F, 0xA2, 0xD0, 0x93, 0x54, 0x1B}};
    EXPECT_EQ(DynamicDownCast<CBaseUnitWnd>(object.get())->GetGUID(), guid);
}

TEST_F(UnitWindow, ParametersAreKeptInUpperCase)
{
    CBaseUnitWnd unit;
    EXPECT_TRUE(unit.Init(L"id=7,color=red"));
    EXPECT_EQ(unit.m_strParam, CString(L"ID=7,COLOR=RED"));
    EXPECT_TRUE(unit.Init(nullptr));
    EXPECT_TRUE(unit.m_strParam.IsEmpty());
}

TEST_F(UnitWindow, DrawsThreeBorderLines)
{
    NotingUnit& unit = Make();
    unit.StyleChange(true);
    unit.Invalidate();
    EXPECT_EQ(Pixel(0, 0), BORDER);
    EXPECT_EQ(Pixel(0, 29), BORDER);
    EXPECT_EQ(Pixel(30, 0), BORDER);
    EXPECT_EQ(Pixel(59, 29), BORDER);
    EXPECT_EQ(Pixel(30, 29), CONTENT); // the lower pane's top line parts them
    EXPECT_EQ(Pixel(30, 15), CONTENT);

    unit.m_bBorder = false;
    unit.Invalidate();
    EXPECT_EQ(Pixel(0, 0), CONTENT);
}

TEST_F(UnitWindow, PaintsItsContentOnlyInAFrameThatShowsIt)
{
    NotingUnit& unit = Make();
    const auto painted = [&] {
        unit.m_strNotes.clear();
        unit.Invalidate();
        Pixel(1, 1);
        return unit.m_strNotes;
    };
    EXPECT_EQ(painted(), "pen;");
    unit.StyleChange(true);
    EXPECT_EQ(painted(), "draw;pen;");
    unit.StyleChange(false);
    EXPECT_EQ(painted(), "pen;");
    unit.MDIActivate(TRUE, nullptr, nullptr);
    EXPECT_EQ(painted(), "draw;pen;");
    unit.m_strNotes.clear();
    unit.MDIActivate(FALSE, nullptr, nullptr);
    unit.StyleChange(true);
    EXPECT_EQ(unit.m_strNotes, "mdi 00;style 11;");
    m_info.m_nBorderStyle = 0;
    DeleteUnit();
    NotingUnit& plain = Make();
    plain.Invalidate();
    splitframe::DrainMessages();
    EXPECT_EQ(plain.m_strNotes, "");
}

TEST_F(UnitWindow, HandsKeysOnToTheMainWindow)
{
    NotingUnit& unit = Make();
    const UINT passed[] = {'0',   '9',   'A',    'Z',    VK_NUMPAD0, VK_NUMPAD9,
                           VK_F1, VK_F6, VK_F10, VK_TAB, VK_ESCAPE};
    for (const UINT nKey : passed) {
        m_host->m_notes.clear();
        unit.SendMessage(WM_KEYDOWN, nKey, MAKELPARAM(3, 0x14D));
        EXPECT_EQ(m_host->m_notes, std::vector<std::string>{"key " + std::to_string(nKey) + " " +
                                                            std::to_string(MAKELPARAM(3, 0x14D))});
    }
    m_host->m_notes.clear();
    for (const UINT nKey : {UINT{VK_F1 + 6}, UINT{VK_LEFT}, UINT{VK_RETURN}, UINT{'0' - 1}, UINT{'Z' + 1}})
        unit.SendMessage(WM_KEYDOWN, nKey, 0);
    EXPECT_TRUE(m_host->m_notes.empty());
}

TEST_F(UnitWindow, LetsTheViewSeeTheMouseNearItsEdges)
{
    NotingUnit& unit = Make();
    struct Case
    {
        CPoint pt;
        bool bPosted;
    };
    const Case cases[] = {{{0, 15}, true},   {{1, 15}, true},   {{2, 15}, false},  {{57, 15}, false},
                          {{58, 15}, true},  {{59, 15}, true},  {{60, 15}, false}, {{30, 0}, true},
                          {{30, 1}, true},   {{30, 2}, false},  {{30, 28}, true},  {{30, 29}, true},
                          {{30, 30}, false}, {{30, 27}, false}, {{-1, 15}, false}};
    for (const Case& c : cases) {
        m_host->m_notes.clear();
        unit.SendMessage(WM_MOUSEMOVE, 9, MAKELPARAM(c.pt.x, c.pt.y));
        EXPECT_TRUE(m_host->m_notes.empty()); // posted, not sent
        splitframe::DrainMessages();
        std::vector<std::string> expected;
        if (c.bPosted)
            expected.push_back("512 flags 9 at " + std::to_string(50 + c.pt.x) + "," +
                               std::to_string(40 + c.pt.y));
        EXPECT_EQ(m_host->m_notes, expected) << c.pt.x << "," << c.pt.y;
    }
}

TEST_F(UnitWindow, HandsButtonPressesOnFromAnywhere)
{
    NotingUnit& unit = Make();
    unit.SendMessage(WM_LBUTTONDOWN, 1, MAKELPARAM(30, 15));
    unit.SendMessage(WM_LBUTTONUP, 4, MAKELPARAM(-3, 2));
    const std::vector<std::string> expected = {"513 flags 1 at 80,55", "514 flags 4 at 47,42"};
    EXPECT_EQ(m_host->m_notes, expected);
}

TEST_F(UnitWindow, TakesTheFocusOnCommand)
{
    NotingUnit& unit = Make();
    m_host->SetFocus();
    EXPECT_EQ(unit.OnProcessCommand(10, 0), 77);
    EXPECT_EQ(CWnd::GetFocus(), m_host.get());
    EXPECT_EQ(unit.OnProcessCommand(10, 1), 77);
    EXPECT_EQ(CWnd::GetFocus(), &unit);
    m_host->SetFocus();
    unit.ShowWindow(SW_HIDE);
    unit.OnProcessCommand(10, 1);
    EXPECT_EQ(CWnd::GetFocus(), m_host.get());
    EXPECT_EQ(unit.OnProcessCommand(16, 0), 77);
    EXPECT_EQ(CWnd::GetFocus(), &unit);
    EXPECT_EQ(unit.m_strNotes, "command 10 0;command 10 1;command 10 1;command 16 0;");

    CBaseUnitWnd bare; // no window: nothing to focus
    EXPECT_EQ(bare.OnProcessCommand(10, 1) + bare.OnProcessCommand(16, 0), 0);
    EXPECT_EQ(CWnd::GetFocus(), &unit);
}

TEST_F(UnitWindow, RunsItsActivationAgainOnlyWhenActivated)
{
    NotingUnit& unit = Make();
    unit.OnProcessCommand(18, 2);
    EXPECT_EQ(unit.m_strNotes, "command 18 2;");
    unit.m_strNotes.clear();
    unit.ProcessActivate(true);
    unit.OnProcessCommand(18, 2);
    EXPECT_EQ(unit.m_strNotes, "deactivate2;activate2;command 18 2;");
}

TEST_F(UnitWindow, PassesDataAndMenusToItsHooks)
{
    NotingUnit& unit = Make();
    EXPECT_EQ(unit.SendMessage(UNIT_MSG_ENGINE_DATA, 3, 4), 5);
    CMenu menu;
    EXPECT_EQ(unit.SendMessage(UNIT_MSG_UPDATE_MENU, reinterpret_cast<WPARAM>(&menu),
                               reinterpret_cast<LPARAM>(L"view")),
              6);
    EXPECT_EQ(unit.SendMessage(UNIT_MSG_UPDATE_MENU, 0, 0), 6);
    EXPECT_EQ(unit.m_strNotes, "data 3 4;menu view m;menu  0;");
}

TEST_F(UnitWindow, NotifiesWithItsParent)
{
    static std::vector<void*> s_parents;
    static UINT s_nCode;
    s_parents.clear();
    NotingUnit& unit = Make();
    unit.Notify(1, 2); // nobody listens
    unit.SetNotifyFunc([](void* pParent, UINT nCode, LPARAM) {
        s_parents.push_back(pParent);
        s_nCode = nCode;
    });
    unit.Notify(42, 0);
    unit.SetNotifyFunc(nullptr);
    unit.Notify(43, 0);
    EXPECT_EQ(s_parents, std::vector<void*>{static_cast<CWnd*>(m_host.get())});
    EXPECT_EQ(s_nCode, 42U);
}

TEST_F(UnitWindow, OutsideOfFramesItsCallsToTheFrameDoNothing)
{
    NotingUnit& unit = Make();
    NotingUnit bare;
    CBaseUnitWnd::BroadcastCommand(9, 0);
    unit.OpenBaseFrame(L"main");
    EXPECT_EQ(unit.ProcessHelperMessage(1177, 0, 0), -1);
    EXPECT_EQ(bare.ProcessHelperMessage(1177, 0, 0), -1);
    m_app->m_pMainWnd = nullptr;
    CBaseUnitWnd::BroadcastCommand(9, 0);
    unit.OpenBaseFrame(L"main");
    unit.SendMessage(WM_KEYDOWN, 'A', 0);
    EXPECT_EQ(unit.m_strNotes, "filter;");
}

TEST_F(UnitWindow, FixesItsSizesInTheRecord)
{
    NotingUnit& unit = Make();
    m_info.m_nMaxWidth = 80;
    m_info.m_nMaxHeight = 90;
    unit.SetWidthFixed(true);
    EXPECT_EQ(m_info.m_nMinWidth, 80);
    EXPECT_TRUE(unit.IsWidthFixed());
    EXPECT_FALSE(unit.IsHeightFixed());
    unit.SetHeightFixed(true);
    EXPECT_EQ(m_info.m_nMinHeight, 90);
    unit.SetWidthFixed(false);
    unit.SetHeightFixed(false);
    EXPECT_EQ(m_info.m_nMinWidth + m_info.m_nMinHeight, 0);
}

TEST_F(UnitWindow, SurvivesBeingDeletedInsideItsOwnHooks)
{
    struct Case
    {
        const char* pszHook;
        std::function<void(NotingUnit&)> act;
    };
    const Case cases[] = {
        {"draw",
         [](NotingUnit& unit) {
             unit.StyleChange(true);
             unit.Invalidate();
             splitframe::DrainMessages();
         }},
        {"pen",
         [](NotingUnit& unit) {
             unit.Invalidate();
             splitframe::DrainMessages();
         }},
        {"filter", [](NotingUnit& unit) { unit.SendMessage(WM_KEYDOWN, 'A', 0); }},
        {"deactivate2",
         [](NotingUnit& unit) {
             unit.m_bActivated = true;
             EXPECT_EQ(unit.OnProcessCommand(18, 0), 0);
         }},
        {"data 1 0", [](NotingUnit& unit) { unit.SendMessage(UNIT_MSG_ENGINE_DATA, 1, 0); }},
        {"command 9 0", [](NotingUnit& unit) { EXPECT_EQ(unit.OnProcessCommand(9, 0), 77); }},
        {"style 11", [](NotingUnit& unit) { unit.StyleChange(true); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszHook);
        NotingUnit& unit = Make();
        splitframe::DrainMessages();
        unit.m_onNote = [&](const std::string& strWhat) {
            if (strWhat == c.pszHook)
                DeleteUnit();
        };
        c.act(unit);
        EXPECT_EQ(m_pUnit, nullptr);
        splitframe::DrainMessages();
    }
    EXPECT_EQ(m_strReports, "");
}

TEST_F(UnitWindow, AThrowingHookIsReportedAndTheUnitWorksOn)
{
    NotingUnit& unit = Make();
    unit.StyleChange(true);
    splitframe::DrainMessages();
    unit.m_onNote = [](const std::string& strWhat) {
        if (strWhat == "draw")
            throw std::runtime_error("out of paint");
    };
    unit.Invalidate();
    splitframe::DrainMessages();
    EXPECT_NE(m_strReports, "");
    m_strReports.clear();
    unit.m_onNote = nullptr;
    unit.Invalidate();
    EXPECT_EQ(Pixel(0, 0), BORDER);
    EXPECT_EQ(m_strReports, "");
}

class ThrowingUnit : public CBaseUnitWnd
{
public:
    explicit ThrowingUnit(bool bThrow)
    {
        if (bThrow)
            throw 1;
    }
};

TEST_F(UnitWindow, AThrowingConstructorLeavesNothingBehind)
{
    CSplitLine line(CSplitLine::NT_VLINE, false, nullptr);
    EXPECT_THROW(ThrowingUnit{true}, int);
    line.ModifyWindow(CRect(0, 0, 10, 10));
    EXPECT_TRUE(line.IsLeaf());
}

TEST_F(UnitWindow, EndsWithItsWindowAndLeavesItsTree)
{
    auto line = std::make_unique<CSplitLine>(CSplitLine::NT_VLINE, false, m_host.get());
    NotingUnit& unit = Make();
    line->m_pFirst = &unit;
    unit.m_pParent = line.get();
    const HWND hUnit = unit.m_hWnd;
    CSplitLine* pLeaf = &unit;
    m_pUnit = nullptr;
    delete pLeaf; // by its leaf, as a tree would name it
    EXPECT_FALSE(IsWindow(hUnit));
    EXPECT_EQ(line->m_pFirst.Get(), nullptr);
}

TEST(UnitObserver, HearsOfEachDeletedUnitAndMayLeaveMeanwhile)
{
    using splitframe::CUnitObserver;
    std::vector<CBaseUnitWnd*> first, second;
    std::unique_ptr<CUnitObserver> leaving, late;
    CUnitObserver stays([&](CBaseUnitWnd* p) { first.push_back(p); });
    leaving = std::make_unique<CUnitObserver>([&](CBaseUnitWnd* p) {
        second.push_back(p);
        leaving.reset();
        late = std::make_unique<CUnitObserver>([](CBaseUnitWnd*) {});
    });
    auto* pUnit = new CBaseUnitWnd;
    delete pUnit;
    EXPECT_EQ(first, std::vector{pUnit});
    EXPECT_EQ(second, std::vector{pUnit});
    EXPECT_FALSE(leaving);
    delete new CBaseUnitWnd;
    EXPECT_EQ(first.size(), 2U);
    EXPECT_EQ(second.size(), 1U);
}

} // namespace
