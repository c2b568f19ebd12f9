// The tree itself: who owns and names whom, neighbours, sizes, and what happens to links when nodes die.
#include "layout/CheckTree.h"
#include "layout/TreeDump.h"
#include "support/HostWindow.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

namespace {

using splitframe::CheckTree;
using testing_support::HostWindow;
using testing_support::TextTree;

// A line that counts how many of its kind live, and lets the neighbour queries out.
class Line : public CSplitLine
{
public:
    explicit Line(NodeType nType = NT_VLINE) : CSplitLine(nType, false, nullptr) { ++s_nAlive; }
    ~Line() override { --s_nAlive; }
    using CSplitLine::GetSplitLine;
    using CSplitLine::GetSplitName;

    static inline int s_nAlive = 0;
};

class Pane : public CBaseUnitWnd
{
public:
    using CSplitLine::GetSplitLine;
    using CSplitLine::GetSplitName;
};

void Link(CSplitLine& line, CSplitLine* pFirst, CSplitLine* pSecond)
{
    line.m_pFirst = pFirst;
    line.m_pSecond = pSecond;
    for (CSplitLine* pSide : {pFirst, pSecond}) {
        if (pSide)
            pSide->m_pParent = &line;
    }
}

TEST(Tree, NewNodesStartAsTold)
{
    HostWindow host;
    const CSplitLine line(CSplitLine::NT_HLINE, true, &host);
    EXPECT_EQ(line.GetNodeType(), CSplitLine::NT_HLINE);
    EXPECT_TRUE(line.m_bMobile && line.m_bShow && line.IsLeaf());
    EXPECT_EQ(line.m_pHostWnd, &host);
    EXPECT_EQ(line.m_dLRate, 0.5);
    EXPECT_EQ(line.m_ptIndicator, CPoint(-1, -1));

    CBaseUnitWnd unit;
    CSplitLine* pLeaf = &unit;
    EXPECT_EQ(pLeaf->GetNodeType(), CSplitLine::NT_UNIT);
    EXPECT_FALSE(pLeaf->m_bMobile);
    EXPECT_EQ(static_cast<CBaseUnitWnd*>(splitframe::CSplitLineLink(pLeaf)), &unit);
    EXPECT_EQ(pLeaf->GetUnitWnd(), &unit);
}

TEST(Tree, DeletingTheRootDeletesLinesAndNoUnit)
{
    Pane a, b, c;
    auto* pRoot = new Line;
    auto* pRight = new Line(CSplitLine::NT_HLINE);
    Link(*pRoot, &a, pRight);
    Link(*pRight, &b, &c);
    CSplitLine::m_pRoot = pRoot;
    EXPECT_EQ(CheckTree(*pRoot), "");
    delete pRoot;
    EXPECT_EQ(Line::s_nAlive, 0);
    EXPECT_EQ(CSplitLine::m_pRoot, nullptr);
    for (const Pane* pPane : {&a, &b, &c})
        EXPECT_EQ(pPane->m_pParent.Get(), nullptr);
}

TEST(Tree, ReleasedUnitsKeepTheirParentUntilItDies)
{
    Pane a, b, c;
    auto* pRoot = new Line;
    auto* pRight = new Line;
    Link(*pRoot, &a, pRight);
    Link(*pRight, &b, &c);
    pRoot->ReleaseWnd();
    EXPECT_TRUE(pRight->IsLeaf());
    EXPECT_EQ(pRoot->m_pFirst.Get(), nullptr);
    EXPECT_EQ(c.m_pParent.Get(), pRight);
    delete pRoot;
    EXPECT_EQ(Line::s_nAlive, 0);
    EXPECT_EQ(c.m_pParent.Get(), nullptr);
    EXPECT_EQ(a.m_pParent.Get(), nullptr);
}

TEST(Tree, APaneThatWasReplacedIsForgottenWithItsLine)
{
    Pane old, other, replacement;
    auto* pRoot = new Line;
    Link(*pRoot, &old, &other);
    pRoot->m_pFirst = &replacement; // the old pane keeps its parent link
    replacement.m_pParent = pRoot;
    EXPECT_EQ(old.m_pParent.Get(), pRoot);
    EXPECT_FALSE(pRoot->Holds(&old));
    delete pRoot;
    EXPECT_EQ(old.m_pParent.Get(), nullptr);
}

TEST(Tree, ADeletedUnitLeavesAnEmptySideThatCountsAsCollapsed)
{
    TextTree tree("V0.5[a:w100 b:w50..150]");
    delete &tree.Unit("a");
    EXPECT_EQ(tree->m_pFirst.Get(), nullptr);
    EXPECT_EQ(tree->GetMinWidth(), 50);
    EXPECT_EQ(tree->GetMaxWidth(), 150);
    EXPECT_EQ(CheckTree(tree.Root()), "");
    tree->ModifyWindow(CRect(0, 0, 10, 10));
    EXPECT_EQ(tree.Info("b").m_cx, 10);
}

TEST(Tree, CopiesShareTheirSidesAndNeverDeleteThem)
{
    TextTree tree("V0.3*#main[a:w100 H0.5[b c:w70]]");
    {
        const CSplitLine copy(tree.Root());
        EXPECT_EQ(copy.m_pFirst.Get(), &tree.Node("a"));
        EXPECT_EQ(copy.m_strName, CString(L"main"));
        EXPECT_EQ(copy.GetMinWidth(), 170);
    }
    EXPECT_EQ(tree->GetMinWidth(), 170);
    EXPECT_EQ(CheckTree(tree.Root()), "");

    // Over a line with sides of its own: those go; over one below: that goes, and what it shared is gone too.
    auto* pLine = new Line;
    Link(*pLine, new Line, nullptr);
    EXPECT_EQ(&(*pLine = static_cast<Line&>(*pLine)), pLine);
    EXPECT_EQ(Line::s_nAlive, 2);
    static_cast<CSplitLine&>(*pLine) = tree.Root();
    EXPECT_EQ(Line::s_nAlive, 1);
    EXPECT_EQ(pLine->GetMinWidth(), 170);
    delete pLine;

    auto* pTop = new Line;
    auto* pBelow = new Line;
    Link(*pTop, pBelow, nullptr);
    Link(*pBelow, new Line, nullptr);
    static_cast<CSplitLine&>(*pTop) = static_cast<CSplitLine&>(*pBelow);
    EXPECT_TRUE(pTop->IsLeaf());
    delete pTop;
    EXPECT_EQ(Line::s_nAlive, 0);
    EXPECT_EQ(testing_support::ToText(&tree.Root()), "V0.3*#main[a:w100 H0.5[b c:w70]]");
}

TEST(Tree, ContradictoryLinksAreNeitherFollowedTwiceNorDeletedTwice)
{
    Pane a;
    {
        // A circle, entered from outside and from within.
        auto* pTop = new Line;
        auto* pX = new Line;
        auto* pY = new Line;
        Link(*pTop, pX, &a);
        Link(*pX, pY, nullptr);
        Link(*pY, pX, nullptr);
        for (CSplitLine* pStart : {pTop, pX, pY}) {
            pStart->ModifyWindow(CRect(0, 0, 10, 10));
            pStart->ReCalRate();
            EXPECT_EQ(pStart->GetMinWidth(), 0);
            EXPECT_EQ(pStart->ModifyWindow(CString(L"none"), 0.5), -1.0);
        }
        EXPECT_EQ(pX->GetSplitLine(CSplitLine::DV_LEFT), nullptr);
        EXPECT_NE(CheckTree(*pTop), "");
        delete pTop;
        delete pX;
    }
    EXPECT_EQ(Line::s_nAlive, 0);
    {
        // One line named by two others, and as both sides of one.
        auto* pOne = new Line;
        auto* pTwo = new Line;
        auto* pShared = new Line;
        Link(*pOne, pShared, nullptr);
        Link(*pTwo, pShared, pShared);
        EXPECT_NE(CheckTree(*pOne), "");
        EXPECT_NE(CheckTree(*pTwo), "");
        delete pOne;
        EXPECT_EQ(Line::s_nAlive, 2);
        delete pTwo;
    }
    EXPECT_EQ(Line::s_nAlive, 0);
    {
        auto* pSelf = new Line;
        Link(*pSelf, pSelf, nullptr);
        pSelf->ModifyWindow();
        delete pSelf;
    }
    EXPECT_EQ(Line::s_nAlive, 0);
}

TEST(Tree, AHundredThousandDeep)
{
    constexpr int DEPTH = 100000;
    CBaseUnitInfo info;
    info.m_nMinWidth = 2;
    std::vector<std::unique_ptr<Pane>> panes;
    auto* pRoot = new Line;
    CSplitLine* pLine = pRoot;
    for (int i = 0; i < DEPTH; ++i) {
        panes.push_back(std::make_unique<Pane>());
        panes.back()->m_pBaseUnitInfo = &info;
        panes.back()->m_bActivated = true; // a hook at each would make the sizes be looked at again each time
        auto* pNext = new Line;
        i % 2 ? Link(*pLine, panes.back().get(), pNext) : Link(*pLine, pNext, panes.back().get());
        pLine = pNext;
    }
    pLine->m_strName = L"last";
    EXPECT_EQ(pRoot->GetMinWidth(), 2 * DEPTH);
    EXPECT_EQ(CheckTree(*pRoot), "");
    EXPECT_GT(splitframe::DumpTree(*pRoot).size(), std::size_t{DEPTH});
    pRoot->ModifyWindow(CRect(0, 0, 1000, 1000));
    pRoot->ReCalRate();
    EXPECT_EQ(pRoot->ModifyWindow(CString(L"last"), 0.25), 0.5);
    EXPECT_EQ(panes.back()->GetSplitLine(CSplitLine::DV_TOP), nullptr);
    pRoot->ReleaseWnd();
    delete pRoot;
    EXPECT_EQ(Line::s_nAlive, 0);
}

TEST(Tree, NeighboursAcrossTheNearestLine)
{
    // A vertical line; left of it a horizontal one over two panes.
    Pane top, bottom, right;
    auto* pRoot = new Line;
    auto* pLeft = new Line(CSplitLine::NT_HLINE);
    pRoot->m_strName = L"main";
    pLeft->m_strName = L"left";
    Link(*pRoot, pLeft, &right);
    Link(*pLeft, &top, &bottom);
    struct Case
    {
        const Pane* pFrom;
        CSplitLine::DIRECT_VALUE d;
        const CSplitLine* pAcross;
        const wchar_t* pszLine;
    };
    const Case cases[] = {{&bottom, CSplitLine::DV_TOP, &top, L"left"},
                          {&bottom, CSplitLine::DV_RIGHT, &right, L"main"},
                          {&bottom, CSplitLine::DV_LEFT, nullptr, L""},
                          {&bottom, CSplitLine::DV_BOTTOM, nullptr, L""},
                          {&top, CSplitLine::DV_BOTTOM, &bottom, L"left"},
                          {&right, CSplitLine::DV_LEFT, pLeft, L"main"},
                          {&right, CSplitLine::DV_TOP, nullptr, L""},
                          {&right, static_cast<CSplitLine::DIRECT_VALUE>(4), nullptr, L""}};
    for (const Case& c : cases) {
        EXPECT_EQ(c.pFrom->GetSplitLine(c.d), c.pAcross);
        EXPECT_EQ(c.pFrom->GetSplitName(c.d), CString(c.pszLine));
    }
    EXPECT_EQ(pRoot->GetSplitLine(CSplitLine::DV_RIGHT), nullptr);
    pLeft->m_pSecond = nullptr; // a parent that does not hold the node
    EXPECT_EQ(bottom.GetSplitLine(CSplitLine::DV_RIGHT), nullptr);
    delete pRoot;
}

TEST(Tree, SizesOfSubtrees)
{
    HostWindow host;
    struct Case
    {
        const char* pszTree;
        int nMinWidth, nMaxWidth, nMinHeight, nMaxHeight;
        bool bWidthFixed, bHeightFixed;
    };
    const Case cases[] = {
        {"V0.5[a:w100..400:h10..20 b:w150..500:h30..60]", 250, 900, 30, 60, false, false},
        {"H0.5[a:w100..400:h10..20 b:w150..500:h30..60]", 150, 500, 40, 80, false, false},
        {"V0.5[a:w200 b:w50]", 250, 250, 0, 10000, true, false},
        {"H0.5[a:w200:h20 b:w50:h30]-", 0, 0, 0, 0, true, true},
        {"V0.5[a:w200:h20- b:w50:h30]", 50, 50, 30, 30, true, true},
        {"H0.5[a:w200:h20~ b:w50:h30]", 200, 200, 30, 50, true, false},
        {"V0.5[. b:w50:h30]", 50, 50, 30, 30, true, true},
        {"V0.5[. .]", 0, 0, 0, 0, true, true},
        {"V0.5[a:w2147483647 b:w2147483647]", 2147483647, 2147483647, 0, 10000, true, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.pszTree);
        TextTree tree(c.pszTree, &host);
        EXPECT_EQ(tree->GetMinWidth(), c.nMinWidth);
        EXPECT_EQ(tree->GetMaxWidth(), c.nMaxWidth);
        EXPECT_EQ(tree->GetMinHeight(), c.nMinHeight);
        EXPECT_EQ(tree->GetMaxHeight(), c.nMaxHeight);
        EXPECT_EQ(tree->IsWidthFixed(), c.bWidthFixed);
        EXPECT_EQ(tree->IsHeightFixed(), c.bHeightFixed);
    }
}

TEST(Tree, TheDumpTellsWhatIsUnusual)
{
    HostWindow host;
    TextTree tree("V0.3*#main[tree:w20..300 H0.5#right[chart:h30 log~-]]", &host);
    tree->ModifyWindow(CRect(0, 0, 100, 200));
    tree.Unit("tree").ShowWindow(SW_HIDE);
    EXPECT_EQ(splitframe::DumpTree(tree.Root()), "VLINE main rate=0.3 movable  0,0 100x200\n"
                                                 "  UNIT tree width=20..300 hidden  0,0 30x200\n"
                                                 "  HLINE right rate=0.5  30,0 70x30\n"
                                                 "    UNIT chart height=30  30,0 70x30\n"
                                                 "    UNIT log collapsed  0,0 0x0\n");
}

TEST(Tree, TheTextNotationReadsWhatItWrites)
{
    for (const char* pszTree : {"a", "V0.3[tree H0.5[chart log-]]", "H0.25*#main[a:w50:h20..30 .]-"})
        EXPECT_EQ(testing_support::ToText(&TextTree(pszTree).Root()), pszTree);
}

} // namespace
