// What a person does with the workbench in a real window.
#include "Session.h"

#include "Theme.h"

#include <X11/keysym.h>

#include <cmath>

namespace {

std::uint32_t Shown(COLORREF color)
{
    return splitframe::PixelFromColor(color) & 0xFFFFFFU;
}

class WorkbenchSession : public Session
{
protected:
    using Session::Session;

    /// Whether a pane's edge stands in this column of the window, seen in the rows of the rectangle.
    static bool IsEdge(const Picture& picture, int x, const CRect& rcRows)
    {
        const int nTop = rcRows.top + theme::CAPTION_HEIGHT + 4;
        for (int y = nTop; y < rcRows.bottom - 4; ++y) {
            if (picture.At(x, y) != Shown(theme::LINE))
                return false;
        }
        return true;
    }
    bool HasFocusMark(const wchar_t* pszUnit)
    {
        const CRect rc = RectOf(pszUnit);
        return m_screen.Take().At(rc.left + rc.Width() / 2, rc.top + 1) == Shown(theme::ACCENT);
    }
};

TEST_F(WorkbenchSession, DraggingALine)
{
    OpenInstruments();
    ASSERT_TRUE(ShowsTheSame());
    const CRect rcBefore = RectOf(L"Table");
    const CRect rcCard = RectOf(L"Details");
    const CPoint ptLine(rcBefore.right, rcBefore.CenterPoint().y);
    ASSERT_TRUE(IsEdge(m_screen.Take(), rcBefore.right - 1, rcCard));

    const std::uint64_t nArrow = m_screen.CursorHash();
    m_screen.MoveMouse(ptLine);
    EXPECT_TRUE(WaitUntil([&] { return m_screen.CursorHash() != nArrow; })) << "the sizing cursor";
    const Picture before = m_screen.Take();
    m_screen.Button(true);
    for (int dx = 0; dx >= -160; dx -= 20)
        m_screen.MoveMouse(ptLine + CPoint(dx, 0));
    EXPECT_TRUE(WaitUntil([&] { return m_screen.Take().CountDifferences(before) > 500; })) << "the indicator";
    EXPECT_TRUE(ShowsTheSame());
    EXPECT_TRUE(IsEdge(m_screen.Take(), rcBefore.right - 1, rcCard)) << "no pane has moved";
    m_screen.Button(false);
    ASSERT_TRUE(Until([&] { return RectOf(L"Table").right != rcBefore.right; }));
    EXPECT_NEAR(RectOf(L"Table").right, rcBefore.right - 160, 3);
    EXPECT_TRUE(ShowsTheSame());
    const Picture after = m_screen.Take();
    EXPECT_TRUE(IsEdge(after, RectOf(L"Table").right - 1, rcCard));
    EXPECT_FALSE(IsEdge(after, rcBefore.right - 1, rcCard));
    // Once more, from where the mouse is.
    const int nRight = RectOf(L"Table").right;
    m_screen.Button(true);
    m_screen.MoveMouse(ptLine + CPoint(-100, 0));
    m_screen.Button(false);
    EXPECT_TRUE(Until([&] { return RectOf(L"Table").right > nRight + 50; }));
    m_screen.MoveMouse(rcCard.CenterPoint());
    EXPECT_TRUE(WaitUntil([&] { return m_screen.CursorHash() == nArrow; }));
}

TEST_F(WorkbenchSession, TabGoesThroughThePanes)
{
    OpenInstruments();
    const wchar_t* const apszUnits[] = {L"Table", L"Details", L"Trend"};
    ASSERT_TRUE(WaitUntil([&] { return HasFocusMark(L"Table"); }));
    for (int n = 1; n <= 2; ++n) {
        m_screen.Press("Tab");
        EXPECT_TRUE(WaitUntil([&] { return HasFocusMark(apszUnits[n]); })) << n;
        EXPECT_FALSE(HasFocusMark(apszUnits[n - 1])) << n;
    }
    EXPECT_TRUE(ShowsTheSame());
}

TEST_F(WorkbenchSession, FramesAndStylesByMenuAndClosing)
{
    OpenInstruments();
    const CRect rcTable = RectOf(L"Table");
    // Another style of the same frame, by keys only.
    m_screen.Key("Alt_L", true);
    m_screen.Press("r");
    m_screen.Key("Alt_L", false);
    GoToMenuLine(L"Instruments");
    m_screen.Press("Right");
    GoToMenuLine(L"Table and journal");
    m_screen.Press("Return");
    ASSERT_TRUE(Until([&] { return FindUnit(L"Log") && RectOf(L"Table").Width() > rcTable.Width(); }));
    EXPECT_TRUE(ShowsTheSame());
    const CRect rcLog = RectOf(L"Log");
    EXPECT_EQ(m_screen.Take().At(rcLog.left + 20, rcLog.top), Shown(theme::LINE))
        << "the panes lie one below the other";

    m_screen.Key("Control_L", true);
    m_screen.Press("F4");
    m_screen.Key("Control_L", false);
    ASSERT_TRUE(Until([&] { return ActiveName() == L"Overview"; }));
    EXPECT_TRUE(WaitUntil([&] { return m_screen.Title() == "Pilot Plant Workbench - Overview"; }));

    m_screen.AskToClose();
    EXPECT_EQ(m_pProgram->WaitForEnd(), 0);
}

TEST_F(WorkbenchSession, SizesIconsAndTheFocusOfOtherPrograms)
{
    OpenInstruments();
    for (const CSize& size : {CSize(900, 700), CSize(1, 1), CSize(1400, 900)}) {
        m_screen.Resize(size);
        ASSERT_TRUE(Until([&] { return Display().Size().cx == size.cx && Display().Size().cy == size.cy; }));
        EXPECT_TRUE(ShowsTheSame());
    }
    m_screen.Key("Alt_L", true);
    m_screen.Focus(false);
    EXPECT_TRUE(Until([&] { return WasTold(" deactivate"); }));
    m_screen.Key("Alt_L", false);
    m_screen.Focus(true);
    m_screen.Press("Tab");
    EXPECT_TRUE(Until([&] { return WasTold(" key 9"); }));
    EXPECT_FALSE(WasTold(" keyup 18")) << "a stroke of Alt would have opened the menu bar";
    EXPECT_TRUE(ShowsTheSame());
}

TEST_F(WorkbenchSession, ComposedText)
{
    m_screen.Click(MenuTitle(L"Frames"));
    m_screen.Click(MenuLine(L"Trends"));
    m_screen.Click(MenuLine(L"One trend"));
    ASSERT_TRUE(Until([&] { return ActiveName() == L"Trends" && FindUnit(L"Settings"); }));
    m_screen.Click(CPoint(RectOf(L"Settings").CenterPoint().x, RectOf(L"Settings").top + 60));
    m_screen.TypeComposed(XK_eacute);
    EXPECT_TRUE(Until([&] { return WasTold(" text \xC3\xA9"); }));
    EXPECT_TRUE(ShowsTheSame());
}

TEST_F(WorkbenchSession, IdlingUsesNoProcessorTime)
{
    OpenInstruments();
    ASSERT_TRUE(ShowsTheSame());
    const long nBefore = m_pProgram->ProcessorTime();
    std::this_thread::sleep_for(std::chrono::seconds(2)); // the time that is measured
    EXPECT_LE(m_pProgram->ProcessorTime() - nBefore, 60)
        << "milliseconds in two seconds; the clock ticks once a second";
}

TEST_F(WorkbenchSession, EndsWithTheScreen)
{
    m_screen.CutOff();
    EXPECT_EQ(m_pProgram->WaitForEnd(), 1);
}

constexpr double SCALE = 1.25;

class ScaledSession : public WorkbenchSession
{
protected:
    ScaledSession() : WorkbenchSession({"--scale", "1.25"}) {}
    static int ToDevice(int n) { return static_cast<int>(std::floor(n * SCALE + 0.5)); }
};

TEST_F(ScaledSession, PlacesInTheWindowAndOfTheMouse)
{
    EXPECT_EQ(m_screen.Size(), CSize(ToDevice(1280), ToDevice(800)));
    const CRect rc = RectOf(L"Diagram");
    const CRect rcRows(0, ToDevice(rc.top), 0, ToDevice(rc.bottom));
    const int nEdge = ToDevice(rc.right - 1);
    EXPECT_TRUE(WaitUntil([&] { return IsEdge(m_screen.Take(), nEdge, rcRows); }));
    EXPECT_FALSE(IsEdge(m_screen.Take(), nEdge - 1, rcRows));
    m_screen.MoveMouse(CPoint(ToDevice(301), ToDevice(402)));
    EXPECT_TRUE(Until([&] { return WasTold(" move 301,402"); }));
}

} // namespace
