// Dragging lines: where they can be grabbed, what the indicator does to the screen, and how the sides are
// divided at the end.
#include "layout/CheckTree.h"
#include "platform/display/Headless.h"
#include "platform/window/MessageLoop.h"
#include "support/HostWindow.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <functional>
#include <limits>

namespace {

using testing_support::HostWindow;
using testing_support::TextTree;

constexpr CPoint NOWHERE(-1, -1);

std::string NameOf(const CSplitLine* pLine)
{
    return pLine ? pLine->m_strName.ToUtf8() : "";
}

TEST(Drag, ALineIsGrabbedNearItsEdge)
{
    const struct
    {
        const char* pszWhat;
        const char* pszTree;
        int nGap; // added between two panes
        bool bAlongX;
        int nFrom, nTo; // the points that hit, of those from -20 to 250 through the middle of the other axis
        const char* pszHit;
    } cases[] = {
        {"side by side", "V0.5*#m[a b]", 0, true, 98, 102, "m"},
        {"stacked", "H0.25*#m[a b]", 0, false, 48, 52, "m"},
        {"a narrow gap is widened", "V0.5*#m[a b]", 3, true, 99, 104, "m"},
        {"a gap is the band", "V0.5*#m[a b]", 9, true, 100, 109, "m"},
        {"stacked, widened", "H0.25*#m[a b]", 2, false, 49, 53, "m"},
        {"stacked, three pixels are not widened", "H0.25*#m[a b]", 3, false, 50, 53, "m"},
        {"panes that overlap", "V0.5*#m[a b]", -10, true, 93, 97, "m"},
        {"not movable", "V0.5#m[a b]", 0, true, 0, 0, ""},
        {"movable below one that is not", "V1#m[H0.5#r[a b] V0.5*#n[c d]]", 0, true, 198, 202, "n"},
        {"the upper line before the lower", "V0.5*#m[a V0*#n[b c]]", 0, true, 98, 102, "m"},
        {"no first side", "V0.5*#m[. b]", 0, true, 0, 0, ""},
        {"no second side", "V0.5*#m[a .]", 0, true, 0, 0, ""},
        {"all beside a first side that is collapsed", "V0.5*#m[a- V0.5#n[b c]]", 0, true, -2, 2, "m"},
        {"beside a second side that is collapsed", "V0.5*#m[a b-]", 0, true, 0, 0, ""},
    };
    HostWindow host;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        TextTree tree(c.pszTree, &host);
        tree->ModifyWindow(CRect(0, 0, 200, 200));
        if (c.nGap) {
            CRect rc = testing_support::RectOf(tree.Unit("b"));
            rc.OffsetRect(c.bAlongX ? c.nGap : 0, c.bAlongX ? 0 : c.nGap);
            tree.Unit("b").MoveWindow(rc);
        }
        for (int n = -20; n < 250; ++n) {
            const CPoint pt = c.bAlongX ? CPoint(n, 150) : CPoint(150, n);
            ASSERT_EQ(NameOf(tree->HitTest(pt)), n >= c.nFrom && n < c.nTo ? c.pszHit : "") << n;
        }
        const CPoint ptBeyond = c.bAlongX ? CPoint(c.nFrom, 200) : CPoint(200, c.nFrom);
        EXPECT_EQ(tree->HitTest(ptBeyond), nullptr);
    }
}

TEST(Drag, TheEndDividesAtThePointWithinTheLeastSizes)
{
    constexpr int FAR = std::numeric_limits<int>::max();
    const struct
    {
        const char* pszWhat;
        const char* pszTree;
        CPoint pt;
        const char* pszPanes;
    } cases[] = {
        {"free", "V0.5*[a b]", {30, 7}, "a 0,0 30x100; b 30,0 170x100"},
        {"stacked", "H0.5*[a b]", {7, 30}, "a 0,0 200x30; b 0,30 200x70"},
        {"first side too small", "V0.5*[a:w50..60 b]", {30, 7}, "a 0,0 50x100; b 50,0 150x100"},
        {"second side too small", "V0.5*[a b:w50..60]", {190, 7}, "a 0,0 150x100; b 150,0 50x100"},
        {"both: the second wins", "V0.5*[a:w150..160 b:w90..91]", {7, 7}, "a 0,0 110x100; b 110,0 90x100"},
        {"largest sizes do not count", "V0.5*[a:w0..20 b]", {90, 7}, "a 0,0 90x100; b 90,0 110x100"},
        {"sizes inside add up",
         "V0.5*[V0.5[a:w30..90 b:w40..90] c]",
         {9, 7},
         "a 0,0 35x100; b 35,0 35x100; c 70,0 130x100"},
        {"both sides by their own shares",
         "V0.5*[H0.25[a b] H0.75[c d]]",
         {40, 7},
         "a 0,0 40x25; b 0,25 40x75; c 40,0 160x75; d 40,75 160x25"},
        {"far outside", "V0.5*[a b:w10..20]", {FAR, FAR}, "a 0,0 190x100; b 190,0 10x100"},
        {"far on the other side", "H0.5*[a b]", {-FAR, -FAR - 1}, "a 0,0 200x0; b 0,0 200x100"},
        {"the least above the largest", "V0.5*[a:w90..10 b]", {5, 5}, "a 0,0 90x100; b 90,0 110x100"},
        {"a missing side", "V0.5*[a .]", {50, 7}, "a 0,0 200x100"},
    };
    HostWindow host;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        TextTree tree(c.pszTree, &host);
        tree->ModifyWindow(CRect(0, 0, 200, 100));
        const double dRate = tree->m_dLRate;
        tree->DrawSplitLineByPos(CPoint(100, 50));
        tree->ModifyWindow(c.pt);
        EXPECT_EQ(PanesToText(tree), c.pszPanes);
        EXPECT_EQ(tree->m_dLRate, dRate);
        EXPECT_EQ(tree->m_ptIndicator, NOWHERE);
        EXPECT_EQ(splitframe::CheckTree(tree.Root()), "");
    }
}

// The pixels that differ from those of the start: "x..x,y..y", or nothing.
class Picture
{
public:
    Picture() : m_arrStart(Pixels()) {}
    std::string Changes() const
    {
        const auto arrNow = Pixels();
        const splitframe::Surface& shown = splitframe::CurrentHeadless()->Shown();
        CRect rc(10000, 10000, -1, -1);
        int nCount = 0;
        for (int y = 0; y < shown.DeviceHeight(); ++y) {
            for (int x = 0; x < shown.DeviceWidth(); ++x) {
                const auto n = static_cast<std::size_t>(y * shown.DeviceWidth() + x);
                if (arrNow[n] == m_arrStart[n])
                    continue;
                EXPECT_EQ(arrNow[n], m_arrStart[n] ^ 0x5C5C5CU);
                ++nCount;
                rc = {std::min<int>(rc.left, x), std::min<int>(rc.top, y), std::max<int>(rc.right, x),
                      std::max<int>(rc.bottom, y)};
            }
        }
        EXPECT_TRUE(nCount == 0 || nCount == (rc.Width() + 1) * (rc.Height() + 1)) << "not a full rectangle";
        return nCount == 0 ? ""
                           : std::to_string(rc.left) + ".." + std::to_string(rc.right) + "," +
                                 std::to_string(rc.top) + ".." + std::to_string(rc.bottom);
    }

private:
    static std::vector<std::uint32_t> Pixels()
    {
        splitframe::DrainMessages();
        const splitframe::Surface& shown = splitframe::CurrentHeadless()->Shown();
        return {shown.Row(0), shown.Row(shown.DeviceHeight() - 1) + shown.DeviceWidth()};
    }
    std::vector<std::uint32_t> m_arrStart;
};

class Indicator : public testing::Test
{
protected:
    void Make(const char* pszTree)
    {
        m_pTree = std::make_unique<TextTree>(pszTree, m_pHost.get());
        Root().ModifyWindow(CRect(0, 0, 200, 100));
        m_picture = Picture();
    }
    CSplitLine& Root() { return m_pTree->Root(); }

    std::unique_ptr<HostWindow> m_pHost = std::make_unique<HostWindow>(CRect(10, 20, 310, 220));
    std::unique_ptr<TextTree> m_pTree;
    Picture m_picture;
};

TEST_F(Indicator, FollowsThePointAndKeepsTheLeastSizes)
{
    Make("V0.5*[a:w50..60 b]");
    Root().DrawSplitLineByPos(CPoint(80, 3));
    EXPECT_EQ(m_picture.Changes(), "89..91,20..119");
    Root().DrawSplitLineByPos(CPoint(81, 300));
    EXPECT_EQ(m_picture.Changes(), "90..92,20..119");
    EXPECT_LE(splitframe::CurrentHeadless()->LastPresented().Bounds().right -
                  splitframe::CurrentHeadless()->LastPresented().Bounds().left,
              4)
        << "the old and the new line only";
    for (const CPoint pt : {CPoint(49, 3), CPoint(201, 3), CPoint(-100000, 3)}) {
        Root().DrawSplitLineByPos(pt);
        EXPECT_EQ(m_picture.Changes(), "90..92,20..119");
        EXPECT_EQ(Root().m_ptIndicator, CPoint(81, 300));
    }
    Root().DrawSplitLineByPos(NOWHERE);
    EXPECT_EQ(m_picture.Changes(), "");
    Root().m_pHostWnd = nullptr;
    Root().DrawSplitLineByPos(CPoint(90, 3));
    EXPECT_EQ(m_picture.Changes(), "");
    EXPECT_EQ(Root().m_ptIndicator, CPoint(90, 3));

    Make("V0.5[a H0.5*#h[b c]]");
    m_pTree->Node("h").DrawSplitLineByPos(CPoint(3, 70));
    EXPECT_EQ(m_picture.Changes(), "110..209,89..91");
}

// Whatever becomes of panes, line and window while it is shown, the same pixels are taken away again.
TEST_F(Indicator, LeavesNothingBehind)
{
    const std::function<void()> events[] = {
        [this] { m_pTree->Unit("b").Invalidate(); },
        [this] { Root().ModifyWindow(CRect(0, 0, 200, 100)); },
        [this] {
            m_pTree->Unit("b").MoveWindow(CRect(20, 30, 70, 60));
            m_pTree->Node("m").DrawSplitLineByPos(NOWHERE);
            Root().ModifyWindow(CRect(0, 0, 200, 100));
        },
        [this] {
            m_pHost->MoveWindow(CRect(50, 60, 350, 260));
            m_pTree->Node("m").DrawSplitLineByPos(NOWHERE);
            m_pHost->MoveWindow(CRect(10, 20, 310, 220));
        },
        [this] { delete &m_pTree->Node("m"); },
        [this] { Root() = CSplitLine(CSplitLine::NT_VLINE, true, nullptr); },
        [this] {
            const CSplitLine copy(m_pTree->Node("m")); // shows nothing itself
        },
        [this] {
            splitframe::CurrentHeadless()->Resize(1000, 700);
            splitframe::DrainMessages();
            m_pTree->Node("m").DrawSplitLineByPos(NOWHERE);
            splitframe::CurrentHeadless()->Resize(1280, 800);
        },
    };
    for (std::size_t i = 0; i < std::size(events); ++i) {
        SCOPED_TRACE(i);
        Make("V0.5[a H0.5*#m[b c]]");
        m_pTree->Node("m").DrawSplitLineByPos(CPoint(3, 70));
        EXPECT_NE(m_picture.Changes(), "");
        events[i]();
        if (m_pTree->LineAt(1))
            m_pTree->LineAt(1)->DrawSplitLineByPos(NOWHERE);
        EXPECT_EQ(m_picture.Changes(), "");
        m_pTree.reset();
    }
}

TEST(EnableMove, ByTheNameBelowOrByTheLine)
{
    const struct
    {
        const char* pszWhat;
        const wchar_t* pszName;
        int nSide; // -1: by the name of a unit or line below
        bool bDone;
        const char* pszTree;
    } cases[] = {
        {"the line above a pane", L"c", -1, true, "V0.5#m[a H0.5#r[b V0.5*#n[c .]]]"},
        {"the line above a line", L"n", -1, true, "V0.5#m[a H0.5*#r[b V0.5#n[c .]]]"},
        {"nothing is above the start", L"m", -1, false, ""},
        {"unknown", L"C", -1, false, ""},
        {"empty", L"", -1, false, ""},
        {"the line itself", L"r", 0, true, "V0.5#m[a H0.5*#r[b V0.5#n[c .]]]"},
        {"by its other side", L"n", 1, true, "V0.5#m[a H0.5#r[b V0.5*#n[c .]]]"},
        {"a side that is missing", L"n", 0, false, ""},
        {"a pane has no sides", L"c", 1, false, ""},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.pszWhat);
        const std::string strStart = "V0.5#m[a H0.5#r[b V0.5#n[c .]]]";
        TextTree tree(strStart);
        const auto move = [&](bool bEnable) {
            return c.nSide < 0 ? tree->EnableMove(CString(c.pszName), bEnable)
                               : tree->EnableMove(CString(c.pszName), c.nSide == 1, bEnable);
        };
        EXPECT_EQ(move(true), c.bDone);
        EXPECT_EQ(testing_support::ToText(&tree.Root()), c.bDone ? c.pszTree : strStart);
        EXPECT_EQ(move(false), c.bDone);
        EXPECT_EQ(testing_support::ToText(&tree.Root()), strStart);
    }
}

} // namespace
