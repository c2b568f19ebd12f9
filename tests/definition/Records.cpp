// The records: what they start with, what assignment takes over, what a style owns.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"

#include <gtest/gtest.h>

#include <memory>
#include <type_traits>

namespace {

TEST(UnitInfo, StartsFreeFramedAndAtNothing)
{
    // In memory that held something else, so that a field left out shows.
    alignas(CBaseUnitInfo) unsigned char memory[sizeof(CBaseUnitInfo)];
    std::memset(memory, 0x5A, sizeof(memory));
    const auto destroy = [](CBaseUnitInfo* p) { std::destroy_at(p); };
    const std::unique_ptr<CBaseUnitInfo, decltype(destroy)> info(new (memory) CBaseUnitInfo, destroy);
    EXPECT_TRUE(info->m_strName.IsEmpty());
    EXPECT_FALSE(info->m_bGlobal);
    EXPECT_EQ(info->m_guid, GUID{});
    for (const int nValue :
         {info->m_x, info->m_y, info->m_cx, info->m_cy, info->m_nMinHeight, info->m_nMinWidth})
        EXPECT_EQ(nValue, 0);
    for (const double dValue : {info->m_dLeftRate, info->m_dTopRate, info->m_dRightRate, info->m_dBottomRate})
        EXPECT_EQ(dValue, 0.0);
    EXPECT_EQ(info->m_nBorderStyle, 1);
    EXPECT_EQ(info->m_nMaxHeight, 10000);
    EXPECT_EQ(info->m_nMaxWidth, 10000);
    EXPECT_EQ(info->m_dHeightRate, 10.0);
    EXPECT_EQ(info->m_dWidthRate, 10.0);
}

TEST(UnitInfo, AssignmentTakesTheSizeFieldsOnly)
{
    CBaseUnitInfo from;
    from.m_strName = L"from";
    from.m_bGlobal = true;
    from.m_guid.Data1 = 7;
    from.m_x = from.m_y = from.m_cx = from.m_cy = 11;
    from.m_dLeftRate = from.m_dBottomRate = 0.5;
    from.m_nBorderStyle = 0;
    from.m_nMaxHeight = 1;
    from.m_nMinHeight = 2;
    from.m_nMaxWidth = 3;
    from.m_nMinWidth = 4;
    from.m_dHeightRate = 5.0;
    from.m_dWidthRate = 6.0;
    CBaseUnitInfo to;
    to.m_strName = L"to";
    EXPECT_EQ(&(to = from), &to);

    EXPECT_EQ(to.m_strName, CString(L"to"));
    EXPECT_FALSE(to.m_bGlobal);
    EXPECT_EQ(to.m_guid, GUID{});
    EXPECT_EQ(to.m_x + to.m_y + to.m_cx + to.m_cy, 0);
    EXPECT_EQ(to.m_dLeftRate + to.m_dBottomRate, 0.0);
    EXPECT_EQ(to.m_nBorderStyle, 1);
    EXPECT_EQ(to.m_nMaxHeight, 1);
    EXPECT_EQ(to.m_nMinHeight, 2);
    EXPECT_EQ(to.m_nMaxWidth, 3);
    EXPECT_EQ(to.m_nMinWidth, 4);
    EXPECT_EQ(to.m_dHeightRate, 5.0);
    EXPECT_EQ(to.m_dWidthRate, 6.0);
}

TEST(UnitInfo, IsNoRuntimeClassOfItsOwn)
{
    const CBaseUnitInfo info;
    const CBaseFrameStyle style;
    EXPECT_EQ(info.GetRuntimeClass(), CObject::GetThisClass());
    EXPECT_EQ(style.GetRuntimeClass(), CObject::GetThisClass());
}

TEST(FrameStyle, OwnsItsSplitRecordsAndNoUnitRecord)
{
    CBaseUnitInfo unit;
    {
        CBaseFrameStyle style; // under the leak checker: its two split records go with it
        style.m_arrSplitInfo.SetAtGrow(0, new _SPLIT_INFO);
        style.m_arrSplitInfo.SetAtGrow(1, new _SPLIT_INFO);
        style.m_arrBaseUnitInfo.SetAtGrow(0, &unit);
        style.m_arrBaseUnitInfo.SetAtGrow(1, &unit);
        style.m_arrParam.SetAtGrow(0, L"ID=1");
        style.m_arrParam.SetAtGrow(1, L"ID=2");
        EXPECT_EQ(style.m_arrBaseUnitInfo[0], style.m_arrBaseUnitInfo[1]);
        EXPECT_EQ(style.m_arrParam[1], CString(L"ID=2"));
    }
    EXPECT_EQ(unit.m_nBorderStyle, 1);
}

TEST(SplitInfo, StartsFilledWithZeros)
{
    const _SPLIT_INFO info;
    EXPECT_EQ(info.szName[0] + info.szType[19] + info.szLeft[0] + info.szRight[19], 0);
    EXPECT_FALSE(info.bMobile);
    EXPECT_EQ(info.dLRate, 0.0);
}

} // namespace
