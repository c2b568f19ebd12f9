// The shares that put a line where it stands.
#include "layout/RateRange.h"
#include "support/HostWindow.h"
#include "support/TreeText.h"

#include <gtest/gtest.h>

#include <cmath>

namespace {

using splitframe::FindRateRange;
using testing_support::HostWindow;
using testing_support::TextTree;

int PosOf(TextTree& tree, const CRect& rc, double dRate)
{
    tree->m_dLRate = dRate;
    tree->ModifyWindow(rc);
    return testing_support::RectOf(tree.Unit("a")).right;
}

TEST(RateRange, EndsExactlyWhereTheLayoutGoesOverToTheNextPixel)
{
    HostWindow host;
    TextTree tree("V0.5*#m[a H0.5[b V0.5[c d:w40]]]", &host);
    int nNudged = 0;
    for (const int nLeft : {0, 7, 100000}) {
        for (int nWidth = 41; nWidth < 260; nWidth += 13) {
            const CRect rc(nLeft, 0, nLeft + nWidth, 50);
            for (int nTaken = 1; nTaken < nWidth - 40; nTaken += 3) {
                ASSERT_EQ(PosOf(tree, rc, (nTaken + 0.5) / (nWidth - 40)), nLeft + nTaken);
                double dFrom = -1.0, dTo = -1.0;
                ASSERT_TRUE(FindRateRange(tree.Root(), dFrom, dTo));
                EXPECT_EQ(PosOf(tree, rc, dFrom), nLeft + nTaken);
                EXPECT_EQ(PosOf(tree, rc, std::nextafter(dFrom, -1.0)), nLeft + nTaken - 1);
                EXPECT_EQ(PosOf(tree, rc, dTo), nLeft + nTaken + 1);
                EXPECT_EQ(PosOf(tree, rc, std::nextafter(dTo, -1.0)), nLeft + nTaken);
                nNudged += dFrom > static_cast<double>(nTaken) / (nWidth - 40) ? 1 : 0;
            }
        }
    }
    EXPECT_GT(nNudged, 0) << "among so many extents are some where k/n gives one pixel less";
}

TEST(RateRange, IsNoneWhereTheShareHasNoSay)
{
    HostWindow host;
    for (const char* pszTree : {"V0.5#m[a:w30 b]", "V0.5#m[a b:w30]", "V0.5#m[a- b]", "V0.5#m[a b-]",
                                "V0.5#m[. b]", "V0.5#m[a .]"}) {
        TextTree tree(pszTree, &host);
        tree->ModifyWindow(CRect(0, 0, 100, 100));
        double dFrom = 7.0, dTo = 7.0;
        EXPECT_FALSE(FindRateRange(tree.Root(), dFrom, dTo)) << pszTree;
        EXPECT_EQ(dFrom, 7.0);
    }
}

} // namespace
