// Working in the viewer's window: menus and keys, and a layout file that changes beneath it.
#include "Commands.h"
#include "LayoutText.h"
#include "WindowFixture.h"

#include "document/BaseFrameView.h"
#include "layout/SplitLine.h"
#include "platform/window/Menu.h"
#include "platform/window/MessageLoop.h"

using namespace layout_text;

namespace {

std::string TwoStyles(const std::string& strFrame)
{
    return Frame(strFrame,
                 Unit("A") + Unit("B") +
                     Style("S", Use("A", "ID=1") + Use("B", "ID=2") + Split("m", "V_LINE", "A", "B")) +
                     Style("T", Use("A", "ID=1") + Use("B", "ID=2") + Split("m", "H_LINE", "A", "B")));
}

constexpr UINT kF5 = VK_F1 + 4;

const std::string kTwoFrames = Layout(TwoStyles("F") + TwoStyles("G"));

viewer::Options AllFrames()
{
    viewer::Options options;
    options.bAll = true;
    return options;
}

} // namespace

TEST_F(ViewerWindowTest, ReadsAFileAnewAndKeepsFramesStylesAndSize)
{
    Start(kTwoFrames, AllFrames());
    Press('2', true);
    Window().ShowStyle(1, 0);
    const std::string strOpen = OpenFrames();
    const std::string strMore = Layout(TwoStyles("new") + TwoStyles("G") + TwoStyles("F"));
    m_place.Write("f.xml", strMore);
    Press(kF5);
    EXPECT_EQ(OpenFrames(), strOpen);
    EXPECT_EQ(Window().GetBaseFrameDocs().GetSize(), 3);
    EXPECT_EQ(Display().Size().cx, 800);
    EXPECT_EQ(Status(), "Reloaded 3 frames");

    // What is gone is not opened; where nothing is left, the first frame is.
    Replace(Layout(TwoStyles("new") + Frame("G", Unit("A") + Style("U", Use("A")))));
    LetFileSettle();
    EXPECT_EQ(OpenFrames(), "[G/U]");
    Replace(Layout(TwoStyles("other")));
    LetFileSettle();
    EXPECT_EQ(OpenFrames(), "[other/S]");
    for (int nTimes = 0; nTimes < 3; ++nTimes)
        Press(kF5);
    EXPECT_EQ(OpenFrames(), "[other/S]");
}

TEST_F(ViewerWindowTest, KeepsTheFramesWhileTheFileIsBroken)
{
    Start(kTwoFrames);
    const auto shown = [this](const char* pszWhere) {
        return Window().GetStatusLine().IsError() && Status().find(pszWhere) != std::string::npos;
    };
    Replace("<Layout>\n <BaseFrame>\n  </Layout>");
    LetFileSettle();
    EXPECT_TRUE(shown("f.xml:3:3: error: ")) << Status();
    EXPECT_EQ(OpenFrames(), "[F/S]");
    EXPECT_EQ(Window().GetBaseFrameDocs().GetSize(), 2);
    Press('2', true); // and the old frames go on working
    Replace("");
    Press(kF5);
    EXPECT_TRUE(shown("f.xml: error: ")) << Status();
    std::filesystem::remove(m_place.Path("f.xml"));
    LetFileSettle();
    Press(kF5);
    EXPECT_TRUE(shown("No such file")) << Status();
    m_place.Write("f.xml", Pair());
    LetFileSettle();
    EXPECT_FALSE(Window().GetStatusLine().IsError()) << Status();
    EXPECT_EQ(Window().GetBaseFrameDocs().GetSize(), 1);
}

TEST_F(ViewerWindowTest, WaitsUntilAFileIsWrittenWholeAndNoMenuIsOpen)
{
    Start(kTwoFrames);
    for (int nPart = 0; nPart < 5; ++nPart) {
        m_place.Write("f.xml", kTwoFrames.substr(0, 100 + static_cast<std::size_t>(nPart)));
        Display().AdvanceClock(250);
        splitframe::DrainMessages();
    }
    EXPECT_FALSE(Window().GetStatusLine().IsError()) << Status();
    Press(VK_F1 + 9);
    m_place.Write("f.xml", Pair());
    LetFileSettle();
    EXPECT_EQ(Status(), "Loaded 2 frames");
    Press(VK_ESCAPE);
    LetFileSettle();
    EXPECT_EQ(Status(), "Reloaded 1 frame");
}

TEST_F(ViewerWindowTest, MenusNameEveryKey)
{
    Start(kTwoFrames);
    std::string strLabels;
    const HMENU hBar = Window().GetMenuBar();
    for (int nMenu = 0; nMenu < ::GetMenuItemCount(hBar); ++nMenu)
        for (int nItem = 0; nItem < ::GetMenuItemCount(::GetSubMenu(hBar, nMenu)); ++nItem)
            strLabels +=
                ::GetMenuString(::GetSubMenu(hBar, nMenu), static_cast<UINT>(nItem), MF_BYPOSITION).ToUtf8() +
                "\n";
    for (const char* pszLabel : {"\tF5\n", "\tF1\n", "\tCtrl+Q\n", "S\tCtrl+1\n", "T\tCtrl+2\n"})
        EXPECT_NE(strLabels.find(pszLabel), std::string::npos) << pszLabel << "in:\n" << strLabels;
    Press(VK_F1);
    ASSERT_EQ(Display().MessageBoxes().size(), 1U);
    EXPECT_NE(Display().MessageBoxes()[0].strText.ToUtf8().find("F5"), std::string::npos);
}

TEST_F(ViewerWindowTest, PrintsTheStateOfTheFrames)
{
    Start(kTwoFrames);
    testing::internal::CaptureStdout();
    Press(VK_F12);
    const std::string strState = testing::internal::GetCapturedStdout();
    for (const char* pszText : {"F", "S", "m", "A", "B"})
        EXPECT_NE(strState.find(pszText), std::string::npos) << pszText;
    EXPECT_EQ(strState, Window().DumpState().ToUtf8());
}

TEST_F(ViewerWindowTest, LocksTheLines)
{
    Start(kTwoFrames);
    ASSERT_TRUE(Front().m_pRoot);
    EXPECT_TRUE(Front().m_pRoot->m_bMobile);
    Press('L', true);
    EXPECT_FALSE(Front().m_pRoot->m_bMobile);
    Window().ShowStyle(1, 0);
    Command(500); // through the menu a frame's lines are locked, too
    Command(502);
    EXPECT_EQ(OpenFrames(), "F/S [G/S]");
    EXPECT_FALSE(Front().m_pRoot->m_bMobile);
    Press('L', true);
    EXPECT_TRUE(Front().m_pRoot->m_bMobile);
}

TEST_F(ViewerWindowTest, HidesAndShowsWhatIsBesideThePaneInUse)
{
    Start(Layout(Frame(
        "F", Unit("A") + Unit("B") + Unit("C") +
                 Style("S", Use("A", "ID=1") + Use("B", "ID=2") + Use("C", "ID=3") +
                                Split("m", "V_LINE", "A", "n", "0.25") + Split("n", "H_LINE", "B", "C")) +
                 Style("T", Use("A", "ID=1") + Use("B", "ID=2") + Split("m", "V_LINE", "A", "B")))));
    const std::string strAll = Panes();
    const auto isLocked = [this] { return !Front().m_pRoot->m_bMobile; };
    const auto click = [this](const char* pszUnit) {
        CPoint pt = RectOf(pszUnit).CenterPoint();
        Front().m_pView->ClientToScreen(&pt);
        Display().Click(pt.x, pt.y);
        splitframe::DrainMessages();
    };
    click("C");
    Press(VK_LEFT, true);
    EXPECT_EQ(RectOf("C").left, 0);
    EXPECT_EQ(RectOf("A").Width(), 0);
    EXPECT_TRUE(isLocked()) << "or all of pane C were a place to grab the line";
    Press(VK_UP, true);
    EXPECT_EQ(RectOf("C").top, 0);
    Press(VK_LEFT, true);
    EXPECT_FALSE(isLocked());
    EXPECT_EQ(RectOf("C").left, 199);
    Press(VK_UP, true);
    EXPECT_EQ(Panes(), strAll);
    Press(VK_DOWN, true);
    EXPECT_EQ(Status(), "There is nothing on that side of C");
    EXPECT_EQ(Panes(), strAll);

    click("A");
    Press(VK_RIGHT, true); // both panes at once
    EXPECT_EQ(RectOf("A").right, 798);
    Press(kF5);
    EXPECT_EQ(RectOf("A").right, 798) << "hidden again, after the file was read anew";
    EXPECT_TRUE(isLocked());
    Press('0', true);
    EXPECT_EQ(Panes(), strAll);
    EXPECT_FALSE(isLocked());

    // A pane stays hidden when the style changes; then the new style's line is locked.
    Press('2', true);
    Press(VK_RIGHT, true);
    EXPECT_TRUE(isLocked());
    Press('L', true);
    Press('0', true);
    EXPECT_TRUE(isLocked()) << "all lines are";
    Press('L', true);
    EXPECT_FALSE(isLocked());
}
