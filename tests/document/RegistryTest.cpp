// The registry of the host's classes. It is shared by the process and never emptied, so every test uses GUIDs
// of its own.
#include "document/BaseFrameDoc.h"
#include "document/BaseFrameHelper.h"
#include "platform/base/Exception.h"
#include "support/FrameHost.h"

using namespace test;

namespace {

GUID NewGuid()
{
    static WORD nCount = 0;
    return {0x7E57, ++nCount, 0, {}};
}

} // namespace

TEST(Registry, TheFirstRegistrationOfAGuidWins)
{
    const GUID arrGuid[] = {NewGuid(), NewGuid(), NewGuid()};
    CRuntimeClass* arrFirst[] = {RUNTIME_CLASS(CBaseUnitWnd), nullptr, RUNTIME_CLASS(RecordingUnit)};
    CRuntimeClass* arrSecond[] = {RUNTIME_CLASS(RecordingUnit), RUNTIME_CLASS(RecordingUnit), nullptr};
    EXPECT_EQ(CBaseFrameDoc::Initialize(arrGuid, arrFirst, 3, nullptr, nullptr, 0), 1);
    EXPECT_EQ(CBaseFrameDoc::Initialize(arrGuid, arrSecond, 3, arrGuid, arrSecond, -1), 1);
    EXPECT_EQ(CBaseFrameDoc::GetRCBaseUnit(arrGuid[0]), RUNTIME_CLASS(CBaseUnitWnd));
    EXPECT_EQ(CBaseFrameDoc::GetRCBaseUnit(arrGuid[1]), nullptr);
    EXPECT_EQ(CBaseFrameDoc::GetRCBaseUnit(arrGuid[2]), RUNTIME_CLASS(RecordingUnit));
    EXPECT_EQ(CBaseFrameDoc::GetRCBaseUnit(NewGuid()), nullptr);
    EXPECT_EQ(CBaseFrameDoc::GetRCHelper(arrGuid[0]), nullptr);
}

TEST(Registry, KeepsUnitsAndHelpersApart)
{
    RecordingUnit unit;
    RecordingHelper helper;
    EXPECT_EQ(CBaseFrameDoc::RegisterBaseWnd(&unit), &unit);
    EXPECT_EQ(CBaseFrameDoc::RegisterBaseHelper(&helper), &helper);
    EXPECT_EQ(CBaseFrameDoc::GetRCBaseUnit(unit.GetGUID()), RUNTIME_CLASS(RecordingUnit));
    EXPECT_EQ(CBaseFrameDoc::GetRCHelper(helper.GetGUID()), RUNTIME_CLASS(RecordingHelper));
    EXPECT_EQ(CBaseFrameDoc::GetRCBaseUnit(helper.GetGUID()), nullptr);
    EXPECT_EQ(CBaseFrameDoc::GetRCHelper(unit.GetGUID()), nullptr);
}

TEST(Registry, PositionsAreTheOrderOfRegistration)
{
    EXPECT_EQ(CBaseFrameDoc::RegisterBaseWnd(nullptr), nullptr);
    EXPECT_EQ(CBaseFrameDoc::RegisterBaseHelper(nullptr), nullptr);
    const int nBefore = CBaseFrameDoc::m_arrGuid.GetSize();
    const GUID guid = NewGuid();
    CRuntimeClass* pClass = RUNTIME_CLASS(CBaseUnitWnd);
    CBaseFrameDoc::Initialize(&guid, &pClass, 1, nullptr, nullptr, 0);
    EXPECT_TRUE(CBaseFrameDoc::GetGuid(nBefore) == guid);
    EXPECT_THROW(CBaseFrameDoc::GetGuid(nBefore + 1), CInvalidArgException*);
    EXPECT_THROW(CBaseFrameDoc::GetGuid(-1), CInvalidArgException*);
}
