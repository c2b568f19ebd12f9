// The frame document: what it is made from, look-ups, the current unit, unit IDs and caches.
#include "definition/FrameStyle.h"
#include "definition/UnitInfo.h"
#include "document/BaseFrameDoc.h"
#include "platform/base/Exception.h"
#include "support/FrameHost.h"

using namespace test;

namespace {

// Opens what is not public.
class OpenDoc : public CBaseFrameDoc
{
    DECLARE_DYNCREATE(OpenDoc)
public:
    using CBaseFrameDoc::GetBaseUnitWndCache;
    using CBaseFrameDoc::GetBaseUnitWndGlobalCache;
    using CBaseFrameDoc::GetCurrentBaseUnitWndID;
    using CBaseFrameDoc::IsSameWnd;
    using CBaseFrameDoc::UpdateBaseUnitWndCache;
};

IMPLEMENT_DYNCREATE(OpenDoc, CBaseFrameDoc)

OpenDoc& Open(CBaseFrameDoc* pDoc)
{
    return *DynamicDownCast<OpenDoc>(pDoc);
}

std::vector<int> IDs(const CArray<int, int>& arr)
{
    return {arr.begin(), arr.end()};
}

} // namespace

TEST(Document, InitAppends)
{
    CBaseUnitInfo info;
    CBaseFrameStyle style;
    style.m_strName = L"S";
    CBaseUnitInfo* pInfo = &info;
    CBaseFrameStyle* pStyle = &style;
    CBaseFrameDoc definition;
    definition.Init(L"F", &pInfo, 1, &pStyle, 1);
    definition.Init(L"G", &pInfo, 0, &pStyle, -1);
    EXPECT_EQ(definition.m_strName, CString(L"G"));
    EXPECT_EQ(definition.GetBaseUnitInfoCount(), 1);
    for (const wchar_t* pszCaption : {L"G", L"S"}) // the frame and its styles
        EXPECT_TRUE(definition.FindCaption(pszCaption));
    EXPECT_FALSE(definition.FindCaption(L"s"));
    EXPECT_STREQ(definition.GetCurrentStyleName(), L"S");
    EXPECT_THROW(definition.Init(L"F", definition.m_arrBaseUnitInfo, definition.m_arrStyle),
                 CInvalidArgException*);
    EXPECT_THROW(definition.Init(&definition), CInvalidArgException*);

    definition.m_nCurStyle = 3;
    CBaseFrameDoc opened;
    opened.Init(&definition);
    opened.Init(&definition);
    EXPECT_EQ(opened.GetBaseUnitInfoCount(), 2);
    EXPECT_EQ(opened.m_arrStyle.GetSize(), 2);
    EXPECT_EQ(opened.m_nCurStyle, 3);
    EXPECT_EQ(opened.GetCurrentStyleName(), nullptr);
    EXPECT_THROW(opened.GetBaseUnitInfo(2), CInvalidArgException*);
    EXPECT_THROW(opened.GetBaseUnitWnd(CPoint(0, 0)), CInvalidArgException*);
    EXPECT_THROW(opened.Create(nullptr), CInvalidArgException*);
}

TEST(Document, TheHelperServesTheOpenedDocumentWhileThereIsOne)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a", L""}})));
    CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"F");
    CBaseFrameHelper* pHelper = pDefinition->m_pHelper;
    EXPECT_EQ(pHelper->m_pDoc, pDefinition);
    CBaseFrameDoc* pDoc = host.Open(L"F");
    EXPECT_EQ(pDoc->m_pHelper, pHelper);
    EXPECT_FALSE(pDoc->m_bAutoDeleteHelper);
    EXPECT_EQ(pHelper->m_pDoc, pDoc);
    EXPECT_EQ(pHelper->GetBaseUnitWnd(L"a"), pDoc->GetBaseUnitWnd(0));
    EXPECT_EQ(pHelper->GetBaseUnitWnd(L"A"), nullptr);
    host.CloseActive();
    EXPECT_EQ(pHelper->m_pDoc, pDefinition);
    EXPECT_EQ(pDefinition->GetBaseUnitInfoCount(), 1);
}

TEST(Document, PointsLieStrictlyInsideAUnit)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a", {{L"S", L"a", L""}})));
    CBaseFrameDoc* pDoc = host.Open(L"F");
    const struct
    {
        CPoint pt;
        bool bInside;
    } cases[] = {{{2, 3}, true},    {{30, 41}, true}, {{1, 20}, false},
                 {{31, 20}, false}, {{20, 2}, false}, {{20, 42}, false}};
    for (const auto& c : cases)
        EXPECT_EQ(pDoc->GetBaseUnitWnd(c.pt) != nullptr, c.bInside) << c.pt.x << "," << c.pt.y;
}

TEST(Document, TheCurrentUnitTakesTheFocus)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"a b", L"m V a b"}})));
    CBaseFrameDoc* pDoc = host.Open(L"F");
    pDoc->SetCurrentBaseUnitWnd(1);
    EXPECT_EQ(CWnd::GetFocus(), pDoc->GetBaseUnitWnd(1));
    EXPECT_THROW(pDoc->SetCurrentBaseUnitWnd(2), CInvalidArgException*);
    EXPECT_EQ(pDoc->GetCurrentBaseUnitWnd(), 2);
    pDoc->m_nCurBaseUnitWnd = 1;
    delete pDoc->GetBaseUnitWnd(0);
    EXPECT_EQ(pDoc->GetCurrentBaseUnitWnd(), 0);
}

TEST(UnitIDs, AreReadFromTheParameter)
{
    const struct
    {
        const wchar_t* param;
        int nID;
    } cases[] = {{L"ID=12", 12},
                 {L"COLOR=3,ID=7;X", 7},
                 {L"ID:5", 5},
                 {L"ID5", 0},
                 {L"WIDTH=3,ID=4", 0},
                 {L"NAME=A", -1},
                 {L"", -1},
                 {L"xID", 0},
                 {L"id=3", -1},
                 {L"ID= -4", -4},
                 {L"ID=99999999999", 2147483647}};
    for (const auto& c : cases) {
        SCOPED_TRACE(CString(c.param).ToUtf8());
        FrameHost host(RUNTIME_CLASS(OpenDoc));
        host.Load(LayoutXml(FrameXml(L"F", L"a", {{L"S", L"", L""}})));
        CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"F");
        pDefinition->m_arrStyle[0]->m_arrBaseUnitInfo.Add(pDefinition->m_arrBaseUnitInfo[0]);
        pDefinition->m_arrStyle[0]->m_arrParam.Add(c.param);
        CBaseFrameDoc* pDoc = host.Open(L"F");
        EXPECT_EQ(IDs(pDoc->m_arrBaseUnitWndID), std::vector<int>{c.nID});
        EXPECT_EQ(Open(pDoc).IsSameWnd(0, c.nID), c.nID == -1 ? 0 : 1);
        EXPECT_EQ(Open(pDoc).IsSameWnd(0, 77), 0);
        EXPECT_THROW(Open(pDoc).IsSameWnd(1, 0), CInvalidArgException*);
    }
}

TEST(UnitIDs, TheFirstEntryOfARecordCounts)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"a a=ID=5 a=ID=6 b=ID=7", L""}})));
    EXPECT_EQ(IDs(host.Open(L"F")->m_arrBaseUnitWndID), (std::vector<int>{5, 5, 5, 7}));
}

TEST(Cache, ByIDFirstInFirstOut)
{
    FrameHost host(RUNTIME_CLASS(OpenDoc));
    host.Load(LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"a=ID=5 a b", L"m V a b"}})));
    OpenDoc& doc = Open(host.Open(L"F"));
    doc.UpdateBaseUnitWndCache();
    EXPECT_EQ(IDs(doc.m_arrWndCacheID), (std::vector<int>{5, 5, -1}));
    EXPECT_THROW(doc.GetWndCache(3), CInvalidArgException*);
    CBaseUnitWnd* pUnit = nullptr;
    EXPECT_EQ(doc.GetBaseUnitWndCache(-1, &pUnit), 0);
    EXPECT_EQ(doc.GetBaseUnitWndCache(9, &pUnit), 0);
    EXPECT_EQ(pUnit, nullptr);
    EXPECT_EQ(doc.GetBaseUnitWndCache(5, &pUnit), 1);
    EXPECT_EQ(pUnit, doc.GetBaseUnitWnd(0));
    EXPECT_EQ(doc.GetBaseUnitWndCache(5, &pUnit), 1); // this one is in no pane and hidden
    EXPECT_EQ(pUnit, doc.GetBaseUnitWnd(1));
    EXPECT_TRUE(pUnit->IsWindowVisible());
    EXPECT_TRUE(pUnit->m_bActivated);
    EXPECT_EQ(doc.GetWndCacheCount(), 1);
}

TEST(Cache, AWindowMadeBeforeTheFrameIsOpenedIsAdopted)
{
    FrameHost host;
    host.Load(
        LayoutXml(GlobalXml(L"g") + FrameXml(L"F", L"Chart b", {{L"S", L"b Chart=ID=3 g", L"m V b Chart"}})));
    CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"F");
    CBaseUnitWnd* pChart = pDefinition->CreateBaseUnitWnd(L"CHART");
    ASSERT_TRUE(pChart);
    EXPECT_EQ(pChart->GetParent(), host.m_pMain);
    EXPECT_FALSE(pChart->IsWindowVisible());
    EXPECT_EQ(pDefinition->CreateBaseUnitWnd(L"Chart"), pChart);
    EXPECT_EQ(pDefinition->GetWndCacheCount(), 1);
    EXPECT_EQ(IDs(pDefinition->m_arrWndCacheID), std::vector<int>{3});
    EXPECT_EQ(pDefinition->CreateBaseUnitWnd(L"g"), nullptr);
    EXPECT_EQ(pDefinition->CreateBaseUnitWnd(L"x"), nullptr);

    CBaseUnitWnd* pSpare = pDefinition->CreateBaseUnitWnd(L"b");
    delete pSpare;
    EXPECT_EQ(pDefinition->GetWndCacheCount(), 1);

    CBaseFrameDoc* pDoc = host.Open(L"F");
    EXPECT_EQ(pDoc->GetBaseUnitWnd(L"Chart"), pChart);
    EXPECT_EQ(pChart->GetParent(), pDoc->m_pView);
    EXPECT_TRUE(pChart->IsWindowVisible());
    EXPECT_EQ(pDoc->GetWndCacheCount(), 0);
    EXPECT_EQ(pDefinition->GetWndCacheCount(), 0);
    host.CloseActive();
    EXPECT_NE(host.Open(L"F")->GetBaseUnitWnd(L"Chart"), nullptr);
    EXPECT_EQ(host.ActiveDoc()->GetBaseUnitWndCount(), 2);
}

TEST(Cache, AWindowLeftInTheCacheGoesWithTheView)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"a", L""}, {L"T", L"b", L""}})));
    CBaseFrameDoc* pDefinition = host.m_pMain->FindBaseFrameDoc(L"F");
    ASSERT_TRUE(pDefinition->CreateBaseUnitWnd(L"b"));
    CBaseFrameDoc* pDoc = host.Open(L"S");
    EXPECT_EQ(pDoc->GetWndCacheCount(), 1);
    EXPECT_EQ(pDefinition->GetWndCacheCount(), 1);
    host.CloseActive();
    EXPECT_EQ(pDefinition->GetWndCacheCount(), 0);
    EXPECT_EQ(Log().nUnits, 0);
    ASSERT_TRUE(pDefinition->CreateBaseUnitWnd(L"b")); // what is left at the end goes with the definition
}

TEST(Document, UnknownAndUnfitClassesAreSkipped)
{
    FrameHost host;
    const std::wstring strOdd = L"33333333-0000-0000-0000-000000000001";
    GUID guid = {0x33333333, 0, 0, {0, 0, 0, 0, 0, 0, 0, 1}};
    CRuntimeClass* pClass = RUNTIME_CLASS(RecordingHelper); // no unit class
    CBaseFrameDoc::Initialize(&guid, &pClass, 1, nullptr, nullptr, 0);
    host.Load(LayoutXml(L"<GLOBAL>" + UnitXml(L"g", strOdd) + UnitXml(L"h") + L"</GLOBAL>" +
                        FrameXml(L"F", L"a", {{L"S", L"x=ID=1 a=ID=2 y g", L"m V x a"}},
                                 UnitXml(L"x", strOdd) + UnitXml(L"y", L"no guid"))));
    EXPECT_EQ(host.m_arrDiagnostic.size(), 3U) << Told(host.m_arrDiagnostic);
    CBaseFrameDoc* pDoc = host.Open(L"F");
    EXPECT_EQ(pDoc->GetBaseUnitWndCount(), 1);
    EXPECT_EQ(IDs(pDoc->m_arrBaseUnitWndID), std::vector<int>{2});
    EXPECT_EQ(host.m_pMain->m_arrGlobalBaseUnitWnd.GetSize(), 1);
    EXPECT_NE(host.Panes().find("a 0,0"), std::string::npos);
    EXPECT_EQ(host.m_arrDiagnostic.size(), 3U) << Told(host.m_arrDiagnostic);
}

TEST(Document, AStyleWithFewerParametersThanUnitsIsRefused)
{
    FrameHost host;
    host.Load(LayoutXml(FrameXml(L"F", L"a b", {{L"S", L"a b", L"m V a b"}})));
    host.m_pMain->FindBaseFrameDoc(L"F")->m_arrStyle[0]->m_arrParam.RemoveAt(1);
    EXPECT_THROW(host.Open(L"F"), CInvalidArgException*);
    EXPECT_EQ(host.OpenFrames(), "");
}
