// The plan of a split tree: rules by example, then laws over random definitions. A definition is written one
// line after the other, "left,right": a number is a line, a letter a leaf, "." nothing.
#include "document/SplitPlan.h"

#include <gtest/gtest.h>

#include <random>
#include <set>
#include <sstream>
#include <string>

using splitframe::PlanSplitTree;
using splitframe::SplitPlan;
using splitframe::SplitSide;
using splitframe::SplitSides;

namespace {

SplitSide Side(const std::string& strText)
{
    if (strText == ".")
        return {};
    if (strText[0] >= 'a')
        return {SplitSide::Kind::Leaf, strText[0] - 'a'};
    return {SplitSide::Kind::Line, std::stoi(strText)};
}

std::vector<SplitSides> Definition(const std::string& strText)
{
    std::vector<SplitSides> arrLine;
    std::istringstream stream(strText);
    for (std::string strLine; stream >> strLine;) {
        const auto nComma = strLine.find(',');
        arrLine.push_back({Side(strLine.substr(0, nComma)), Side(strLine.substr(nComma + 1))});
    }
    return arrLine;
}

std::string Text(const SplitSide& side)
{
    if (side.kind == SplitSide::Kind::Empty)
        return ".";
    return side.kind == SplitSide::Kind::Leaf ? std::string(1, static_cast<char>('a' + side.nIndex))
                                              : std::to_string(side.nIndex);
}

std::string Text(const SplitPlan& plan)
{
    std::string strText;
    for (std::size_t i = 0; i < plan.arrLine.size(); ++i) {
        strText += i == 0 ? "" : " ";
        strText += plan.Hangs(static_cast<int>(i))
                       ? Text(plan.arrLine[i].first) + "," + Text(plan.arrLine[i].second)
                       : "-";
    }
    return strText;
}

} // namespace

TEST(SplitPlan, FollowsTheRules)
{
    const struct
    {
        const char* what;
        const char* lines;
        const char* plan; // "-": the line hangs nowhere
    } cases[] = {
        {"no lines", "", ""},
        {"one line over two leaves", "a,b", "a,b"},
        {"lines may name later and earlier ones", "2,1 a,b c,d", "2,1 a,b c,d"},
        {"the first line is nobody's child", "1,a 0,b", "1,a .,b"},
        {"a line does not hold itself", "0,a", ".,a"},
        {"a circle below the root is cut where it closes", "1,a 2,b 1,c", "1,a 2,b .,c"},
        {"a circle closed by an earlier line is cut there", "2,a 2,b 1,c", "2,a .,b 1,c"},
        {"a leaf named twice stays with the last line", "1,a a,b", "1,. a,b"},
        {"a leaf named twice by one line stays at its second side", "a,a", ".,a"},
        {"a line named twice stays with the last line", "1,2 3,a 3,b c,d", "1,2 .,a 3,b c,d"},
        {"a line that hangs nowhere takes nothing", "a,b a,c", "a,b -"},
        {"nor do lines below it", "a,b 2,c a,d", "a,b - -"},
        {"nor a circle that nothing leads to", "a,b 2,a 1,b", "a,b - -"},
        {"both name each other and the root names both", "1,2 2,a 1,b", "1,. 2,a .,b"},
        {"nothing named", ".,.", ".,."},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.what);
        EXPECT_EQ(Text(PlanSplitTree(Definition(c.lines), 26)), c.plan);
    }
}

TEST(SplitPlan, AnyDefinitionGivesATree)
{
    std::mt19937 random(20261122);
    const auto below = [&](unsigned nEnd) { return static_cast<int>(random() % nEnd); };
    for (int nRound = 0; nRound < 3000; ++nRound) {
        const auto nLines = static_cast<unsigned>(1 + random() % 12);
        const auto nLeaves = static_cast<unsigned>(1 + random() % 6);
        const auto side = [&]() -> SplitSide {
            switch (below(4)) {
            case 0:
                return {};
            case 1:
                return {SplitSide::Kind::Leaf, below(nLeaves)};
            default:
                return {SplitSide::Kind::Line, below(nLines)};
            }
        };
        std::vector<SplitSides> arrWanted(nLines);
        for (SplitSides& sides : arrWanted)
            sides = {side(), side()};
        const SplitPlan plan = PlanSplitTree(arrWanted, static_cast<int>(nLeaves));
        SCOPED_TRACE("seed 20261122, round " + std::to_string(nRound));

        // Walking from the root meets every line that hangs once, no leaf twice, and nothing else.
        std::set<std::string> setMet{"0"};
        std::vector<int> arrNext{0};
        while (!arrNext.empty()) {
            const int nLine = arrNext.back();
            arrNext.pop_back();
            ASSERT_TRUE(plan.Hangs(nLine));
            const SplitSides& sides = plan.arrLine[static_cast<std::size_t>(nLine)];
            for (const SplitSide& child : {sides.first, sides.second}) {
                if (child.kind == SplitSide::Kind::Empty)
                    continue;
                ASSERT_TRUE(setMet.insert(Text(child)).second) << Text(child) << " is held twice";
                if (child.kind == SplitSide::Kind::Line)
                    arrNext.push_back(child.nIndex);
            }
        }
        // Whatever a line of the tree names is in the tree: being named more than once loses nothing.
        for (std::size_t i = 0; i < nLines; ++i) {
            const bool bHangs = plan.Hangs(static_cast<int>(i));
            EXPECT_EQ(bHangs, setMet.contains(std::to_string(i)));
            for (const SplitSide& wanted : {arrWanted[i].first, arrWanted[i].second}) {
                if (bHangs && wanted.kind != SplitSide::Kind::Empty) {
                    EXPECT_TRUE(setMet.contains(Text(wanted))) << Text(wanted) << " is lost";
                }
            }
        }
    }
}

// Each line names the one after next first, so that every line moves once, far down a chain.
TEST(SplitPlan, ADeepTangleIsPlannedQuickly)
{
    constexpr int LINES = 200000;
    std::vector<SplitSides> arrWanted(LINES);
    for (int i = 0; i < LINES; ++i) {
        auto& sides = arrWanted[static_cast<std::size_t>(i)];
        if (i + 2 < LINES)
            sides.first = {SplitSide::Kind::Line, i + 2};
        sides.second = {SplitSide::Kind::Line, i + 1 < LINES ? i + 1 : 1};
    }
    const SplitPlan plan = PlanSplitTree(arrWanted, 0);
    int nHeld = 0;
    for (const SplitSides& sides : plan.arrLine)
        nHeld += (sides.first.kind == SplitSide::Kind::Line) + (sides.second.kind == SplitSide::Kind::Line);
    EXPECT_EQ(nHeld, LINES - 1);
}
