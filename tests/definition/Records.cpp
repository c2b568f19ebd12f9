// The unit record: what it starts with, and what assignment takes over.
#include "definition/UnitInfo.h"

#include <gtest/gtest.h>

#include <cstring>
#include <memory>
#include <tuple>

namespace {

auto SizeFields(const CBaseUnitInfo& info)
{
    return std::tuple(info.m_nMaxHeight, info.m_nMinHeight, info.m_nMaxWidth, info.m_nMinWidth,
                      info.m_dHeightRate, info.m_dWidthRate);
}

auto OtherFields(const CBaseUnitInfo& info)
{
    return std::tuple(info.m_bGlobal, info.m_guid.Data1, info.m_x, info.m_y, info.m_cx, info.m_cy,
                      info.m_dLeftRate, info.m_dTopRate, info.m_dRightRate, info.m_dBottomRate,
                      info.m_nBorderStyle);
}

const auto FREE = std::tuple(10000, 0, 10000, 0, 10.0, 10.0);
const auto AT_NOTHING_AND_FRAMED = std::tuple(false, 0U, 0, 0, 0, 0, 0.0, 0.0, 0.0, 0.0, 1);

TEST(UnitInfo, StartsFreeFramedAndAtNothing)
{
    // In memory that held something else, so that a field left out shows.
    alignas(CBaseUnitInfo) unsigned char memory[sizeof(CBaseUnitInfo)];
    std::memset(memory, 0x5A, sizeof(memory));
    const auto destroy = [](CBaseUnitInfo* p) { std::destroy_at(p); };
    const std::unique_ptr<CBaseUnitInfo, decltype(destroy)> info(new (memory) CBaseUnitInfo, destroy);
    EXPECT_TRUE(SizeFields(*info) == FREE);
    EXPECT_TRUE(OtherFields(*info) == AT_NOTHING_AND_FRAMED);
}

TEST(UnitInfo, AssignmentTakesTheSizeFieldsOnly)
{
    CBaseUnitInfo from;
    from.m_strName = L"from";
    from.m_bGlobal = true;
    from.m_guid.Data1 = 7;
    from.m_x = from.m_y = from.m_cx = from.m_cy = 11;
    from.m_dLeftRate = from.m_dTopRate = from.m_dRightRate = from.m_dBottomRate = 0.5;
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
    EXPECT_TRUE(SizeFields(to) == SizeFields(from));
    EXPECT_TRUE(OtherFields(to) == AT_NOTHING_AND_FRAMED);
    EXPECT_EQ(to.m_strName, CString(L"to"));
}

} // namespace
