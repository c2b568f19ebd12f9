// Regions against a model of single cells, their canonical form, and coordinates at the ends of the range.
#include "platform/graphics/Region.h"

#include <gtest/gtest.h>

#include <bitset>
#include <climits>
#include <random>

using splitframe::Region;

namespace {

constexpr int kSide = 24;
using Cells = std::bitset<kSide * kSide>;

Cells CellsOf(const RECT& rc)
{
    Cells cells;
    for (int y = std::max(0, rc.top); y < std::min(kSide, rc.bottom); ++y)
        for (int x = std::max(0, rc.left); x < std::min(kSide, rc.right); ++x)
            cells.set(static_cast<std::size_t>(y * kSide + x));
    return cells;
}

Cells CellsOf(const Region& region)
{
    Cells cells;
    for (const RECT& rc : region.Rects())
        cells |= CellsOf(rc);
    return cells;
}

// The first broken rule of the canonical form in words, or empty.
std::string CheckRegion(const Region& region)
{
    const RECT* pBefore = nullptr;
    RECT rcBounds{INT_MAX, INT_MAX, INT_MIN, INT_MIN};
    for (const RECT& rc : region.Rects()) {
        if (rc.left >= rc.right || rc.top >= rc.bottom)
            return "rectangle without area";
        if (pBefore && pBefore->top == rc.top && (pBefore->bottom != rc.bottom || pBefore->right >= rc.left))
            return "band not in order, or rectangles touch in it";
        if (pBefore && pBefore->top != rc.top && pBefore->bottom > rc.top)
            return "bands overlap";
        rcBounds = {std::min(rcBounds.left, rc.left), std::min(rcBounds.top, rc.top),
                    std::max(rcBounds.right, rc.right), std::max(rcBounds.bottom, rc.bottom)};
        pBefore = &rc;
    }
    const RECT& rc = region.Bounds();
    if (pBefore && (rc.left != rcBounds.left || rc.top != rcBounds.top || rc.right != rcBounds.right ||
                    rc.bottom != rcBounds.bottom))
        return "bounds are wrong";
    return {};
}

// The same set built in another way must have the same list of rectangles.
Region Rebuilt(const Cells& cells)
{
    std::vector<RECT> rects;
    for (int y = 0; y < kSide; ++y)
        for (int x = 0; x < kSide; ++x)
            if (cells.test(static_cast<std::size_t>(y * kSide + x)))
                rects.push_back({x, y, x + 1, y + 1});
    return Region::FromRects(rects);
}

RECT RandomRect(std::mt19937& random)
{
    const auto pick = [&](int nFrom, int nTo) {
        return std::uniform_int_distribution<int>(nFrom, nTo)(random);
    };
    const int x = pick(0, kSide - 1);
    const int y = pick(0, kSide - 1);
    return {x, y, std::min(kSide, x + pick(-1, 9)), std::min(kSide, y + pick(-1, 9))};
}

void Step(std::mt19937& random, Region& region, Cells& cells)
{
    const RECT rc = RandomRect(random);
    Region other = Region::FromRects(std::vector<RECT>{rc, RandomRect(random), RandomRect(random)});
    switch (random() % 8) {
    case 0:
    case 1:
        region.Union(rc);
        cells |= CellsOf(rc);
        break;
    case 2:
    case 3:
        region.Subtract(rc);
        cells &= ~CellsOf(rc);
        break;
    case 4:
        region.Union(other);
        cells |= CellsOf(other);
        break;
    case 5:
        region.Subtract(other);
        cells &= ~CellsOf(other);
        break;
    case 6:
        other.Union({0, 0, kSide, kSide / 2});
        region.Intersect(other);
        cells &= CellsOf(other);
        break;
    default:
        region.Intersect({rc.left - 8, rc.top - 8, rc.right + 8, rc.bottom + 8});
        cells &= CellsOf({rc.left - 8, rc.top - 8, std::max(rc.left - 8, rc.right + 8), rc.bottom + 8});
        break;
    }
}

} // namespace

TEST(Region, AgreesWithCellsAfterEveryStep)
{
    for (unsigned nSeed = 1; nSeed <= 200; ++nSeed) {
        SCOPED_TRACE("seed " + std::to_string(nSeed));
        std::mt19937 random(nSeed);
        Region region;
        Cells cells;
        for (int i = 0; i < 40; ++i) {
            Step(random, region, cells);
            ASSERT_EQ(CheckRegion(region), "") << "step " << i;
            ASSERT_EQ(CellsOf(region), cells) << "step " << i;
            ASSERT_EQ(region.IsEmpty(), cells.none());
            ASSERT_TRUE(region == Rebuilt(cells)) << "step " << i;
        }
    }
}

TEST(Region, AnswersQuestionsLikeCells)
{
    std::mt19937 random(7);
    for (int nRound = 0; nRound < 300; ++nRound) {
        Region region;
        Cells cells;
        for (int i = 0; i < 6; ++i)
            Step(random, region, cells);
        const RECT rc = RandomRect(random);
        EXPECT_EQ(region.Intersects(rc), (CellsOf(rc) & cells).any());
        EXPECT_EQ(region.Contains(rc), (CellsOf(rc) & ~cells).none());
        for (int y = -1; y <= kSide; ++y)
            for (int x = -1; x <= kSide; ++x) {
                const bool bIn = x >= 0 && y >= 0 && x < kSide && y < kSide &&
                                 cells.test(static_cast<std::size_t>(y * kSide + x));
                ASSERT_EQ(region.Contains(POINT{x, y}), bIn) << x << "," << y;
            }
    }
}

TEST(Region, MovesAndStopsAtTheEndsOfTheRange)
{
    Region region(RECT{0, 0, 10, 10});
    region.Subtract({2, 2, 4, 4});
    Region moved = region;
    moved.Offset(-7, 1000);
    EXPECT_FALSE(moved.Contains(POINT{-5, 1002}));
    EXPECT_TRUE(moved.Contains(POINT{-3, 1002}));
    moved.Offset(7, -1000);
    EXPECT_TRUE(moved == region);

    moved.Offset(INT_MAX - 3, 0); // all but three columns leave, and with them the right side of the hole
    EXPECT_EQ(CheckRegion(moved), "");
    EXPECT_EQ(moved.Bounds().right, INT_MAX);
    EXPECT_FALSE(moved.Contains(POINT{INT_MAX - 1, 3}));
    moved.Offset(INT_MAX, 0);
    EXPECT_TRUE(moved.IsEmpty());
}

TEST(Region, TakesTheWholeRange)
{
    const RECT rcAll{INT_MIN, INT_MIN, INT_MAX, INT_MAX};
    Region region(rcAll);
    region.Subtract({-5, -5, 5, 5});
    EXPECT_EQ(region.Rects().size(), 4U);
    EXPECT_FALSE(region.Contains(POINT{0, 0}));
    EXPECT_TRUE(region.Contains(POINT{INT_MIN, INT_MAX - 1}));
    region.Union({-5, -5, 5, 5});
    EXPECT_TRUE(region == Region(rcAll));
    region.Intersect({INT_MAX, 0, INT_MIN, 5}); // sides swapped: no area
    EXPECT_TRUE(region.IsEmpty());
}

TEST(Region, MayTakeItselfAsOperand)
{
    Region region = Region::FromRects(std::vector<RECT>{{0, 0, 4, 4}, {6, 2, 9, 9}});
    const Region before = region;
    region.Union(region);
    region.Intersect(region);
    EXPECT_TRUE(region == before);
    region.Union(region.Bounds());
    region.Subtract(region.Bounds());
    EXPECT_TRUE(region.IsEmpty());
}
